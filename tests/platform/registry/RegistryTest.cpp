// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/platform/registry/RegistryTest.h"

#include "platform/basic/Utf8.h"
#include "platform/registry/StoreError.h"

namespace registry {
namespace {

// An unprivileged user, for whom the machine's file is not to be written.
class OrdinaryUser final : public SystemCalls {
public:
    int access(const char*, int) override {
        errno = EACCES;
        return -1;
    }
};

TEST_F(RegistryTest, AMissingKeyIsCode2) {
    EXPECT_EQ(open(Root::CurrentUser, "Soft", kKeyRead), kFileNotFound);
    EXPECT_EQ(open(Root::LocalMachine, "Soft", kKeyRead), kFileNotFound);
    EXPECT_EQ(remove("Soft"), kFileNotFound);
}

TEST_F(RegistryTest, AMissingValueIsCode2) {
    putUser("[HKEY_CURRENT_USER\\Soft]\n");
    OpenKey key;
    QueriedValue value;
    ASSERT_TRUE(m_registry.RegOpenKey(Root::CurrentUser, "SOFT", key));
    EXPECT_EQ(m_registry.RegQueryValueEx(key, "Name", value).code, kFileNotFound);
}

TEST_F(RegistryTest, AnswersTypeAndBytes) {
    putUser("[HKEY_CURRENT_USER\\Soft]\n\"T\"=\"B\xC3\xBC\"\n\"N\"=dword:01020304\n\"E\"=hex(2):25,00,00,00\n"
            "\"B\"=hex:ff,00\n");
    OpenKey key;
    ASSERT_TRUE(m_registry.RegOpenKey(Root::CurrentUser, "Soft", key));
    QueriedValue value;
    ASSERT_TRUE(m_registry.RegQueryValueEx(key, "t", value));
    EXPECT_EQ(value.type, kRegSz);
    EXPECT_EQ(value.data, bytesOf(std::string_view("B\xC3\xBC\0", 4)));
    ASSERT_TRUE(m_registry.RegQueryValueEx(key, "N", value));
    EXPECT_EQ(value.type, kRegDword);
    EXPECT_EQ(value.data, (Bytes{4, 3, 2, 1}));
    ASSERT_TRUE(m_registry.RegQueryValueEx(key, "E", value));
    EXPECT_EQ(value.type, kRegExpandSz);
    EXPECT_EQ(value.data, (Bytes{'%', 0}));
    ASSERT_TRUE(m_registry.RegQueryValueEx(key, "B", value));
    EXPECT_EQ(value.data, (Bytes{255, 0}));
}

TEST_F(RegistryTest, ReadsAFileAsThePlatformsEditorExportsIt) {
    const std::string text =
        "Windows Registry Editor Version 5.00\r\n\r\n"
        "[HKEY_CURRENT_USER\\Software\\Corvantis\\Quillamar\\1.0\\Client]\r\n"
        "\"ServerName\"=\"\\\\\\\\srv01\"\r\n\"PollInterval\"=dword:0000003c\r\n\r\n"
        "[HKEY_CURRENT_USER\\Software\\Corvantis\\Quillamar\\1.0\\Client\\Mailboxes\\7]\r\n"
        "\"Name\"=\"B\xC3\xBCro\"\r\n\r\n";
    std::string exported = "\xFF\xFE";
    for (const char16_t unit : basic::utf8ToUtf16(text)) {
        exported.push_back(static_cast<char>(unit & 0xFFU));
        exported.push_back(static_cast<char>(unit >> 8U));
    }
    m_folder.put(m_folder.userFile(), exported);
    const std::string client = "Software\\Corvantis\\Quillamar\\1.0\\Client";
    EXPECT_EQ(stored(client, "ServerName"), std::string("\\\\srv01\0", 8));
    EXPECT_EQ(stored(client + "\\Mailboxes\\7", "Name"), std::string("B\xC3\xBCro\0", 6));
    EXPECT_EQ(set(client, "ServerName", "srv02"), kSuccess);
    EXPECT_EQ(stored(client + "\\Mailboxes\\7", "Name"), std::string("B\xC3\xBCro\0", 6));
    EXPECT_EQ(stored(client, "ServerName"), std::string("srv02\0", 6));
}

TEST_F(RegistryTest, CreatesKeysOnTheWayAndSavesAtOnce) {
    EXPECT_EQ(set("Soft\\Deep\\Key", "Name", "value"), kSuccess);
    EXPECT_EQ(stored("soft\\deep\\KEY", "name"), std::string("value\0", 6));
    OpenKey key;
    EXPECT_TRUE(m_registry.RegCreateKey(Root::CurrentUser, "Soft\\Empty", key));
    EXPECT_NE(userContent().find("[HKEY_CURRENT_USER\\Soft\\Empty]"), std::string::npos);
}

TEST_F(RegistryTest, TextWithoutItsNulIsStoredWithoutIt) {
    OpenKey key;
    ASSERT_TRUE(m_registry.RegCreateKey(Root::CurrentUser, "K", key));
    EXPECT_TRUE(m_registry.RegSetValueEx(key, "a", kRegSz, bytesOf("xy")));
    EXPECT_TRUE(m_registry.RegSetValueEx(key, "b", kRegSz, {}));
    EXPECT_EQ(stored("K", "a"), "xy");
    EXPECT_EQ(stored("K", "b"), "");
}

TEST_F(RegistryTest, NamesThatCannotBeStoredAreCode87) {
    OpenKey key;
    for (const char* path : {"\\a", "a\\", "a\\\\b", "a\nb", "\xFF"})
        EXPECT_EQ(m_registry.RegCreateKey(Root::CurrentUser, path, key).code, kInvalidParameter) << path;
    EXPECT_EQ(m_registry.RegCreateKey(Root::CurrentUser, std::string(256, 'k'), key).code, kInvalidParameter);
    EXPECT_EQ(set("K", std::string(16384, 'v'), "x"), kInvalidParameter);
    EXPECT_EQ(open(Root::CurrentUser, "\\a", kKeyRead), kFileNotFound);
}

TEST_F(RegistryTest, EnumeratesSubkeysUntilNoMoreItems) {
    putUser("[HKEY_CURRENT_USER\\S\\b]\n[HKEY_CURRENT_USER\\S\\a]\n");
    OpenKey key;
    ASSERT_TRUE(m_registry.RegOpenKeyEx(Root::CurrentUser, "S", kKeyEverySpecificRight, key));
    std::string name;
    EXPECT_TRUE(m_registry.RegEnumKey(key, 0, name));
    EXPECT_EQ(name, "b");
    EXPECT_TRUE(m_registry.RegEnumKey(key, 1, name));
    EXPECT_EQ(name, "a");
    EXPECT_EQ(m_registry.RegEnumKey(key, 2, name).code, kNoMoreItems);
}

TEST_F(RegistryTest, DeletesTheOpenedKeyOrOneBelowIt) {
    putUser("[HKEY_CURRENT_USER\\S\\a]\n[HKEY_CURRENT_USER\\S\\b]\n\"x\"=\"1\"\n");
    EXPECT_EQ(remove("S\\b"), kSuccess);
    OpenKey key;
    ASSERT_TRUE(m_registry.RegOpenKey(Root::CurrentUser, "S", key));
    EXPECT_EQ(m_registry.RegDeleteKey(key, "b").code, kFileNotFound);
    EXPECT_EQ(m_registry.RegDeleteKey(key, "a").code, kSuccess);
    EXPECT_EQ(open(Root::CurrentUser, "S\\a", kKeyRead), kFileNotFound);
    EXPECT_EQ(open(Root::CurrentUser, "S", kKeyRead), kSuccess);
}

TEST_F(RegistryTest, AKeyWithSubkeysAndARootCannotBeDeleted) {
    putUser("[HKEY_CURRENT_USER\\S\\a]\n");
    EXPECT_EQ(remove("S"), kAccessDenied);
    putUser("[HKEY_CURRENT_USER]\n");
    EXPECT_EQ(remove(""), kAccessDenied);
}

TEST_F(RegistryTest, AHandleOpenedForReadingChangesNothing) {
    putUser("[HKEY_CURRENT_USER\\S]\n");
    OpenKey key;
    ASSERT_TRUE(m_registry.RegOpenKeyEx(Root::CurrentUser, "S", kKeyRead, key));
    EXPECT_EQ(m_registry.RegSetValueEx(key, "a", kRegSz, {0}).code, kAccessDenied);
    EXPECT_EQ(m_registry.RegDeleteKey(key, "").code, kAccessDenied);
}

TEST_F(RegistryTest, OrdinaryUsersReadTheMachinesKeysButGetNoFullAccess) {
    putMachine("[HKEY_LOCAL_MACHINE\\S]\n\"a\"=\"1\"\n");
    OrdinaryUser calls;
    Registry registry(m_folder.paths(), calls);
    OpenKey key;
    EXPECT_EQ(registry.RegOpenKeyEx(Root::LocalMachine, "S", kKeyAllAccess, key).code, kAccessDenied);
    EXPECT_EQ(registry.RegOpenKeyEx(Root::LocalMachine, "S", kKeyEverySpecificRight, key).code,
              kAccessDenied);
    EXPECT_EQ(registry.RegOpenKeyEx(Root::LocalMachine, "None", kKeyAllAccess, key).code, kFileNotFound);
    EXPECT_EQ(registry.RegCreateKey(Root::LocalMachine, "T", key).code, kAccessDenied);
    EXPECT_EQ(registry.RegOpenKeyEx(Root::LocalMachine, "S", kKeyRead, key).code, kSuccess);
    EXPECT_EQ(registry.RegOpenKey(Root::LocalMachine, "S", key).code, kSuccess);
    QueriedValue value;
    EXPECT_EQ(registry.RegQueryValueEx(key, "a", value).code, kSuccess);
    EXPECT_EQ(registry.RegSetValueEx(key, "a", kRegSz, {0}).code, kAccessDenied);
}

TEST_F(RegistryTest, WhoMayWriteTheMachinesFileGetsFullAccess) {
    putMachine("[HKEY_LOCAL_MACHINE\\S]\n");
    EXPECT_EQ(open(Root::LocalMachine, "S", kKeyAllAccess), kSuccess);
    OpenKey key;
    ASSERT_TRUE(m_registry.RegCreateKey(Root::LocalMachine, "S\\T", key));
    EXPECT_NE(m_folder.content(m_folder.machineFile()).find("[HKEY_LOCAL_MACHINE\\S\\T]"), std::string::npos);
}

TEST_F(RegistryTest, KeysOfOtherRootsAreKeptAndNotUsed) {
    putUser("[HKEY_USERS\\X]\n\"a\"=\"1\"\n\n[HKEY_LOCAL_MACHINE\\Y]\n\n[HKEY_CURRENT_USER\\K]\n");
    EXPECT_EQ(open(Root::LocalMachine, "Y", kKeyRead), kFileNotFound);
    EXPECT_EQ(set("K", "b", "2"), kSuccess);
    EXPECT_EQ(userContent(), m_folder.settings("[HKEY_USERS\\X]\n\"a\"=\"1\"\n\n[HKEY_LOCAL_MACHINE\\Y]\n\n"
                                               "[HKEY_CURRENT_USER\\K]\n\"b\"=\"2\"\n"));
}

TEST_F(RegistryTest, ADamagedFileIsCode1015WithItsLine) {
    putUser("rubbish\n");
    OpenKey key;
    const Result opened = m_registry.RegOpenKey(Root::CurrentUser, "S", key);
    EXPECT_EQ(opened.code, kCorrupt);
    EXPECT_NE(opened.description.find("line 3"), std::string::npos);
    EXPECT_EQ(set("S", "a", "1"), kCorrupt);
}

TEST_F(RegistryTest, SeesWhatAnotherProgramWrote) {
    Registry other(m_folder.paths(), m_calls);
    EXPECT_EQ(set("S", "a", "1"), kSuccess);
    EXPECT_EQ(get(other, "S", "a"), std::string("1\0", 2));
    EXPECT_EQ(set("S", "a", "2"), kSuccess);
    EXPECT_EQ(get(other, "S", "a"), std::string("2\0", 2));
}

} // namespace
} // namespace registry
