// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
// A file that the registry editor of a Windows workstation exported, dropped in place as it is.
#include "data/clsConfig.h"
#include "tests/data/SettingsWorld.h"

#include <gtest/gtest.h>

namespace data {
namespace {

constexpr std::u16string_view kExported =
    u"Windows Registry Editor Version 5.00\r\n"
    u"\r\n"
    u"[HKEY_CURRENT_USER\\Software\\Corvantis\\Quillamar\\1.0\\Client]\r\n"
    u"\"ServerName\"=\"\\\\\\\\SRV01\"\r\n"
    u"\"PollInterval\"=dword:0000002d\r\n"
    u"\r\n"
    u"[HKEY_CURRENT_USER\\Software\\Corvantis\\Quillamar\\1.0\\Client\\Mailboxes]\r\n"
    u"\r\n"
    u"[HKEY_CURRENT_USER\\Software\\Corvantis\\Quillamar\\1.0\\Client\\Mailboxes\\12]\r\n"
    u"\"Name\"=\"B\u00fcro \\\"Nord\\\"\"\r\n"
    u"\"Description\"=\"C:\\\\Lager\"\r\n"
    u"\"MailboxType\"=\"M\"\r\n"
    u"\r\n"
    u"[HKEY_CURRENT_USER\\Software\\Corvantis\\Quillamar\\1.0\\Client\\Mailboxes\\7]\r\n"
    u"\"Name\"=\"Empfang\"\r\n"
    u"\"Description\"=\"\"\r\n"
    u"\"MailboxType\"=\"M\"\r\n"
    u"\r\n";

// Least byte first, with the mark that the editor puts at the beginning.
std::string exportedBytes() {
    std::string bytes = "\xff\xfe";
    for (const char16_t unit : kExported) {
        bytes.push_back(static_cast<char>(unit & 0xFFU));
        bytes.push_back(static_cast<char>(unit >> 8U));
    }
    return bytes;
}

class WindowsExportTest : public testing::Test, protected SettingsWorld {
protected:
    WindowsExportTest() { folder.put(folder.userFile(), exportedBytes()); }

    clsConfig config{registry, boxes, errors};
};

TEST_F(WindowsExportTest, BringsServerIntervalAndMailboxes) {
    config.LoadConfig();
    EXPECT_EQ(config.ServerName, "\\\\SRV01");
    EXPECT_EQ(config.PollInterval, 45);
    ASSERT_EQ(config.Mailboxes.Count(), 2);
    EXPECT_EQ(config.Mailboxes.at(1)->ID, 12);
    EXPECT_EQ(config.Mailboxes.at(1)->Name, "B\u00fcro \"Nord\"");
    EXPECT_EQ(config.Mailboxes.at(1)->Description, "C:\\Lager");
    EXPECT_EQ(config.Mailboxes.at("KEY7")->Name, "Empfang");
    EXPECT_EQ(config.Mailboxes.at("KEY7")->MailboxType, "M");
    EXPECT_TRUE(errors.reports.empty());
}

TEST_F(WindowsExportTest, SurvivesASave) {
    config.LoadConfig();
    config.Mailboxes.Remove("KEY7");
    config.SaveConfig();
    clsConfig again(registry, boxes, errors);
    again.LoadConfig();
    EXPECT_EQ(again.ServerName, "\\\\SRV01");
    EXPECT_EQ(again.PollInterval, 45);
    ASSERT_EQ(again.Mailboxes.Count(), 1);
    EXPECT_EQ(again.Mailboxes.at(1)->Name, "B\u00fcro \"Nord\"");
    EXPECT_TRUE(errors.reports.empty());
}

} // namespace
} // namespace data
