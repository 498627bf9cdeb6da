// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/share/smb/ShareNames.h"

#include "platform/basic/RuntimeError.h"
#include "platform/share/UncPath.h"
#include "platform/share/smb/FolderPage.h"
#include "platform/share/smb/MessageDecoder.h"
#include "platform/share/smb/MessageEncoder.h"

#include <optional>

namespace share::smb {
namespace {

// A broadcast is answered within seconds or not at all, but the library asks in several ways.
constexpr std::chrono::milliseconds kBrowsePatience{30'000};

std::vector<std::string> namesIn(const Response& response) {
    std::vector<std::string> names;
    for (FolderEntry& entry : decodeFolderPage(response.data))
        names.push_back(std::move(entry.name));
    return names;
}

// Nothing when the conversation is at its end.
std::optional<std::vector<std::string>> browse(PacketSocket& socket, Waiter& waiter, std::string workgroup) {
    if (!socket.send(encode(Request{.verb = Verb::Browse, .path = std::move(workgroup)})) ||
        waiter.untilReadable(socket.descriptor(), kBrowsePatience) != Waited::Ready)
        return std::nullopt;
    const auto answer = socket.receive();
    return answer ? std::optional(namesIn(decodeResponse(*answer))) : std::nullopt;
}

} // namespace

std::vector<std::string> shareNames(SmbServer& server, const std::string& name, Waiter& waiter) {
    const Request request{.verb = Verb::Shares, .path = UncPath(name, "IPC$").text()};
    return namesIn(server.call(request, waiter, "list the shares"));
}

void browseComputers(const std::string& helperProgram, Waiter& waiter,
                     const std::function<void(const std::string&, const std::string&)>& found) {
    try {
        HelperProcess helper(helperProgram);
        const auto workgroups = browse(helper.socket(), waiter, {});
        for (const std::string& workgroup : workgroups.value_or(std::vector<std::string>())) {
            const auto computers = browse(helper.socket(), waiter, workgroup);
            if (!computers)
                return;
            for (const std::string& computer : *computers)
                found(computer, workgroup);
        }
    } catch (const basic::RuntimeError&) { // the text field works without
    }
}

} // namespace share::smb
