// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/forms/Placement.h"

#include "platform/forms/Coordinates.h"

namespace forms {

void Placement::Move(basic::Twips left, basic::Twips top, basic::Twips width, basic::Twips height) {
    m_left = left;
    m_top = top;
    m_width = width;
    m_height = height;
    m_widget.setGeometry(toPixels(left, top, width, height));
}

} // namespace forms
