// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/DeleteAll.h"

#include "platform/basic/RuntimeError.h"
#include "platform/forms/TabStrip.h"
#include "platform/share/LocalFile.h"
#include "tests/app/MainWorld.h"
#include "tests/platform/share/DenyingFileSystem.h"

#include <sys/stat.h>

#include <filesystem>

namespace app {
namespace {

class DeleteAllTest : public MainWorld {
protected:
    // Two mailboxes with three calls each, the first one's tab selected.
    void loadTwoMailboxes() {
        configure({12, 15});
        mailbox(12).append(3);
        mailbox(15).append(3);
        load();
    }

    void run() { run(common); }
    void run(data::basCommon& connections) {
        errors::Procedure proc{reporter, "frmMain", "ab_ToolClick"};
        DeleteAll({connections, files, messageBoxes, tabStrip(), window->state(), *window,
                   [this] {
                       ++stops;
                       if (onStop)
                           onStop();
                   },
                   [this](std::int32_t milliseconds) {
                       pauses.push_back(milliseconds);
                       if (onPause)
                           onPause();
                   }})(proc);
    }

    static void post(std::function<void()> work) {
        QMetaObject::invokeMethod(qApp, std::move(work), Qt::QueuedConnection);
    }
    std::size_t callsIn(int id) {
        const auto connection = common.GetMBXCon(id, *window->state().config);
        return static_cast<std::size_t>(
            std::get<std::int32_t>(connection->Execute("SELECT COUNT(*) FROM CallLog")->Field(0)));
    }
    std::string place(int id, const std::string& name) {
        return folder.path("share/MBX/" + std::to_string(id) + "/" + name);
    }
    // Somebody who is in the mailbox's database until the answer is destroyed.
    std::unique_ptr<share::File> somebodyIn(int id) {
        auto file = share::LocalFile::open(place(id, "qmLog.ldb"), share::OpenMode::Create);
        EXPECT_TRUE(file->lock(0x10000001, 1, share::LockKind::Exclusive));
        return file;
    }

