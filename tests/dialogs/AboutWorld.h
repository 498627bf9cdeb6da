// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// What the about box stands on in its tests: the machine's registry in a folder of its own, and notes of what
// is started and shown.

#include "dialogs/frmAbout.h"
#include "platform/basic/RuntimeError.h"
#include "tests/data/SettingsWorld.h"
#include "tests/errors/RecordingErrorHandler.h"

#include <cerrno>

namespace dialogs {

// The system calls as an ordinary user finds them: the machine's settings cannot be written.
class MachineCalls final : public registry::SystemCalls {
public:
    int access(const char* path, int mode) override {
        if (!isOrdinaryUser)
            return SystemCalls::access(path, mode);
        errno = EACCES;
        return -1;
    }

    bool isOrdinaryUser = false;
};

struct AboutWorld {
    static constexpr const char* kMsInfo =
        "[HKEY_LOCAL_MACHINE\\SOFTWARE\\Microsoft\\Shared Tools\\MSINFO]\n";
    static constexpr const char* kLocation =
        "[HKEY_LOCAL_MACHINE\\SOFTWARE\\Microsoft\\Shared Tools Location]\n";

    void putMachine(const std::string& lines) const {
        folder.put(folder.machineFile(), folder.settings(lines));
    }

    SystemInformation systemInformation() {
        return {registry, messageBoxes, [this](const std::string& path) {
                    started.push_back(path);
                    if (failing)
                        throw basic::RuntimeError(basic::kFileNotFound);
                }};
    }

    registry::RegistryFolder folder;
    MachineCalls calls;
    registry::Registry registry{folder.paths(), calls};
    data::RecordedBoxes messageBoxes;
    errors::RecordingErrorHandler errorHandler;
    std::vector<std::string> started;
    bool failing = false;
};

} // namespace dialogs
