// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The user's credentials file, in the form that mount.cifs(8) reads: lines username=, password= and domain=,
// values to the end of the line as they are, everything else passed over. It holds a password, so a file that
// others may read or that belongs to somebody else is refused. Read anew at each log-on; any thread.

#include "platform/share/smb/Credentials.h"

#include <string>
#include <string_view>

namespace share::smb {

// Nobody in particular when there is no such file. Error 70 for a file that is not the user's alone, 75 for
// one that cannot be read or names no user. No error tells what the file says.
Credentials readCredentialsFile(const std::string& path);

// The text of one. A user name with a domain in front of it (DOMAIN\user) wins over a domain line.
Credentials parseCredentials(std::string_view text);

} // namespace share::smb
