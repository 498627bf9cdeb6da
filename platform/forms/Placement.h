// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// Where a constituent control lies in its container, as logical property values in twips; the widget follows
// in whole logical pixels. The widget must outlive it; user-interface thread.

#include "platform/basic/Twips.h"

class QWidget;

namespace forms {

class Placement {
public:
    explicit Placement(QWidget& widget) : m_widget(widget) {}

    basic::Twips Left() const noexcept { return m_left; }
    basic::Twips Top() const noexcept { return m_top; }
    basic::Twips Width() const noexcept { return m_width; }
    basic::Twips Height() const noexcept { return m_height; }

    void Move(basic::Twips left, basic::Twips top, basic::Twips width, basic::Twips height);
    void SetLeft(basic::Twips left) { Move(left, m_top, m_width, m_height); }
    void SetTop(basic::Twips top) { Move(m_left, top, m_width, m_height); }
    void SetWidth(basic::Twips width) { Move(m_left, m_top, width, m_height); }
    void SetHeight(basic::Twips height) { Move(m_left, m_top, m_width, height); }

private:
    QWidget& m_widget;
    basic::Twips m_left;
    basic::Twips m_top;
    basic::Twips m_width;
    basic::Twips m_height;
};

} // namespace forms
