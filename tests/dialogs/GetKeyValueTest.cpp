// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "dialogs/GetKeyValue.h"

#include "tests/dialogs/AboutWorld.h"

#include <gtest/gtest.h>

namespace dialogs {
namespace {

class GetKeyValueTest : public testing::Test {
protected:
    // What a value reads, or "(false)".
    std::string read(const std::string& value) {
        world.putMachine("[HKEY_LOCAL_MACHINE\\Key]\n\"Name\"=" + value + "\n");
        return get("Name");
    }
    std::string get(const std::string& name, registry::Root root = registry::Root::LocalMachine,
                    const std::string& key = "Key") {
        std::string text = "before";
        return GetKeyValue(world.registry, root, key, name, text) ? text : "(false)";
    }

    AboutWorld world;
};

TEST_F(GetKeyValueTest, ATextIsReturnedAsItStands) {
    EXPECT_EQ(read("\"/usr/bin/info ü\""), "/usr/bin/info ü");
    EXPECT_EQ(read("\"\""), "");
}

TEST_F(GetKeyValueTest, AMissingKeyOrValueAnswersFalse) {
    EXPECT_EQ(get("Name"), "(false)");
    EXPECT_EQ(read("\"x\""), "x");
    EXPECT_EQ(get("Other"), "(false)");
    EXPECT_EQ(get("Name", registry::Root::LocalMachine, "Elsewhere"), "(false)");
    EXPECT_EQ(get("Name", registry::Root::CurrentUser), "(false)");
}

TEST_F(GetKeyValueTest, AUserWithoutFullAccessGetsNothing) {
    EXPECT_EQ(read("\"x\""), "x");
    world.calls.isOrdinaryUser = true;
    EXPECT_EQ(get("Name"), "(false)");
}

TEST_F(GetKeyValueTest, AValueLongerThanTheBufferIsCutToIt) {
    EXPECT_EQ(read('"' + std::string(1023, 'x') + '"'), std::string(1023, 'x'));
    EXPECT_EQ(read('"' + std::string(1024, 'x') + '"'), std::string(1024, 'x'));
    EXPECT_EQ(read('"' + std::string(1025, 'x') + '"'), std::string(1024, 'x'));
    EXPECT_EQ(read('"' + std::string(5000, 'x') + '"'), std::string(1024, 'x'));
}

TEST_F(GetKeyValueTest, TheBufferHoldsCharactersAndCutsNone) {
    std::string umlauts;
    for (int i = 0; i < 2000; ++i)
        umlauts += "ü";
    EXPECT_EQ(read('"' + umlauts + '"'), umlauts.substr(0, 2 * 1024));
}

TEST_F(GetKeyValueTest, ANumberIsTheHexadecimalFormOfItsBytes) {
    EXPECT_EQ(read("dword:12345678"), "&h12345678");
    EXPECT_EQ(read("dword:0a0b0c0d"), "&hABCD"); // no leading zeros, byte by byte
    EXPECT_EQ(read("dword:ff00ff10"), "&hFF0FF10");
}

TEST_F(GetKeyValueTest, ANumberWhoseLastByteIsZeroLosesItAsATextDoes) {
    EXPECT_EQ(read("dword:00000001"), "&h001");
    EXPECT_EQ(read("dword:00000000"), "&h000");
    EXPECT_EQ(read("dword:00abcdef"), "&hABCDEF");
}

TEST_F(GetKeyValueTest, OtherTypesAreAsRead) {
    EXPECT_EQ(read("hex:41,42,43"), "ABC");
    EXPECT_EQ(read("hex:41,42,00"), "AB");
    EXPECT_EQ(read("hex:41,00,43"), std::string("A\0C", 3));
    EXPECT_EQ(read("hex(2):41,00,42,00,00,00"), "AB");
}

TEST_F(GetKeyValueTest, OnlyOneEndingNulIsDropped) {
    EXPECT_EQ(read("hex:41,00,00"), std::string("A\0", 2));
    EXPECT_EQ(read("hex(7):41,00,00,00,42,00,00,00,00,00"), std::string("A\0B\0", 4));
}

TEST_F(GetKeyValueTest, AValueWithoutDataIsEmpty) {
    EXPECT_EQ(read("hex:"), "");
}

TEST_F(GetKeyValueTest, ADamagedFileAnswersFalse) {
    world.folder.put(world.folder.machineFile(), "no registry");
    EXPECT_EQ(get("Name"), "(false)");
}

} // namespace
} // namespace dialogs
