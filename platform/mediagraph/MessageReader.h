// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// Takes a whole message from the share into memory. The file is open only while it is read, so that a playing
// message holds nothing on the server. User-interface thread, which meanwhile waits as Waiting says; a server
// that stops answering costs a bounded time.

#include "platform/mediagraph/Aside.h"
#include "platform/share/FileSystemObject.h"

#include <cstddef>
#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace mediagraph {

class MessageReader {
public:
    using NewFiles = std::function<std::unique_ptr<share::FileSystemObject>()>;

    static constexpr std::size_t kMaximumSize = std::size_t{1} << 28U;
    static constexpr WaitLimits kLimits{std::chrono::seconds{10}, std::chrono::minutes{2}};

    MessageReader(NewFiles newFiles, Waiting& waiting, WaitLimits limits = kLimits)
        : m_newFiles(std::move(newFiles)), m_aside(waiting), m_limits(limits) {}

    // As many bytes as the file has when it is opened; fewer if it became shorter. Errors: those of the
    // share, 57 when it does not go on for the time stated in the limits, 7 beyond kMaximumSize.
    std::vector<std::byte> read(const std::string& path);

private:
    NewFiles m_newFiles;
    Aside m_aside;
    WaitLimits m_limits;
};

} // namespace mediagraph
