// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// Who logs on to a server. No user means nobody in particular: the Kerberos ticket if there is one, else
// anonymous. The password is held in a Secret and never becomes part of a text.

#include "platform/share/smb/Secret.h"

#include <string>
#include <string_view>

namespace share::smb {

struct Credentials {
    std::string domain; // empty: the server's own
    std::string user;
    Secret password;

    bool isAnybody() const noexcept { return user.empty(); }
    Credentials clone() const { return {domain, user, password.clone()}; }

    bool operator==(const Credentials& other) const noexcept {
        return domain == other.domain && user == other.user && password.view() == other.password.view();
    }

    // Takes DOMAIN\user and DOMAIN/user apart. user@REALM stays as it is: servers know it as a whole.
    static Credentials of(std::string_view userName, std::string_view password);
};

} // namespace share::smb
