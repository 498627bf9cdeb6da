// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/platform/jet/sql/AppendingServer.h"
#include "tests/platform/share/smb/SmbTest.h"

#include <gmock/gmock.h>

#include <iostream>

namespace jet::test {
namespace {

using share::testing::SambaServer;
using share::testing::SmbClient;
using ::testing::HasSubstr;

constexpr int kCalls = 30;
constexpr int kUsualRounds = 1000;
constexpr std::string_view kDelete = "DELETE FROM CallLog";

const std::string kDatabase = share::testing::onShare("MBX\\7\\qmLog.mdb");

class DeleteOverSmb : public ::testing::Test {
protected:
    DeleteOverSmb() { setBytes(callLogDatabase(kCalls)); }

    std::string place(const char* name = "qmLog.mdb") const {
        return m_samba.share().makeFolder("MBX/7") + "/" + name;
    }
    void setBytes(const FileImage& image) const {
        std::filesystem::remove(place());
        share::LocalFile::open(place(), share::OpenMode::Create)->write(0, image);
    }
    FileImage bytes() const {
        const auto file = share::LocalFile::open(place(), share::OpenMode::Read);
        FileImage image(file->size());
        file->read(0, image);
        return image;
    }
    std::unique_ptr<Connection> connect() {
        auto connection = std::make_unique<Connection>(m_engine);
        connection->Open("Provider=Microsoft.Jet.OLEDB.4.0;Data Source=" + kDatabase);
        return connection;
    }

    SambaServer m_samba;
    SmbClient m_client{m_samba.port()};
    Engine m_engine{m_client.files(), Engine::sleepBriefly, {.tries = 3}};
};

TEST_F(DeleteOverSmb, EmptiesTheTable) {
    const auto connection = connect();
    connection->BeginTrans();
    connection->Execute(kDelete);
    connection->CommitTrans();
    const auto file = share::LocalFile::open(place(), share::OpenMode::Read);
    EXPECT_TRUE(readRows(*file, kLog).empty());
    EXPECT_NO_THROW(checkDatabase(*file));
    EXPECT_FALSE(std::filesystem::exists(place("qmLog.ldb")));
    EXPECT_EQ(runTool("mdb-count '" + place() + "' CallLog"), "0\n");
}

TEST_F(DeleteOverSmb, SomebodyWhoHasTheFileOpenKeepsItWhole) {
    const FileImage before = bytes();
    const auto connection = connect();
    SmbClient other(m_samba.port());
    auto open = other.files().openFile(kDatabase, share::OpenMode::Read);
    {
        FileImage entry(64);
        std::ranges::copy(std::as_bytes(std::span("RECEPTION")), entry.begin());
        std::ranges::copy(std::as_bytes(std::span("operator")), entry.begin() + 32);
        share::LocalFile::open(place("qmLog.ldb"), share::OpenMode::Create)->write(0, entry);
    }
    try {
        connection->Execute(kDelete);
        FAIL();
    } catch (const basic::RuntimeError& error) {
        EXPECT_EQ(error.number(), basic::kProviderFailure);
        EXPECT_THAT(error.description(), HasSubstr("perhaps by operator on RECEPTION"));
    }
    EXPECT_EQ(bytes(), before);
    open.reset();
    connection->Execute(kDelete);
    EXPECT_NE(bytes(), before);
}

// Reads are refused as well then, so the delete is not even checked before the other one has left.
TEST_F(DeleteOverSmb, WaitsForSomebodyWhoHasTheFileAloneForHalfASecond) {
    SmbClient other(m_samba.port());
    auto alone = other.files().openFile(kDatabase, share::OpenMode::Exclusive);
    const auto leaving = std::chrono::steady_clock::now() + std::chrono::milliseconds(500);
    const auto leaveInTime = [&](std::chrono::milliseconds pause) {
        SharingWait::sleepFor(pause);
        if (std::chrono::steady_clock::now() >= leaving)
            alone.reset();
    };
    Engine engine(m_client.files(), Engine::sleepBriefly, {.sleep = leaveInTime});
    Connection connection(engine);
    connection.Open("Provider=Microsoft.Jet.OLEDB.4.0;Data Source=" + kDatabase, Purpose::Change);
    connection.BeginTrans();
    connection.Execute(kDelete);
    EXPECT_EQ(alone, nullptr) << "the other one was waited for";
    alone = other.files().openFile(kDatabase, share::OpenMode::Exclusive);
    connection.CommitTrans();
    EXPECT_EQ(runTool("mdb-count '" + place() + "' CallLog"), "0\n");
}

// The server's program and the client, each with a connection of its own to the same smbd.
TEST_F(DeleteOverSmb, LosesNoCallThatIsAppendedMeanwhile) {
    const int appended = roundsOr(kUsualRounds);
    setBytes(callLogDatabase(0));
    const AppendingServer server([&](const Allowance& allowance) {
        SmbClient client(m_samba.port());
        return appendCalls(client.files(), kDatabase, appended, allowance);
    });
    const WatchingClient watcher([&](const auto& goesOn) {
        SmbClient client(m_samba.port());
        return watchCalls(client.files(), kDatabase, goesOn);
    });
    Engine engine(m_client.files(), Engine::sleepBriefly, patience());
    const DeleteRounds rounds = deleteWhileAppending(engine, kDatabase, server, watcher);
    EXPECT_EQ(rounds.lastNumber, appended + 1) << "every call has had its number";
    EXPECT_GT(rounds.deletes, 0);
    EXPECT_NO_THROW(checkDatabase(*share::LocalFile::open(place(), share::OpenMode::Read)));
    std::cout << appended << " calls appended over SMB, " << rounds.deletes << " deletes, " << rounds.looks
              << " looks\n";
}

} // namespace
} // namespace jet::test
