// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/shell/ProgramStarter.h"

#include "platform/basic/RuntimeError.h"
#include "platform/shell/ExternalProgram.h"

#include <filesystem>
#include <memory>
#include <system_error>

namespace shell {
namespace {

bool isFileOfThisSystem(const std::string& path) {
    std::error_code ignored;
    return path.starts_with('/') && path.find('\0') == std::string::npos &&
           std::filesystem::is_regular_file(path, ignored);
}

} // namespace

void ProgramStarter::start(const std::string& path) {
    if (!isFileOfThisSystem(path))
        throw basic::RuntimeError(basic::kFileNotFound, path);
    auto process = std::make_unique<ExternalProgram>();
    process->start(path, {}, {});
    ExternalProgram* running = process.release();
    running->setParent(this);
    // Until then it must be there to take note of the end, or a dead process would stay in the system's
    // table.
    connect(running, &ExternalProgram::ended, running, &QObject::deleteLater);
}

} // namespace shell
