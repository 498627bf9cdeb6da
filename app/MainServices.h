// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// Everything that the main window needs from outside, built by the program and handed in: references that
// outlive the window.

#include "app/HelpCommands.h"
#include "app/ShareAccess.h"
#include "audio/ctlAudio.h"
#include "data/basCommon.h"
#include "data/clsConfig.h"
#include "dialogs/frmOptions.h"
#include "errors/ErrorHandler.h"
#include "platform/basic/DateTimeFormat.h"
#include "platform/forms/Clipboard.h"
#include "platform/forms/MessageBoxes.h"
#include "platform/share/FileSystemObject.h"
#include "platform/shell/DesktopWindows.h"
#include "tray/frmSysTray.h"

#include <functional>
#include <memory>

namespace app {

struct MainServices {
    errors::ErrorHandler& errorHandler;
    share::FileSystemObject& files;
    data::basCommon& common;
    forms::Clipboard& clipboard;
    forms::MessageBoxes& messageBoxes;
    shell::DesktopWindows& desktop;
    tray::TrayServices tray;
    const basic::DateTimeFormat& dateTimeFormat;
    std::function<std::shared_ptr<data::clsConfig>()> newConfig;
    audio::PlayerServices player;
    HelpServices help;
    dialogs::OptionsServices options;
    ShareAccess shareAccess{};
};

} // namespace app
