// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
// Talks to one server for qmClient, which starts it, says what to do over a socket and ends it. It is a
// process of its own because the SMB library can neither be used by threads nor be interrupted: a process
// can.

#include "platform/basic/RuntimeError.h"
#include "platform/share/smb/MessageDecoder.h"
#include "platform/share/smb/MessageEncoder.h"
#include "platform/share/smb/PacketSocket.h"
#include "tools/qmshare/HangUpGuard.h"
#include "tools/qmshare/Requests.h"

#include <sys/prctl.h>
#include <sys/resource.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cstdio>

namespace {

namespace smb = share::smb;

// Passwords live in this process: no core files, no debugger of the same user.
void hideMemory() {
    ::prctl(PR_SET_DUMPABLE, 0, 0, 0, 0);
    const rlimit none{0, 0};
    ::setrlimit(RLIMIT_CORE, &none);
}

bool isOurChannel(int descriptor) {
    int type = 0;
    socklen_t size = sizeof type;
    return ::getsockopt(descriptor, SOL_SOCKET, SO_TYPE, &type, &size) == 0 && type == SOCK_SEQPACKET;
}

// Until the client closes its end. A request that cannot be read ends the process: the client notices.
void serve(smb::PacketSocket& client) {
    qmshare::Requests requests;
    while (auto packet = client.receive()) {
        smb::Request request = smb::decodeRequest(*packet);
        smb::wipe(packet->data(), packet->size());
        const smb::Response response = requests.answer(request);
        smb::wipe(request.data.data(), request.data.size());
        if (!client.send(smb::encode(response)))
            return;
    }
}

} // namespace

int main() {
    hideMemory();
    if (!isOurChannel(smb::kChannelDescriptor)) {
        std::fputs("qmshare is started by qmClient and of no use without it.\n", stderr);
        return 2;
    }
    qmshare::endWithTheClient(smb::kChannelDescriptor);
    smb::PacketSocket client{share::FileDescriptor(smb::kChannelDescriptor)};
    try {
        serve(client);
    } catch (const std::exception&) {
        return 1;
    }
    return 0;
}
