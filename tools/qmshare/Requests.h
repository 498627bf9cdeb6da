// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// Answers the client's requests with what the server says. A share is connected before anything is asked of
// it, so that a failure can be told apart: the server, the user, the share, or the file. A connection that
// turns out to be dead is made anew once.

#include "platform/share/UncPath.h"
#include "platform/share/smb/Messages.h"
#include "tools/qmshare/Folders.h"
#include "tools/qmshare/OpenFiles.h"
#include "tools/qmshare/SmbContext.h"

#include <functional>
#include <memory>
#include <string>

namespace qmshare {

class Requests {
public:
    // Error 51 for a request that makes no sense: whoever sends that is not our client.
    share::smb::Response answer(const share::smb::Request& request);

private:
    using Response = share::smb::Response;
    using Request = share::smb::Request;
    // 0, or -1 and errno; fills the response.
    using Operation = std::function<int(const std::string& url, Response& response)>;

    struct Session {
        Session(std::string serverHost, std::uint16_t serverPort, share::smb::Credentials credentials,
                bool usesTicket)
            : host(std::move(serverHost)), port(serverPort),
              context(serverPort, std::move(credentials), usesTicket), files(context), folders(context) {}

        std::string host;
        std::uint16_t port;
        SmbContext context;
        OpenFiles files;
        Folders folders;
    };

    Response logOn(const Request& request);
    Response browse(const Request& request);
    Response onPath(const Request& request);
    Response onHandle(const Request& request);
    Operation operationFor(const Request& request);
    Response connect(const share::UncPath& path);
    Response connectAsWhoeverCan(const share::UncPath& path);
    Response connectAndRun(const share::UncPath& path, const Operation& operation);
    int stat(const std::string& url, Response& response);
    int shares(Response& response);
    int remove(const std::string& url, bool force);

    std::unique_ptr<Session> m_session;
};

} // namespace qmshare
