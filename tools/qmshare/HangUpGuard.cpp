// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/qmshare/HangUpGuard.h"

#include "platform/share/smb/Messages.h"

#include <fcntl.h>
#include <poll.h>
#include <unistd.h>

#include <csignal>

namespace qmshare {
namespace {

// Runs as a signal handler: system calls only.
void endIfAlone(int) {
    pollfd channel{share::smb::kChannelDescriptor, POLLRDHUP, 0};
    if (::poll(&channel, 1, 0) > 0 && (channel.revents & (POLLHUP | POLLRDHUP | POLLERR)) != 0)
        ::_exit(share::smb::kEndedWithClient);
}

} // namespace

void endWithTheClient(int channel) {
    struct sigaction action {};
    action.sa_handler = endIfAlone;
    action.sa_flags = SA_RESTART;
    ::sigaction(SIGIO, &action, nullptr);
    ::fcntl(channel, F_SETOWN, ::getpid());
    ::fcntl(channel, F_SETFL, O_RDWR | O_ASYNC);
}

} // namespace qmshare
