// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// Mail on a Linux workstation: xdg-email hands a composed mail to the user's mail program, a
// sendmail-compatible program takes a mail to be sent at once. Programs are looked for in PATH, the latter
// also where such programs usually are, whenever an item is made or used. Where nothing can send at once,
// Send opens the composed mail; where nothing can open one, Display fails rather than send what the user
// wanted to see.
//
// A mail too long for one argument is displayed with its body as an attached text file, which stays in the
// user's run-time folder until the session ends. Items must not outlive this object; programs that still run
// when it goes go on. User-interface thread.

#include "platform/shell/Mail.h"

#include <QObject>

#include <string>
#include <vector>

namespace shell {

struct MailText;

class DesktopMail : public QObject, public MailProgram {
    Q_OBJECT
public:
    // What the body says when the text is attached instead.
    explicit DesktopMail(QString attachedNotice,
                         std::vector<std::string> sendmailFolders = {"/usr/sbin", "/usr/lib"});

    std::unique_ptr<MailItem> CreateItem() override;

private:
    class Item;

    void display(MailText mail, const MailItem::Done& done);
    void send(const MailText& mail, const MailItem::Done& done);
    void run(const std::string& program, const std::vector<std::string>& arguments, const std::string& input,
             MailOutcome success, const MailItem::Done& done);
    std::string sendmail() const;

    QString m_attachedNotice;
    std::vector<std::string> m_sendmailFolders;
};

} // namespace shell
