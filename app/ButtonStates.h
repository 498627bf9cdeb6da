// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// Enabled and checked flags of the playback buttons, from the player's state and the selected call. Failures
// are reported as frmMain's UpdateButtonStates. What it is given must outlive it; user-interface thread.

#include "app/PlaybackState.h"
#include "errors/ErrorHandler.h"
#include "platform/forms/CommandBar.h"
#include "platform/forms/ListView.h"

#include <functional>

namespace app {

class ButtonStates {
public:
    struct Parts {
        errors::ErrorHandler& errorHandler;
        forms::CommandBar& ab;
        forms::ListView& list;
        std::function<PlaybackState()> playback;
    };

    explicit ButtonStates(Parts parts) : m_parts(std::move(parts)) {}

    void UpdateButtonStates();

private:
    bool messageSelected() const;

    Parts m_parts;
};

} // namespace app
