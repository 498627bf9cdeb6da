// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The demo server: appends calls to the mailboxes of a folder as a voice-mail server does, until it is told
// to stop. See docs/demo-server.md.

#include "platform/basic/SystemClock.h"
#include "tools/demo/DemoMailbox.h"
#include "tools/demo/DemoOptions.h"
#include "tools/demo/DemoShare.h"

#include <unistd.h>

#include <csignal>
#include <iostream>
#include <random>
#include <vector>

namespace {

constexpr const char* kUsage =
    "Usage: qmdemo FOLDER [--every SECONDS] [--calls N] [--mailbox ID] [--once]\n"
    "\n"
    "Adds a call to a mailbox below FOLDER every few seconds, as a voice-mail server\n"
    "does. Makes the demo mailboxes first if FOLDER has none.\n"
    "\n"
    "  --every SECONDS  time between two calls (5)\n"
    "  --calls N        end after N calls (go on until SIGINT or SIGTERM)\n"
    "  --mailbox ID     use this mailbox only (12 and 15 by turns)\n"
    "  --once           one call, the same as --calls 1\n"
    "  --help           this text\n"
    "\n"
    "Exit status: 0 done, 1 failed, 2 command line not understood.\n";

sigset_t endSignals() {
    sigset_t signals;
    sigemptyset(&signals);
    sigaddset(&signals, SIGINT);
    sigaddset(&signals, SIGTERM);
    return signals;
}

// Waits for the next call's time; true when a signal to end came first. The signals are blocked all the time
// and taken only here, so that no change is cut in two.
bool endsDuring(const sigset_t& signals, std::chrono::milliseconds time) {
    const auto seconds = std::chrono::duration_cast<std::chrono::seconds>(time);
    timespec wait{};
    wait.tv_sec = seconds.count();
    wait.tv_nsec = std::chrono::nanoseconds(time - seconds).count();
    return sigtimedwait(&signals, nullptr, &wait) > 0;
}

// Tells calls of one second apart, those of two servers too.
std::uint32_t distinction(unsigned number) {
    return static_cast<std::uint32_t>(getpid()) * 100U + number % 100U;
}

void appendCall(const demo::DemoOptions& options, demo::DemoCalls& calls, unsigned number) {
    const int mailbox = options.mailbox != 0 ? options.mailbox
                        : number % 2 == 0    ? demo::kFirstMailbox
                                             : demo::kSecondMailbox;
    const demo::Call call = calls.make(basic::SystemClock().nowAsDate(), distinction(number));
    demo::DemoMailbox(demo::mailboxFolder(options.folder, mailbox)).append(std::span(&call, 1));
    std::cout << "mailbox " << mailbox << ": " << call.callId << ", "
              << call.callerName.value_or("unknown caller") << ", " << call.messageLength << " s"
              << std::endl;
}

void makeMissingMailboxes(const demo::DemoOptions& options) {
    const basic::Date now = basic::SystemClock().nowAsDate();
    const int first = options.mailbox != 0 ? options.mailbox : demo::kFirstMailbox;
    const demo::DemoMailbox mailbox(demo::mailboxFolder(options.folder, first));
    if (mailbox.exists())
        return;
    if (options.mailbox != 0)
        mailbox.create("Mailbox " + std::to_string(first), "A mailbox of the demo server", now);
    else
        demo::createDemoShare(options.folder, now);
}

void serve(const demo::DemoOptions& options, const sigset_t& signals) {
    makeMissingMailboxes(options);
    demo::DemoCalls calls(std::random_device{}());
    for (unsigned number = 0; !options.calls || number < *options.calls; ++number) {
        if (number > 0 && endsDuring(signals, options.every))
            return;
        appendCall(options, calls, number);
    }
}

} // namespace

int main(int argc, char** argv) {
    const sigset_t signals = endSignals();
    sigprocmask(SIG_BLOCK, &signals, nullptr);
    try {
        const auto options = demo::DemoOptions::parse(std::vector<std::string>(argv + 1, argv + argc));
        if (options.help)
            std::cout << kUsage;
        else
            serve(options, signals);
        return 0;
    } catch (const demo::UsageError& error) {
        std::cerr << "qmdemo: " << error.what() << "\n" << kUsage;
        return 2;
    } catch (const std::exception& error) {
        std::cerr << "qmdemo: " << error.what() << "\n";
        return 1;
    }
}
