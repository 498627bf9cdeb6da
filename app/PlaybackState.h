// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// What the command bar wants to know of the player.

namespace app {

struct PlaybackState {
    bool isPlaying = false;
    bool isPaused = false;
    bool hasFile = false;
};

} // namespace app
