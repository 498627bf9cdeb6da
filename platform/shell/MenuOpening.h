// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// Counts the openings of an exported menu. Panels announce one with AboutToShow, with the event "opened", or
// with both in either order, and not all of them say "closed". Each function answers whether this is a new
// opening.

namespace shell {

class MenuOpening {
public:
    bool aboutToShow() {
        if (m_state == State::Open)
            return false;
        m_state = State::Announced;
        return true;
    }
    bool opened() {
        const bool isNew = m_state != State::Announced;
        m_state = State::Open;
        return isNew;
    }
    void closed() { m_state = State::Closed; }

private:
    enum class State { Closed, Announced, Open };
    State m_state = State::Closed;
};

} // namespace shell
