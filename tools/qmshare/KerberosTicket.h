// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// Whether the user has a Kerberos ticket to log on with: a look at where such tickets are kept, which asks
// nobody on the network. A store that is no file counts as one with a ticket.

namespace qmshare {

bool hasKerberosTicket();

} // namespace qmshare
