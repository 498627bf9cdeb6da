// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "dialogs/MailboxReading.h"

#include "tests/dialogs/OptionsWorld.h"

#include <gmock/gmock.h>

namespace dialogs {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::Pair;

class MailboxReadingTest : public testing::Test, protected OptionsWorld {
protected:
    FoundMailboxes read(const std::string& qmPath = "\\\\srv01\\Quillamar_0$") {
        WatchedFolder watched(resolver(), beforeEachQuestion);
        MailboxReading reading(watched, {[this] { return isCancelled; },
                                         [this](int done, int total) {
                                             progress.emplace_back(done, total);
                                             if (onProgress)
                                                 onProgress(done);
                                         },
                                         [this](std::chrono::milliseconds) {
                                             ++sleeps;
                                             if (onSleep)
                                                 onSleep();
                                         }});
        return reading.read(qmPath);
    }
    static std::vector<std::int32_t> numbers(const FoundMailboxes& found) {
        std::vector<std::int32_t> numbers;
        for (const FoundMailbox& mailbox : found.mailboxes)
            numbers.push_back(mailbox.number);
        return numbers;
    }
    void takeShareAway() const { std::filesystem::rename(folder.path("share"), folder.path("away")); }
    void bringShareBack() const { std::filesystem::rename(folder.path("away"), folder.path("share")); }

    bool isCancelled = false;
    std::vector<std::pair<int, int>> progress;
    std::function<void(int)> onProgress;
    std::function<void()> onSleep;
    int sleeps = 0;
};

TEST_F(MailboxReadingTest, TellsHowFarItHasCome) {
    mailbox("12");
    mailbox("7");
    EXPECT_THAT(numbers(read()), ElementsAre(7, 12));
    EXPECT_THAT(progress, ElementsAre(Pair(0, 2), Pair(1, 2)));
}

TEST_F(MailboxReadingTest, ANullDescriptionIsEmpty) {
    mailboxFile("7").create();
    mailboxFile("7").describe("Sales", std::nullopt);
    const FoundMailboxes found = read();
    ASSERT_EQ(found.mailboxes.size(), 1U);
    EXPECT_EQ(found.mailboxes[0].info, (MailboxInfo{"Sales", ""}));
}

TEST_F(MailboxReadingTest, ANameThatIsNoPathIsAServerWithoutMailboxes) {
    const FoundMailboxes found = read("\\\\\\Quillamar_0$");
    EXPECT_THAT(found.mailboxes, IsEmpty());
    EXPECT_FALSE(found.failure.has_value());
}

TEST_F(MailboxReadingTest, AFolderThatCannotBeListedIsAFailure) {
    int asked = 0;
    beforeEachQuestion = [&] { // every second one is for the list
        if (++asked % 2 == 0)
            throw basic::RuntimeError(basic::kPermissionDenied);
    };
    const FoundMailboxes found = read();
    ASSERT_TRUE(found.failure.has_value());
    EXPECT_EQ(found.failure->number(), basic::kPermissionDenied);
}

TEST_F(MailboxReadingTest, EndsBeforeTheNextMailboxWhenItIsCancelled) {
    mailbox("7");
    mailbox("12");
    onProgress = [this](int) { isCancelled = true; };
    EXPECT_THAT(numbers(read()), ElementsAre(7));
}

TEST_F(MailboxReadingTest, AServerThatGoesAwayBeforeItListsTheFoldersIsWaitedFor) {
    mailbox("7");
    int asked = 0;
    beforeEachQuestion = [&] {
        if (++asked != 2)
            return;
        takeShareAway();
        throw basic::RuntimeError(basic::kPathNotFound);
    };
    onSleep = [this] {
        if (sleeps == 3)
            bringShareBack();
    };
    EXPECT_THAT(numbers(read()), ElementsAre(7));
    EXPECT_EQ(sleeps, 3);
}

TEST_F(MailboxReadingTest, AServerThatGoesAwayIsWaitedFor) {
    mailbox("7");
    mailbox("12");
    mailbox("15");
    onProgress = [this](int done) {
        if (done == 1)
            takeShareAway();
    };
    onSleep = [this] {
        if (sleeps == 3)
            bringShareBack();
    };
    EXPECT_THAT(numbers(read()), ElementsAre(7, 12, 15));
    EXPECT_EQ(sleeps, 3);
}

TEST_F(MailboxReadingTest, AServerThatStaysAwayIsWaitedForOnce) {
    for (const char* name : {"7", "12", "15"})
        mailbox(name);
    onProgress = [this](int done) {
        if (done == 1)
            takeShareAway();
    };
    EXPECT_THAT(numbers(read()), ElementsAre(7));
    EXPECT_EQ(sleeps, MailboxReading::kLooks);
}

TEST_F(MailboxReadingTest, ThereIsNoWaitingForAServerOnceItIsCancelled) {
    mailbox("7");
    onProgress = [this](int) { takeShareAway(); };
    onSleep = [this] { isCancelled = true; };
    EXPECT_THAT(numbers(read()), IsEmpty());
    EXPECT_EQ(sleeps, 1);
}

} // namespace
} // namespace dialogs
