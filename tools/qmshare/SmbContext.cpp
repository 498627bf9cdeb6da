// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/qmshare/SmbContext.h"

#include "platform/basic/RuntimeError.h"
#include "platform/basic/TextCompare.h"
#include "platform/share/FileDescriptor.h"

#include <stdlib.h> // mkstemp is no part of <cstdlib>
#include <unistd.h>

#include <algorithm>
#include <filesystem>
#include <utility>

namespace qmshare {
namespace {

constexpr int kLogLevel = 4; // where the library tells that a session was set up
constexpr std::string_view kLoggedOn = "session setup ok";
// Never: the client ends this process at its own deadline. A second clock would only tell, after the machine
// slept or this process was stopped, that an answer was late which lies there to be read.
constexpr int kTimeoutMilliseconds = 24 * 3'600'000;

void put(std::string_view text, char* into, int size) {
    if (size <= 0)
        return;
    const std::size_t count = std::min(text.size(), static_cast<std::size_t>(size) - 1);
    std::copy_n(text.data(), count, into);
    into[count] = '\0';
}

} // namespace

void SmbContext::Free::operator()(SMBCCTX* context) const noexcept {
    ::smbc_free_context(context, 1);
}

SmbContext::SmbContext(std::uint16_t port, share::smb::Credentials credentials, bool usesTicket)
    : m_credentials(std::move(credentials)), m_usesTicket(usesTicket), m_context(::smbc_new_context()) {
    if (!m_context)
        throw basic::RuntimeError(basic::kInternalError, "the SMB library has no context");
    setCallbacks();
    setOptions(port);
    if (::smbc_init_context(get()) == nullptr)
        throw basic::RuntimeError(basic::kInternalError, "the SMB library cannot be set up");
    if (!m_credentials.isAnybody())
        refuseToBeAGuest();
    // After the initialisation, which reads the machine's configuration.
    ::smbc_setOptionProtocols(get(), "SMB2_10", "SMB3_11");
}

void SmbContext::setOptions(std::uint16_t port) {
    ::smbc_setPort(get(), port);
    ::smbc_setTimeout(get(), kTimeoutMilliseconds);
    ::smbc_setOptionNoAutoAnonymousLogin(get(), 1); // a wrong password must not become a guest
    ::smbc_setOptionUseKerberos(get(), m_usesTicket ? 1 : 0);
    ::smbc_setOptionFallbackAfterKerberos(get(), 0); // to a user of that name with an empty password
    ::smbc_setOptionOpenShareMode(get(), SMBC_SHAREMODE_DENY_NONE);
}

void SmbContext::setCallbacks() {
    ::smbc_setOptionUserData(get(), this);
    ::smbc_setFunctionAuthDataWithContext(get(), authenticate);
    ::smbc_setLogCallback(get(), this, logged);
    ::smbc_setDebug(get(), kLogLevel);
    m_add = ::smbc_getFunctionAddCachedServer(get());
    m_remove = ::smbc_getFunctionRemoveCachedServer(get());
    ::smbc_setFunctionAddCachedServer(get(), connected);
    ::smbc_setFunctionRemoveCachedServer(get(), disconnected);
}

// A server may take an unknown user or a wrong password for a guest without a word. Guests cannot sign, so
// who insists on signing is never one. The library takes this from a configuration file only.
void SmbContext::refuseToBeAGuest() {
    std::string path = (std::filesystem::temp_directory_path() / "qmshare-XXXXXX").string();
    const share::FileDescriptor file(::mkstemp(path.data()));
    constexpr std::string_view kLines = "[global]\nclient signing = required\n";
    const bool isWritten = file.isOpen() && ::write(file.get(), kLines.data(), kLines.size()) ==
                                                static_cast<ssize_t>(kLines.size());
    const bool isTaken = isWritten && ::smbc_setConfiguration(get(), path.c_str()) == 0;
    if (file.isOpen())
        ::unlink(path.c_str());
    if (!isTaken)
        throw basic::RuntimeError(basic::kInternalError, "the SMB library takes no configuration");
}

bool SmbContext::isConnected(const std::string& share) const {
    return std::ranges::any_of(m_connections, [&share](const auto& connection) {
        return basic::equalText(connection.second, share);
    });
}

void SmbContext::disconnect() {
    ::smbc_getFunctionPurgeCachedServers(get())(get());
}

SmbContext& SmbContext::of(SMBCCTX* context) {
    return *static_cast<SmbContext*>(::smbc_getOptionUserData(context));
}

// Answers from memory: the library asks at every call.
void SmbContext::authenticate(SMBCCTX* context, const char* /*server*/, const char* /*share*/,
                              char* workgroup, int workgroupSize, char* user, int userSize, char* password,
                              int passwordSize) {
    if (of(context).m_usesTicket)
        return; // the ticket says who it is; any name but none will do
    const share::smb::Credentials& credentials = of(context).m_credentials;
    if (!credentials.domain.empty())
        put(credentials.domain, workgroup, workgroupSize);
    put(credentials.user, user, userSize);
    put(credentials.password.view(), password, passwordSize);
}

int SmbContext::connected(SMBCCTX* context, SMBCSRV* connection, const char* server, const char* share,
                          const char* workgroup, const char* user) {
    SmbContext& self = of(context);
    self.m_connections[connection] = share;
    return self.m_add(context, connection, server, share, workgroup, user);
}

int SmbContext::disconnected(SMBCCTX* context, SMBCSRV* connection) {
    SmbContext& self = of(context);
    self.m_connections.erase(connection);
    return self.m_remove(context, connection);
}

void SmbContext::logged(void* self, int /*level*/, const char* message) {
    if (std::string_view(message).find(kLoggedOn) != std::string_view::npos)
        static_cast<SmbContext*>(self)->m_isLoggedOn = true;
}

} // namespace qmshare
