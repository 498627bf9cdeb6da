// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/ButtonStates.h"

#include "app/CommandBarLayout.h"
#include "errors/Procedure.h"
#include "resources/Icons.h"

namespace app {

void ButtonStates::UpdateButtonStates() {
    errors::Procedure proc{m_parts.errorHandler, "frmMain", "UpdateButtonStates"};
    const bool message = proc.value(false, [&] { return messageSelected(); });
    const PlaybackState player = proc.value(PlaybackState{}, [&] { return m_parts.playback(); });
    const auto set = [&](const char* tool, bool isChecked, bool isEnabled) {
        proc.step([&] {
            forms::Tool& button = m_parts.ab.Bands(kBandStatus).Tools(tool);
            button.SetChecked(isChecked);
            button.SetEnabled(isEnabled);
        });
    };
    set("miSPlay", player.hasFile && !player.isPaused, player.isPlaying || message);
    set("miSStop", false, player.isPlaying);
    set("miSPause", player.isPaused, player.isPlaying);
    set("miSRew", false, player.isPlaying);
    set("miSFwd", false, player.isPlaying);
}

bool ButtonStates::messageSelected() const {
    const auto item = m_parts.list.SelectedItem();
    return item && item->SmallIcon() == resources::kCallWithMessage;
}

} // namespace app
