// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/qmshare/Requests.h"

#include "platform/share/smb/LogOnRecord.h"
#include "platform/share/smb/PacketReader.h"
#include "tools/qmshare/FailedStage.h"
#include "tools/qmshare/KerberosTicket.h"
#include "tools/qmshare/Neighbourhood.h"
#include "tools/qmshare/SmbUrl.h"

#include <sys/stat.h>

#include <cerrno>
#include <limits>

namespace qmshare {
namespace {

using share::smb::Stage;
using share::smb::Verb;

constexpr mode_t kEverybodyMayWrite = 0777; // takes the read-only attribute off

// The library forgets to say why in places.
std::int32_t lastFailure() {
    return errno != 0 ? errno : EACCES;
}

std::vector<std::byte> firstPage(const std::vector<share::smb::FolderEntry>& entries) {
    std::size_t taken = 0;
    return share::smb::encodeFolderPage(entries, taken);
}

share::OpenMode openMode(const share::smb::Request& request) {
    if (request.mode > static_cast<std::uint8_t>(share::OpenMode::Exclusive))
        share::smb::PacketReader::fail("an unknown way to open a file");
    return static_cast<share::OpenMode>(request.mode);
}

} // namespace

share::smb::Response Requests::answer(const Request& request) {
    if (request.verb == Verb::LogOn)
        return logOn(request);
    if (request.verb == Verb::Browse)
        return browse(request);
    if (!m_session)
        share::smb::PacketReader::fail("a request before the log-on");
    switch (request.verb) {
    case Verb::Stat:
    case Verb::List:
    case Verb::Open:
    case Verb::Delete:
    case Verb::Shares:
        return onPath(request);
    default:
        return onHandle(request);
    }
}

share::smb::Response Requests::logOn(const Request& request) {
    if (request.length == 0 || request.length > std::numeric_limits<std::uint16_t>::max())
        share::smb::PacketReader::fail("an impossible port");
    m_session.reset();
    share::smb::Credentials credentials = share::smb::decodeLogOn(request.data);
    const bool usesTicket = credentials.isAnybody() && hasKerberosTicket();
    m_session = std::make_unique<Session>(request.path, static_cast<std::uint16_t>(request.length),
                                          std::move(credentials), usesTicket);
    return {};
}

// A network that nothing is known of is an empty one.
share::smb::Response Requests::browse(const Request& request) {
    m_session.reset(); // the library knows one set of options at a time
    Response response;
    response.data = firstPage(Neighbourhood().list(request.path));
    return response;
}

share::smb::Response Requests::onPath(const Request& request) {
    return connectAndRun(share::UncPath::parse(request.path), operationFor(request));
}

Requests::Operation Requests::operationFor(const Request& request) {
    switch (request.verb) {
    case Verb::Stat:
        return [this](const std::string& url, Response& response) { return stat(url, response); };
    case Verb::List:
        return [this, number = request.handle](const std::string& url, Response& response) {
            if (m_session->folders.list(number, url) != 0)
                return -1;
            response = m_session->folders.nextPage(number);
            return 0;
        };
    case Verb::Open:
        return [this, handle = request.handle, mode = openMode(request)](const std::string& url, Response&) {
            return m_session->files.open(handle, url, mode);
        };
    case Verb::Shares:
        return [this](const std::string&, Response& response) { return shares(response); };
    default:
        return [this, force = request.mode != 0](const std::string& url, Response&) {
            return remove(url, force);
        };
    }
}

share::smb::Response Requests::connectAndRun(const share::UncPath& path, const Operation& operation) {
    const std::string url = smbUrl(m_session->host, path); // the same for everybody
    for (bool isRepeated = false;; isRepeated = true) {
        if (Response failed = connectAsWhoeverCan(path); failed.stage != Stage::None)
            return failed;
        Response response;
        errno = 0;
        if (operation(url, response) == 0)
            return response;
        const std::int32_t failure = lastFailure();
        const Stage stage = stageOfOperation(failure, m_session->context.isConnected(path.share()));
        if (stage != Stage::Connect || isRepeated)
            return {.stage = stage, .failure = failure};
        m_session->context.disconnect();
    }
}

// Whoever has a ticket that is of no use here is nobody in particular.
share::smb::Response Requests::connectAsWhoeverCan(const share::UncPath& path) {
    Response response = connect(path);
    const SmbContext& context = m_session->context;
    if (response.stage == Stage::None || isConnectionFailure(response.failure) || !context.usesTicket() ||
        context.isConnectedAnywhere())
        return response;
    const std::string host = m_session->host;
    const std::uint16_t port = m_session->port;
    m_session.reset(); // the library knows one set of options at a time
    m_session = std::make_unique<Session>(host, port, share::smb::Credentials{}, false);
    return connect(path);
}

share::smb::Response Requests::connect(const share::UncPath& path) {
    SmbContext& context = m_session->context;
    if (context.isConnected(path.share()))
        return {};
    context.forgetLogOn();
    errno = 0;
    Response ignored;
    if (stat(shareUrl(m_session->host, path), ignored) == 0 || context.isConnected(path.share()))
        return {};
    const std::int32_t failure = lastFailure();
    return {.stage = stageOfConnecting(failure, m_session->host, context.isLoggedOn()), .failure = failure};
}

share::smb::Response Requests::onHandle(const Request& request) {
    OpenFiles& files = m_session->files;
    if (request.verb == Verb::ListMore)
        return m_session->folders.has(request.handle) ? m_session->folders.nextPage(request.handle)
                                                      : Response{.stage = Stage::Handle, .failure = EBADF};
    if (!files.has(request.handle))
        return {.stage = Stage::Handle, .failure = EBADF};
    Response response;
    std::int64_t result = 0;
    errno = 0;
    switch (request.verb) {
    case Verb::Read:
        response.data.resize(request.length);
        result = files.read(request.handle, request.offset, response.data);
        response.data.resize(result > 0 ? static_cast<std::size_t>(result) : 0);
        break;
    case Verb::Write:
        result = files.write(request.handle, request.offset, request.data);
        break;
    case Verb::Size:
        result = files.size(request.handle);
        response.number = result > 0 ? static_cast<std::uint64_t>(result) : 0;
        break;
    default:
        result = files.close(request.handle);
        break;
    }
    if (result >= 0)
        return response;
    const std::int32_t failure = lastFailure();
    return {.stage = isConnectionFailure(failure) ? Stage::Handle : Stage::Path, .failure = failure};
}

int Requests::stat(const std::string& url, Response& response) {
    struct stat status {};
    SMBCCTX* context = m_session->context.get();
    if (::smbc_getFunctionStat(context)(context, url.c_str(), &status) != 0)
        return -1;
    response.isFolder = S_ISDIR(status.st_mode);
    response.number = status.st_size > 0 ? static_cast<std::uint64_t>(status.st_size) : 0;
    return 0;
}

int Requests::shares(Response& response) {
    const auto names = sharesOf(m_session->context.get(), m_session->host);
    if (!names)
        return -1;
    response.data = firstPage(*names);
    return 0;
}

int Requests::remove(const std::string& url, bool force) {
    SMBCCTX* context = m_session->context.get();
    const auto unlink = [&] { return ::smbc_getFunctionUnlink(context)(context, url.c_str()); };
    if (unlink() == 0)
        return 0;
    // A read-only file is "invalid" to the library; the name is valid, that was checked.
    const int failure = errno == EINVAL ? EACCES : lastFailure();
    if (force && failure == EACCES &&
        ::smbc_getFunctionChmod(context)(context, url.c_str(), kEverybodyMayWrite) == 0) {
        errno = 0;
        return unlink();
    }
    errno = failure;
    return -1;
}

} // namespace qmshare
