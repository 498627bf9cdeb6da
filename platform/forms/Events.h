// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// Lets pending window events run. Whoever calls this holds what it still needs and looks at its state anew
// afterwards: anything may have happened meanwhile. User-interface thread.

namespace forms {

// Handles what is pending now and returns; waits for nothing.
void doEvents();

} // namespace forms
