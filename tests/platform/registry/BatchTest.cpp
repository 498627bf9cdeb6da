// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/registry/Batch.h"

#include "platform/basic/RuntimeError.h"
#include "platform/registry/StoreError.h"
#include "tests/platform/registry/RegistryTest.h"

namespace registry {
namespace {

TEST_F(RegistryTest, ABatchIsSeenInsideAndSavedAsOne) {
    set("S\\old", "a", "1");
    Batch batch(m_registry);
    m_calls.names.clear();
    EXPECT_EQ(set("S\\new", "b", "2"), kSuccess);
    EXPECT_EQ(remove("S\\old"), kSuccess);
    EXPECT_EQ(get(m_registry, "S\\new", "b"), std::string("2\0", 2));
    EXPECT_EQ(get(m_registry, "S\\old", "a"), "(missing)");
    EXPECT_EQ(stored("S\\old", "a"), std::string("1\0", 2));
    EXPECT_EQ(std::count(m_calls.names.begin(), m_calls.names.end(), "flock"), 0);
    batch.commit();
    EXPECT_EQ(stored("S\\new", "b"), std::string("2\0", 2));
    EXPECT_EQ(stored("S\\old", "a"), "(missing)");
    EXPECT_EQ(std::count(m_calls.names.begin(), m_calls.names.end(), "rename"), 1);
}

TEST_F(RegistryTest, ABatchDroppedWritesNothing) {
    set("S", "a", "1");
    const std::string before = userContent();
    {
        const Batch batch(m_registry);
        set("S", "a", "2");
        remove("S");
    }
    EXPECT_EQ(userContent(), before);
    EXPECT_EQ(get(m_registry, "S", "a"), std::string("1\0", 2));
    EXPECT_EQ(set("S", "a", "3"), kSuccess);
    EXPECT_EQ(stored("S", "a"), std::string("3\0", 2));
}

TEST_F(RegistryTest, ABatchIsAppliedToWhatTheFileHoldsAtCommit) {
    set("S\\a", "x", "1");
    Batch batch(m_registry);
    remove("S\\a");
    set("S\\b", "x", "2");
    {
        Registry other(m_folder.paths(), m_calls);
        OpenKey key;
        ASSERT_TRUE(other.RegCreateKey(Root::CurrentUser, "S\\theirs", key));
    }
    batch.commit();
    EXPECT_NE(userContent().find("S\\theirs"), std::string::npos);
    EXPECT_EQ(stored("S\\b", "x"), std::string("2\0", 2));
    EXPECT_EQ(stored("S\\a", "x"), "(missing)");
}

TEST_F(RegistryTest, ABatchLeavesAKeyThatGotSubkeysFromSomebodyElse) {
    set("S\\a", "x", "1");
    Batch batch(m_registry);
    EXPECT_EQ(remove("S\\a"), kSuccess);
    {
        Registry other(m_folder.paths(), m_calls);
        OpenKey key;
        ASSERT_TRUE(other.RegCreateKey(Root::CurrentUser, "S\\a\\theirs", key));
    }
    batch.commit();
    EXPECT_EQ(open(Root::CurrentUser, "S\\a\\theirs", kKeyRead), kSuccess);
}

TEST_F(RegistryTest, ABatchThatFailsMayBeCommittedAgain) {
    set("S", "a", "1");
    Batch batch(m_registry);
    set("S", "a", "2");
    m_calls.strike(FaultyCalls::Fault::Fail, 1, ENOSPC);
    EXPECT_THROW(batch.commit(), StoreError);
    EXPECT_EQ(stored("S", "a"), std::string("1\0", 2));
    m_calls.strike(FaultyCalls::Fault::None, 0);
    batch.commit();
    EXPECT_EQ(stored("S", "a"), std::string("2\0", 2));
}

TEST_F(RegistryTest, ABatchWithoutChangesTouchesNoFile) {
    Batch batch(m_registry);
    batch.commit();
    EXPECT_FALSE(std::filesystem::exists(m_folder.userFile()));
}

TEST_F(RegistryTest, OneBatchAtATime) {
    Batch first(m_registry);
    try {
        const Batch second(m_registry);
        ADD_FAILURE() << "no error";
    } catch (const basic::RuntimeError& error) {
        EXPECT_EQ(error.number(), basic::kInvalidProcedureCall);
    }
    set("S", "a", "1");
    EXPECT_EQ(stored("S", "a"), "(missing)");
    first.commit();
    EXPECT_EQ(stored("S", "a"), std::string("1\0", 2));
    EXPECT_NO_THROW(Batch(m_registry).commit());
}

TEST_F(RegistryTest, ABatchMayChangeBothRoots) {
    putMachine("[HKEY_LOCAL_MACHINE\\S]\n");
    Batch batch(m_registry);
    OpenKey key;
    EXPECT_TRUE(m_registry.RegCreateKey(Root::LocalMachine, "S\\T", key));
    set("U", "a", "1");
    batch.commit();
    EXPECT_NE(m_folder.content(m_folder.machineFile()).find("S\\T"), std::string::npos);
    EXPECT_EQ(stored("U", "a"), std::string("1\0", 2));
}

} // namespace
} // namespace registry
