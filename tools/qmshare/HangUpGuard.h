// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// Ends the process the moment the client's end of the connection is gone, also in the middle of a call to the
// library that may take many seconds. A signal of the socket rather than the parent's death: that one comes
// with the end of the thread that started us, which may be long before the end of the client.

namespace qmshare {

// For the rest of the process's life.
void endWithTheClient(int channel);

} // namespace qmshare
