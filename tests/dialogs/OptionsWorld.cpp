// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/dialogs/OptionsWorld.h"

#include <QTest>

#include <gtest/gtest.h>

namespace dialogs {

frmOptions& OptionsWorld::openWithList() {
    open();
    EXPECT_TRUE(QTest::qWaitFor([this] { return !search.isSearching(); }));
    return *dialog;
}

std::vector<std::string> OptionsWorld::rows() {
    std::vector<std::string> rows;
    auto& items = list().ListItems();
    for (int index = 1; index <= items.Count(); ++index) {
        const forms::ListItem item = items.Item(index);
        rows.push_back(std::string(item.Checked() ? "+" : "")
                           .append(item.Text())
                           .append("|")
                           .append(item.SubItems(1))
                           .append("|")
                           .append(item.SubItems(2)));
    }
    return rows;
}

std::vector<std::string> OptionsWorld::savedMailboxes() {
    data::clsConfig saved(registry, messageBoxes, reportTo);
    saved.LoadConfig();
    std::vector<std::string> mailboxes;
    for (const auto& mailbox : saved.Mailboxes)
        mailboxes.push_back(std::to_string(mailbox->ID)
                                .append("|")
                                .append(mailbox->Name)
                                .append("|")
                                .append(mailbox->Description)
                                .append("|")
                                .append(mailbox->MailboxType));
    return mailboxes;
}

} // namespace dialogs
