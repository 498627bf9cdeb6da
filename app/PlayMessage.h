// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// Plays the message of the selected call: the command miSPlay. Does nothing without a selected call that has
// one. Its steps are those of the dispatcher's procedure. What it is given must outlive it; user-interface
// thread.

#include "app/MainState.h"
#include "audio/ctlAudio.h"
#include "data/basCommon.h"
#include "errors/Procedure.h"
#include "platform/forms/ListView.h"
#include "platform/forms/MessageBoxes.h"
#include "platform/forms/TabStrip.h"

#include <string>

namespace app {

class PlayMessage {
public:
    struct Parts {
        data::basCommon& common;
        forms::MessageBoxes& messageBoxes;
        forms::ListView& list;
        forms::TabStrip& tabStrip;
        MainState& state;
        audio::ctlAudio& player;
    };

    explicit PlayMessage(Parts parts) : m_parts(parts) {}

    void operator()(errors::Procedure& proc) const;

private:
    std::string chosenFile() const;

    Parts m_parts;
};

} // namespace app
