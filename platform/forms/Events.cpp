// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/forms/Events.h"

#include <QCoreApplication>

namespace forms {

void doEvents() {
    QCoreApplication::processEvents();
}

} // namespace forms
