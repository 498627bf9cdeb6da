// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/mediagraph/PipeWireSocket.h"

#include "platform/share/FileDescriptor.h"

#include <sys/socket.h>
#include <sys/un.h>

#include <algorithm>
#include <cerrno>
#include <cstdlib>
#include <span>

namespace mediagraph {

PipeWireSocket PipeWireSocket::ofUser() {
    const char* folder = std::getenv("XDG_RUNTIME_DIR"); // NOLINT(concurrency-mt-unsafe): nobody sets it
    return PipeWireSocket(folder == nullptr ? std::string() : std::string(folder).append("/pipewire-0"));
}

bool PipeWireSocket::answers() const {
    sockaddr_un address{};
    const std::span<char> name(address.sun_path);
    const share::FileDescriptor descriptor(::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0));
    if (m_path.empty() || m_path.size() >= name.size() || descriptor.get() < 0)
        return false;
    address.sun_family = AF_UNIX;
    std::ranges::copy(m_path, name.begin());
    const int result =
        ::connect(descriptor.get(), reinterpret_cast<const sockaddr*>(&address), sizeof(address));
    return result == 0 || errno == EAGAIN; // a server that is busy is one
}

} // namespace mediagraph
