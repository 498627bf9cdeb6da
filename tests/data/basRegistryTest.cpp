// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "data/basRegistry.h"

#include "platform/basic/RuntimeError.h"
#include "tests/data/SettingsWorld.h"

#include <gtest/gtest.h>

namespace data {
namespace {

using registry::Root;

class basRegistryTest : public ::testing::Test, protected SettingsWorld {
protected:
    template <typename Call>
    static basic::RuntimeError errorOf(Call&& call) {
        try {
            call();
        } catch (const basic::RuntimeError& error) {
            return error;
        }
        return basic::RuntimeError(0, "");
    }
};

TEST_F(basRegistryTest, MissingKeysAndValuesReadAsEmpty) {
    EXPECT_EQ(values.readValue(Root::CurrentUser, "Soft\\Missing", "Name"), RegistryValue());
    putUser("[HKEY_CURRENT_USER\\Soft]\n\"Other\"=\"x\"\n");
    EXPECT_EQ(values.readValue(Root::CurrentUser, "Soft", "Name"), RegistryValue());
}

TEST_F(basRegistryTest, ReadsTextAndNumbers) {
    putUser("[HKEY_CURRENT_USER\\Soft]\n\"Text\"=\"B\xC3\xBCro\"\n\"Number\"=dword:fffffffe\n");
    EXPECT_EQ(values.readValue(Root::CurrentUser, "soft", "TEXT"), RegistryValue("B\xC3\xBCro"));
    EXPECT_EQ(values.readValue(Root::CurrentUser, "Soft", "Number"), RegistryValue(-2));
}

TEST_F(basRegistryTest, CutsTextAtItsFirstNul) {
    putUser("[HKEY_CURRENT_USER\\Soft]\n\"Text\"=hex(1):61,00,62,00,00,00,63,00,00,00\n");
    EXPECT_EQ(values.readValue(Root::CurrentUser, "Soft", "Text"), RegistryValue("ab"));
}

TEST_F(basRegistryTest, ReadsTextWithoutItsFinalNul) {
    putUser("[HKEY_CURRENT_USER\\Soft]\n\"Text\"=hex(1):61,00,62,00\n\"None\"=hex(1):\n");
    EXPECT_EQ(values.readValue(Root::CurrentUser, "Soft", "Text"), RegistryValue("ab"));
    EXPECT_EQ(values.readValue(Root::CurrentUser, "Soft", "None"), RegistryValue(""));
}

TEST_F(basRegistryTest, AValueOfAnotherTypeIsATypeMismatch) {
    putUser("[HKEY_CURRENT_USER\\Soft]\n\"Bin\"=hex:01,02\n\"Short\"=hex(4):01\n");
    for (const char* name : {"Bin", "Short"})
        EXPECT_EQ(errorOf([&] { values.readValue(Root::CurrentUser, "Soft", name); }).number(),
                  basic::kTypeMismatch);
}

TEST_F(basRegistryTest, ADamagedFileIsAnErrorWithItsLineAndNoEmptyStore) {
    putUser("[HKEY_CURRENT_USER\\Soft]\n\"Name\"=\n");
    const auto error = errorOf([&] { values.readValue(Root::CurrentUser, "Soft", "Name"); });
    EXPECT_EQ(error.number(), basic::kPathFileAccess);
    EXPECT_NE(error.description().find("registry.reg: line 4"), std::string::npos) << error.description();
    EXPECT_EQ(errorOf([&] { values.listSubkeys(Root::CurrentUser, "Soft"); }).number(),
              basic::kPathFileAccess);
}

TEST_F(basRegistryTest, WritesCreateTheKeyAndDropOneLeadingBackslash) {
    EXPECT_TRUE(values.writeValue(Root::CurrentUser, "\\Soft\\Deep", "Text", "\\\\srv01"));
    EXPECT_TRUE(values.writeValue(Root::CurrentUser, "Soft\\Deep", "Number", -5));
    EXPECT_EQ(values.readValue(Root::CurrentUser, "Soft\\Deep", "Text"), RegistryValue("\\\\srv01"));
    EXPECT_EQ(values.readValue(Root::CurrentUser, "Soft\\Deep", "Number"), RegistryValue(-5));
    EXPECT_NE(folder.content(folder.userFile()).find("\"Number\"=dword:fffffffb"), std::string::npos);
}

TEST_F(basRegistryTest, ASecondLeadingBackslashIsAnError) {
    EXPECT_EQ(errorOf([&] { values.writeValue(Root::CurrentUser, "\\\\Soft", "Text", "x"); }).number(),
              basic::kPathFileAccess);
}

TEST_F(basRegistryTest, AWriteThatFailsIsError75WithItsReason) {
    folder.put(folder.folder() / "user", "a file where the folder should be");
    const auto error = errorOf([&] { values.writeValue(Root::CurrentUser, "Soft", "Text", "x"); });
    EXPECT_EQ(error.number(), basic::kPathFileAccess);
    EXPECT_NE(error.description().find("registry.reg"), std::string::npos) << error.description();
}

TEST_F(basRegistryTest, ListsAsManyNamesAsThereAreSubkeysAndOneEmptyForNone) {
    EXPECT_EQ(values.listSubkeys(Root::CurrentUser, "Soft"), std::vector<std::string>{""});
    putUser("[HKEY_CURRENT_USER\\Soft\\b]\n[HKEY_CURRENT_USER\\Soft\\a]\n");
    EXPECT_EQ(values.listSubkeys(Root::CurrentUser, "Soft"), (std::vector<std::string>{"b", "a"}));
    EXPECT_EQ(values.listSubkeys(Root::CurrentUser, "Soft\\a"), std::vector<std::string>{""});
}

TEST_F(basRegistryTest, DeletesAKey) {
    putUser("[HKEY_CURRENT_USER\\Soft\\a]\n\"x\"=\"y\"\n[HKEY_CURRENT_USER\\Soft\\b]\n");
    EXPECT_TRUE(values.deleteKey(Root::CurrentUser, "Soft\\a"));
    EXPECT_EQ(values.listSubkeys(Root::CurrentUser, "Soft"), std::vector<std::string>{"b"});
    EXPECT_TRUE(boxes.boxes.empty());
}

TEST_F(basRegistryTest, DeletingAMissingKeyShowsThatOpeningFailed) {
    EXPECT_FALSE(values.deleteKey(Root::CurrentUser, "Soft\\a"));
    EXPECT_EQ(boxes.boxes, (std::vector<RecordedBoxes::Box>{
                               {"Error Opening Registry Key Entry:\r\nKey/Path=Soft\\a\r\nDLL Returned=2", 48,
                                "ODBC Registry"}}));
}

TEST_F(basRegistryTest, DeletingAKeyWithSubkeysShowsThatDeletingFailed) {
    putUser("[HKEY_CURRENT_USER\\Soft\\a\\b]\n");
    EXPECT_FALSE(values.deleteKey(Root::CurrentUser, "Soft\\a"));
    EXPECT_EQ(boxes.boxes, (std::vector<RecordedBoxes::Box>{
                               {"Error Deleting Registry Key Entry:\r\nKey=Soft\\a\r\nDLL Returned=5", 48,
                                "ODBC Registry"}}));
    EXPECT_EQ(values.listSubkeys(Root::CurrentUser, "Soft"), std::vector<std::string>{"a"});
}

TEST_F(basRegistryTest, NumbersAndTextStandInForEachOther) {
    EXPECT_EQ(asText(RegistryValue(7)), "7");
    EXPECT_EQ(asText(RegistryValue()), "");
    EXPECT_EQ(asNumber(RegistryValue(" 900 ")), 900);
    EXPECT_EQ(asNumber(RegistryValue()), 0);
    EXPECT_EQ(errorOf([] { asNumber(RegistryValue("soon")); }).number(), basic::kTypeMismatch);
}

} // namespace
} // namespace data
