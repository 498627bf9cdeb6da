// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// What frmServer stands on in its tests: one path that can be reached, a browser that answers as told, and
// notes of everything that is shown or reported.

#include "dialogs/frmServer.h"
#include "platform/share/LocalFileSystemObject.h"
#include "tests/data/SettingsWorld.h"
#include "tests/dialogs/ScriptedBrowser.h"
#include "tests/errors/RecordingErrorHandler.h"
#include "tests/platform/share/TemporaryFolder.h"

namespace dialogs {

struct ServerWorld {
    explicit ServerWorld(errors::ErrorHandler* other = nullptr)
        : reportTo(other != nullptr ? *other : errorHandler) {}

    frmServer::Services services() {
        return {reportTo, common, messageBoxes, browser, [this](const std::string& path) {
                    asked.push_back(path);
                    if (onCheck)
                        onCheck();
                    return files.FolderExists(path);
                }};
    }

    errors::RecordingErrorHandler errorHandler;
    errors::ErrorHandler& reportTo;
    share::testing::TemporaryFolder folder;
    share::LocalFileSystemObject files{share::ShareResolver(
        [this](std::string_view server) {
            return server == "srv01" ? std::optional(folder.path()) : std::nullopt;
        },
        [] { return std::string(); })};
    data::basCommon common{reportTo, files, [] { return nullptr; }};
    data::RecordedBoxes messageBoxes;
    ScriptedBrowser shell;
    clsComBrowser browser{reportTo, shell};
    std::function<void()> onCheck;
    std::vector<std::string> asked;
};

} // namespace dialogs
