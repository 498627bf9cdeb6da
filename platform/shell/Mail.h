// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The workstation's mail program: makes mail items, which can be shown to the user for editing and sending,
// or sent at once. Nothing here waits for the program that does it: the outcome is told when that has ended,
// or never when the program that asked ends before. User-interface thread.

#include <QString>

#include <functional>
#include <memory>

namespace shell {

enum class MailOutcome {
    Sent,      // a mail transfer program accepted it
    Displayed, // the user has it before them, to send it or not
    Failed,
};

class MailItem {
public:
    using Done = std::function<void(MailOutcome)>;

    MailItem() = default;
    MailItem(const MailItem&) = delete;
    MailItem& operator=(const MailItem&) = delete;
    virtual ~MailItem() = default;

    // Plain text; lines of the body end in CR LF or LF.
    QString To;
    QString Subject;
    QString Body;

    // Both return at once; the item may go as soon as they have returned. What cannot even be begun is
    // thrown.
    virtual void Display(Done done) = 0;
    virtual void Send(Done done) = 0;
};

class MailProgram {
public:
    MailProgram() = default;
    MailProgram(const MailProgram&) = delete;
    MailProgram& operator=(const MailProgram&) = delete;
    virtual ~MailProgram() = default;

    // Error 429 where there is no mail program at all.
    virtual std::unique_ptr<MailItem> CreateItem() = 0;
};

} // namespace shell
