// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "resources/LocalText.h"

#include "resources/StringTable.h"

namespace resources {

QString localText(std::int32_t id, std::string_view englishForTheReader) {
    return QString::fromStdString(LoadLocalString(id, englishForTheReader));
}

} // namespace resources
