// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "dialogs/MailboxSearch.h"

#include "tests/dialogs/OptionsWorld.h"

#include <QTest>

#include <gmock/gmock.h>

#include <atomic>
#include <future>

namespace dialogs {
namespace {

constexpr const char* kShare = "\\\\srv01\\Quillamar_0$";

class MailboxSearchTest : public testing::Test, protected OptionsWorld {
protected:
    ~MailboxSearchTest() override { answer(); }
    // The share hangs until answer(), or until its waits are ended.
    void hang() {
        beforeEachQuestion = [answers = answers] { answers.wait(); };
    }
    void answer() {
        if (!std::exchange(isAnswered, true))
            answered.set_value();
    }
    MailboxSearch::Listener listener() {
        return {[this](int read, int total) { progress.emplace_back(read, total); },
                [this](const FoundMailboxes& found) { results.push_back(found.mailboxes.size()); }};
    }
    bool isDone() {
        return QTest::qWaitFor([this] { return !search.isSearching(); });
    }

    std::promise<void> answered;
    std::shared_future<void> answers = answered.get_future().share();
    bool isAnswered = false;
    std::vector<std::pair<int, int>> progress;
    std::vector<std::size_t> results;
};

TEST_F(MailboxSearchTest, TellsItsResultOnce) {
    mailbox("12");
    search.begin(kShare, listener());
    ASSERT_TRUE(isDone());
    EXPECT_THAT(results, testing::ElementsAre(1U));
}

TEST_F(MailboxSearchTest, KeepsItsResultUntilTheListenerIsReady) {
    mailbox("12");
    bool isReady = false;
    MailboxSearch::Listener patient = listener();
    patient.isReady = [&isReady] { return isReady; };
    search.begin(kShare, patient);
    const auto isAllRead = [this] { return !progress.empty() && progress.back() == std::pair(1, 1); };
    ASSERT_TRUE(QTest::qWaitFor(isAllRead));
    EXPECT_THAT(results, testing::IsEmpty());
    isReady = true;
    ASSERT_TRUE(isDone());
    EXPECT_THAT(results, testing::ElementsAre(1U));
}

TEST_F(MailboxSearchTest, AThousandMailboxesAreFoundWhileEventsRun) {
    mailbox("1");
    for (int number = 2; number <= 1000; ++number) {
        folder.makeFolder("share/MBX/" + std::to_string(number));
        std::filesystem::create_hard_link(mailboxFile("1").path(),
                                          mailboxFile(std::to_string(number)).path());
    }
    std::atomic<int> asked = 0;
    beforeEachQuestion = [this, &asked] {
        if (++asked == 100)
            answers.wait();
    };
    search.begin(kShare, listener());
    EXPECT_THAT(results, testing::IsEmpty());
    ASSERT_TRUE(QTest::qWaitFor([this] { return !progress.empty() && progress.back().first > 0; }));
    EXPECT_EQ(progress.back().second, 1000);
    answer();
    ASSERT_TRUE(QTest::qWaitFor([this] { return !search.isSearching(); }, 60'000));
    EXPECT_THAT(results, testing::ElementsAre(1000U));
}

TEST_F(MailboxSearchTest, NobodyHearsOfASearchThatWasCancelled) {
    mailbox("12");
    hang();
    search.begin(kShare, listener());
    search.cancel();
    beforeEachQuestion = [] {};
    answer();
    search.begin(kShare, listener());
    ASSERT_TRUE(isDone());
    EXPECT_THAT(results, testing::ElementsAre(1U));
}

TEST_F(MailboxSearchTest, ANewSearchTakesThePlaceOfTheOneBefore) {
    mailbox("12");
    hang();
    search.begin(kShare, listener());
    beforeEachQuestion = [] {};
    search.begin(kShare, listener());
    ASSERT_TRUE(isDone());
    EXPECT_THAT(results, testing::ElementsAre(1U));
    answer();
}

TEST_F(MailboxSearchTest, AtTheEndTheWaitsForAServerAreEndedAndItsThreadIsJoined) {
    mailbox("12");
    hang();
    endWaits = [this] { answer(); };
    {
        MailboxSearch ending([this](const std::string&) { return openShare(); });
        ending.begin(kShare, listener());
    }
    EXPECT_TRUE(isAnswered);
    EXPECT_THAT(results, testing::IsEmpty());
}

TEST_F(MailboxSearchTest, AFolderThatHangsKeepsNobodyFromEnding) {
    mailbox("12");
    hang();
    {
        MailboxSearch ending([this](const std::string&) { return openShare(); });
        ending.begin(kShare, listener());
    }
    EXPECT_FALSE(isAnswered);
}

TEST_F(MailboxSearchTest, NoSearchBeginsAfterTheEnd) {
    mailbox("12");
    search.end();
    search.begin(kShare, listener());
    EXPECT_FALSE(search.isSearching());
    EXPECT_THAT(results, testing::IsEmpty());
}

} // namespace
} // namespace dialogs
