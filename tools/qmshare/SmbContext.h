// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The library's context for one server and one user: its options, who logs on, and which shares are
// connected. Nothing of a user's or machine's smb.conf is needed. The library is not made for threads: one
// context, one thread. Closes everything when it goes.

#include "platform/share/smb/Credentials.h"

#include <libsmbclient.h>

#include <cstdint>
#include <map>
#include <memory>
#include <string>
#include <string_view>

namespace qmshare {

class SmbContext {
public:
    // With `usesTicket` the user's Kerberos ticket logs on, or nobody does. Error 51 when the library cannot
    // be set up.
    SmbContext(std::uint16_t port, share::smb::Credentials credentials, bool usesTicket);
    SmbContext(const SmbContext&) = delete;
    SmbContext& operator=(const SmbContext&) = delete;

    SMBCCTX* get() const noexcept { return m_context.get(); }

    // The library's own connection to a share, as far as it knows that it is alive.
    bool isConnected(const std::string& share) const;
    bool usesTicket() const noexcept { return m_usesTicket; }
    bool isConnectedAnywhere() const noexcept { return !m_connections.empty(); }
    // Gives connections up, so that the next call makes a new one.
    void disconnect();

    // Whether the server accepted the user since the last forgetLogOn(): the library has one answer for a
    // refused user and for a user who must not have the share.
    void forgetLogOn() noexcept { m_isLoggedOn = false; }
    bool isLoggedOn() const noexcept { return m_isLoggedOn; }

private:
    struct Free {
        void operator()(SMBCCTX* context) const noexcept;
    };

    static SmbContext& of(SMBCCTX* context);
    static void authenticate(SMBCCTX* context, const char* server, const char* share, char* workgroup,
                             int workgroupSize, char* user, int userSize, char* password, int passwordSize);
    static int connected(SMBCCTX* context, SMBCSRV* connection, const char* server, const char* share,
                         const char* workgroup, const char* user);
    static int disconnected(SMBCCTX* context, SMBCSRV* connection);
    static void logged(void* self, int level, const char* message);
    void setOptions(std::uint16_t port);
    void setCallbacks();
    void refuseToBeAGuest();

    share::smb::Credentials m_credentials;
    const bool m_usesTicket;
    std::map<SMBCSRV*, std::string> m_connections; // share names
    smbc_add_cached_srv_fn m_add = nullptr;
    smbc_remove_cached_srv_fn m_remove = nullptr;
    bool m_isLoggedOn = false;
    std::unique_ptr<SMBCCTX, Free> m_context; // last: what goes with it calls back
};

} // namespace qmshare
