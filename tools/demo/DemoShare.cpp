// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/demo/DemoShare.h"

#include "platform/basic/RuntimeError.h"
#include "tools/demo/DemoMailbox.h"

#include <algorithm>
#include <vector>

namespace demo {
namespace {

struct Content {
    int mailbox;
    std::size_t calls;
    const char* name;
    const char* description;
};

constexpr Content kContents[]{{kFirstMailbox, 12, "Sales", "Calls for sales, ground floor"},
                              {kSecondMailbox, 15, "Büro Süd", "Anrufbeantworter im Büro Süd"}};

std::vector<Call> makeCalls(const Content& content, const basic::Date& now) {
    DemoCalls source(static_cast<std::uint32_t>(content.mailbox));
    std::vector<Call> calls;
    basic::Date when = source.earlier(now);
    for (std::size_t left = content.calls; left > 0; --left) {
        calls.push_back(source.make(when, static_cast<std::uint32_t>(left)));
        when = source.earlier(when);
    }
    std::ranges::reverse(calls); // the oldest gets the lowest number
    return calls;
}

} // namespace

std::string mailboxFolder(const std::string& share, int mailbox) {
    return share + "/MBX/" + std::to_string(mailbox);
}

void createDemoShare(const std::string& folder, const basic::Date& now) {
    for (const Content& content : kContents)
        if (DemoMailbox(mailboxFolder(folder, content.mailbox)).exists())
            throw basic::RuntimeError(basic::kPathFileAccess, folder + ": there is a mailbox " +
                                                                  std::to_string(content.mailbox) +
                                                                  " already");
    for (const Content& content : kContents) {
        const DemoMailbox mailbox(mailboxFolder(folder, content.mailbox));
        mailbox.create(content.name, content.description, now);
        mailbox.append(makeCalls(content, now));
    }
}

} // namespace demo