    data::PreparedAnswers reporter;
    int stops = 0;
    std::function<void()> onStop;
    std::function<void()> onPause;
    std::vector<std::int32_t> pauses;
};

TEST_F(DeleteAllTest, NoMailboxConfiguredShowsNoQuestion) {
    configure({});
    load();
    run();
    EXPECT_TRUE(messageBoxes.boxes.empty());
    EXPECT_TRUE(pauses.empty());
}

TEST_F(DeleteAllTest, AsksWithItsTextsAndOkIsNotTheDefault) {
    loadTwoMailboxes();
    messageBoxes.answer = forms::MessageBoxResult::Cancel;
    run();
    ASSERT_EQ(messageBoxes.boxes.size(), 1U);
    EXPECT_EQ(messageBoxes.boxes[0],
              (data::RecordedBoxes::Box{"Are you sure you want to delete all of your messages?",
                                        forms::kOkCancel | forms::kQuestion | forms::kDefaultButton2,
                                        "Delete All Items"}));
}

TEST_F(DeleteAllTest, CancelChangesNothing) {
    loadTwoMailboxes();
    const std::string message = makeSound(12, "C1.wav");
    messageBoxes.answer = forms::MessageBoxResult::Cancel;
    run();
    EXPECT_EQ(callsIn(12), 3U);
    EXPECT_TRUE(std::filesystem::exists(message));
    EXPECT_EQ(stops, 0);
    EXPECT_TRUE(pauses.empty());
}

TEST_F(DeleteAllTest, EmptiesTheSelectedMailboxAndDeletesItsMessages) {
    loadTwoMailboxes();
    const std::string message = makeSound(12, "C1.wav");
    const std::string loud = makeSound(12, "C2.WAV");
    const std::string note = makeSound(12, "C1.wav.txt");
    const std::string other = makeSound(15, "C1.wav");
    run();
    EXPECT_EQ(callsIn(12), 0U);
    EXPECT_EQ(callsIn(15), 3U);
    EXPECT_FALSE(std::filesystem::exists(message));
    EXPECT_FALSE(std::filesystem::exists(loud));
    EXPECT_TRUE(std::filesystem::exists(note));
    EXPECT_TRUE(std::filesystem::exists(other));
    EXPECT_TRUE(std::filesystem::exists(place(12, "qmLog.mdb")));
    EXPECT_TRUE(reporter.reports.empty());
}

TEST_F(DeleteAllTest, SingleMailboxKeepsItsMessageFiles) {
    configure({12});
    mailbox(12).append(3);
    load();
    const std::string message = makeSound(12, "C1.wav");
    run();
    EXPECT_EQ(callsIn(12), 0U);
    EXPECT_TRUE(std::filesystem::exists(message));
}

TEST_F(DeleteAllTest, WithoutASelectedTabTheFirstMailboxIsEmptiedAndKeepsItsMessageFiles) {
    loadTwoMailboxes();
    const std::string message = makeSound(12, "C1.wav");
    const std::string other = makeSound(15, "C1.wav");
    tabStrip().SetSelectedItem(0);
    run();
    EXPECT_EQ(callsIn(12), 0U);
    EXPECT_EQ(callsIn(15), 3U);
    EXPECT_TRUE(std::filesystem::exists(message));
    EXPECT_TRUE(std::filesystem::exists(other));
    EXPECT_TRUE(reporter.reports.empty());
}

TEST_F(DeleteAllTest, RowsGoEvenWhenAMessageFileCannotAndNothingIsReported) {
    loadTwoMailboxes();
    const std::string kept = makeSound(12, "C1.wav");
    const std::string other = makeSound(12, "C2.wav");
    ASSERT_EQ(::chmod(kept.c_str(), 0444), 0);
    run();
    EXPECT_EQ(callsIn(12), 0U);
    EXPECT_TRUE(std::filesystem::exists(kept));
    EXPECT_FALSE(std::filesystem::exists(other));
    EXPECT_TRUE(reporter.reports.empty());
}

TEST_F(DeleteAllTest, NoMessageFileAtAllIsNotReported) {
    loadTwoMailboxes();
    run();
    EXPECT_EQ(callsIn(12), 0U);
    EXPECT_TRUE(reporter.reports.empty());
}

TEST_F(DeleteAllTest, StopsTheMessageThatPlaysBeforeAnythingGoes) {
    loadTwoMailboxes();
    const std::string message = makeSound(12, "C1.wav");
    onStop = [&] {
        EXPECT_EQ(callsIn(12), 3U);
        EXPECT_TRUE(std::filesystem::exists(message));
    };
    run();
    EXPECT_EQ(stops, 1);
}

TEST_F(DeleteAllTest, PausesThenReloadsTheList) {
    loadTwoMailboxes();
    ASSERT_EQ(column(0).size(), 3U);
    run();
    EXPECT_EQ(pauses, std::vector<std::int32_t>{500});
    EXPECT_TRUE(column(0).empty());
}

TEST_F(DeleteAllTest, PendingEventsRunBeforeThePauseAndBetweenItAndTheReload) {
    loadTwoMailboxes();
    bool hasRunBefore = false;
    std::optional<std::size_t> listedAfter;
    onStop = [&] { post([&] { hasRunBefore = true; }); };
    onPause = [&] {
        EXPECT_TRUE(hasRunBefore);
        post([&] { listedAfter = column(0).size(); });
    };
    run();
    EXPECT_EQ(listedAfter, 3U);
    EXPECT_TRUE(column(0).empty());
}

TEST_F(DeleteAllTest, SomebodyInTheDatabaseIsReportedAndIgnoringKeepsTheMessages) {
    loadTwoMailboxes();
    const std::string message = makeSound(12, "C1.wav");
    const auto other = somebodyIn(12);
    reporter.answers = {errors::ErrorAction::Ignore};
    run();
    ASSERT_EQ(reporter.reports.size(), 1U);
    EXPECT_EQ(reporter.reports[0].module, "frmMain");
    EXPECT_EQ(reporter.reports[0].procedure, "ab_ToolClick");
    EXPECT_EQ(reporter.reports[0].number, basic::kProviderFailure);
    EXPECT_EQ(callsIn(12), 3U);
    EXPECT_TRUE(std::filesystem::exists(message));
    EXPECT_EQ(pauses.size(), 1U) << "the command goes on with its next step";
}

TEST_F(DeleteAllTest, TryAgainCarriesTheCommitOut) {
    loadTwoMailboxes();
    const std::string message = makeSound(12, "C1.wav");
    auto other = somebodyIn(12);
    reporter.answers = {errors::ErrorAction::Retry};
    reporter.onReport = [&] { other.reset(); };
    run();
    EXPECT_EQ(reporter.reports.size(), 1U);
    EXPECT_EQ(callsIn(12), 0U);
    EXPECT_FALSE(std::filesystem::exists(message));
}

TEST_F(DeleteAllTest, AbortEndsTheCommand) {
    loadTwoMailboxes();
    const auto other = somebodyIn(12);
    reporter.answers = {errors::ErrorAction::Abort};
    run();
    EXPECT_EQ(callsIn(12), 3U);
    EXPECT_TRUE(pauses.empty());
}

// Another client that deletes, for example: the server keeps everybody else out meanwhile.
TEST_F(DeleteAllTest, SomebodyWhoHasTheDatabaseAloneForAMomentIsWaitedFor) {
    loadTwoMailboxes();
    share::testing::DenyingFileSystem server(files);
    int waits = 0;
    jet::Engine patient(server, [](int) {}, {.sleep = [&](std::chrono::milliseconds) { ++waits; }});
    data::basCommon connections(reporter, server, [&] { return std::make_shared<jet::Connection>(patient); });
    server.readRefusals = 20;
    server.exclusiveRefusals = 20;
    run(connections);
    EXPECT_TRUE(reporter.reports.empty());
    EXPECT_EQ(waits, 39);
    EXPECT_EQ(callsIn(12), 0U);
}

TEST_F(DeleteAllTest, MailboxWithoutDatabaseIsError91) {
    loadTwoMailboxes();
    const std::string message = makeSound(12, "C1.wav");
    std::filesystem::remove(place(12, "qmLog.mdb"));
    reporter.answers = {errors::ErrorAction::Ignore};
    run();
    ASSERT_EQ(reporter.reports.size(), 1U);
    EXPECT_EQ(reporter.reports[0].number, basic::kObjectNotSet);
    EXPECT_TRUE(std::filesystem::exists(message));
}

TEST_F(DeleteAllTest, MailboxThatBecameCurrentDuringTheQuestionIsNotTouched) {
    loadTwoMailboxes();
    const std::string message = makeSound(15, "C1.wav");
    messageBoxes.onShow = [&] { tabStrip().SetSelectedItem(2); };
    run();
    EXPECT_EQ(callsIn(12), 3U);
    EXPECT_EQ(callsIn(15), 3U);
    EXPECT_TRUE(std::filesystem::exists(message));
}

TEST_F(DeleteAllTest, ToolRunsTheCommand) {
    loadTwoMailboxes();
    window->ab_ToolClick("miEClear");
    EXPECT_EQ(messageBoxes.boxes.size(), 1U);
    EXPECT_EQ(callsIn(12), 0U);
    EXPECT_TRUE(errorHandler.reports.empty());
}

} // namespace
} // namespace app
