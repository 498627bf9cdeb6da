// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The files of one server for a thread that can wait for the person at the desk: a folder counts as missing
// only when the question that the server's refusal led to is answered, and then the server is asked again.
// Servers and waiter must outlive it; one thread.

#include "app/LogOnDesk.h"
#include "platform/share/smb/SmbFileSystemObject.h"

#include <memory>
#include <string>

namespace app {

class AskingFiles final : public share::smb::SmbFileSystemObject {
public:
    AskingFiles(share::smb::SmbServers& servers, share::Waiter& waiter, std::shared_ptr<const LogOnDesk> desk,
                std::string server)
        : SmbFileSystemObject(servers, waiter), m_waiter(waiter), m_desk(std::move(desk)),
          m_server(std::move(server)) {}

    bool FolderExists(std::string_view path) override;

private:
    share::Waiter& m_waiter;
    const std::shared_ptr<const LogOnDesk> m_desk;
    const std::string m_server;
};

} // namespace app
