// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// One running qmshare, owned by this object: started on construction, killed and reaped on destruction
// whatever it is doing. It inherits nothing but its end of the connection. It also ends by itself as soon as
// the client's end is closed, so a client that is killed leaves none behind. One thread at a time.

#include "platform/share/smb/PacketSocket.h"

#include <sys/types.h>

#include <string>

namespace share::smb {

class HelperProcess {
public:
    // Error 75 when the program cannot be started.
    explicit HelperProcess(const std::string& program);
    HelperProcess(const HelperProcess&) = delete;
    HelperProcess& operator=(const HelperProcess&) = delete;
    ~HelperProcess();

    PacketSocket& socket() noexcept { return m_socket; }
    pid_t id() const noexcept { return m_id; }

private:
    PacketSocket m_socket;
    pid_t m_id = -1;
};

// The program that lies beside this one, the usual place.
std::string helperProgram();

} // namespace share::smb
