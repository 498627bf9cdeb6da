// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/LogOns.h"

#include "platform/share/ThreadWaiter.h"

#include <QCoreApplication>

#include <gtest/gtest.h>

#include <future>

namespace app {
namespace {

using share::smb::Credentials;

class LogOnsTest : public testing::Test {
protected:
    std::string userOf(const std::string& server) { return m_logOns.source()(server).user; }
    void refuse(const std::string& server) { m_logOns.refusalHook()(server); }
    static void letEventsRun() { QCoreApplication::processEvents(); }

    std::string m_answer = "typed"; // empty: cancelled
    bool m_isToBeRemembered = false;
    std::string m_remembered;
    std::string m_forgotten;
    int m_asked = 0;
    int m_tried = 0;
    int m_wentOn = 0;
    std::string m_last;
    std::function<void()> m_onAsk = [] {};
    std::vector<std::function<void()>> m_later;
    bool m_isWaiting = false;
    LogOns m_logOns{{[](const std::string&) { return Credentials::of("filed", "x"); },
                     [this](const std::string&, const Credentials& last) -> std::optional<LogOns::Answer> {
                         ++m_asked;
                         m_last = last.user;
                         m_onAsk();
                         if (m_answer.empty())
                             return std::nullopt;
                         return LogOns::Answer{Credentials::of(m_answer, "y"), m_isToBeRemembered};
                     },
                     [this](const std::string& server, const Credentials& who, bool isToBeRemembered) {
                         (isToBeRemembered ? m_remembered : m_forgotten) = server + ": " + who.user;
                     },
                     [this](std::function<void()> work) {
                         if (m_isWaiting)
                             m_later.push_back(std::move(work));
                         else
                             work();
                     },
                     [this] { ++m_tried; }, [this] { ++m_wentOn; }}};
};

TEST_F(LogOnsTest, BeginWithTheCredentialsFile) {
    EXPECT_EQ(userOf("srv01"), "filed");
    EXPECT_EQ(m_asked, 0);
}

TEST_F(LogOnsTest, AskForAServerThatRefusesAndTryWhatWasTyped) {
    refuse("srv01");
    EXPECT_EQ(m_asked, 0) << "inside of the request";
    letEventsRun();
    EXPECT_EQ(m_asked, 1);
    EXPECT_EQ(m_last, "filed");
    EXPECT_EQ(m_tried, 1);
    EXPECT_EQ(m_wentOn, 1);
    EXPECT_EQ(userOf("SRV01"), "typed");
    EXPECT_EQ(userOf("srv02"), "filed");
}

TEST_F(LogOnsTest, TryNothingWhenTheQuestionIsCancelled) {
    m_answer.clear();
    refuse("srv01");
    letEventsRun();
    EXPECT_EQ(m_asked, 1);
    EXPECT_EQ(m_tried, 0);
    EXPECT_EQ(userOf("srv01"), "filed");
}

TEST_F(LogOnsTest, AskOneQuestionAboutAServerAtATime) {
    m_onAsk = [this] {
        refuse("srv01");
        letEventsRun();
    };
    refuse("SRV01");
    letEventsRun();
    EXPECT_EQ(m_asked, 1);
}

TEST_F(LogOnsTest, AskAgainForARefusedUserWhoWasTyped) {
    refuse("srv01");
    letEventsRun();
    refuse("srv01");
    letEventsRun();
    EXPECT_EQ(m_asked, 2);
    EXPECT_EQ(m_last, "typed");
}

TEST_F(LogOnsTest, RememberOnlyWhoIsToBeRemembered) {
    refuse("srv01");
    letEventsRun();
    EXPECT_EQ(m_remembered, "");
    EXPECT_EQ(m_forgotten, "srv01: typed");
    m_isToBeRemembered = true;
    refuse("srv02");
    letEventsRun();
    EXPECT_EQ(m_remembered, "srv02: typed");
}

TEST_F(LogOnsTest, AskNobodyAboutAServerThatRefusedNobody) {
    EXPECT_FALSE(m_logOns.askNow("srv01"));
    EXPECT_EQ(m_asked, 0);
}

TEST_F(LogOnsTest, AskAtOnceWhenSomebodyWantsTheServerAndNotAgainByThemselves) {
    refuse("srv01");
    EXPECT_TRUE(m_logOns.askNow("SRV01"));
    EXPECT_EQ(userOf("srv01"), "typed");
    letEventsRun();
    EXPECT_EQ(m_asked, 1);
    EXPECT_EQ(m_wentOn, 0) << "who asked goes on by himself";
    EXPECT_FALSE(m_logOns.askNow("srv01")) << "nobody refused the new one yet";
}

TEST_F(LogOnsTest, AskAgainAfterACancelledQuestionOnlyWhenSomebodyWantsTheServer) {
    m_answer.clear();
    refuse("srv01");
    letEventsRun();
    letEventsRun();
    EXPECT_EQ(m_asked, 1);
    m_answer = "typed";
    EXPECT_TRUE(m_logOns.askNow("srv01"));
    EXPECT_EQ(m_asked, 2);
}

TEST_F(LogOnsTest, ReachAServerAtOnceAndWithWhomItTakes) {
    int questions = 0;
    EXPECT_TRUE(m_logOns.reach("srv01", [&] {
        EXPECT_EQ(m_tried, ++questions);
        if (questions < 3)
            refuse("SRV01");
        return questions == 3;
    }));
    EXPECT_EQ(m_asked, 2);
}

TEST_F(LogOnsTest, ReachNoServerThatIsNotThereOrWhoseQuestionIsCancelled) {
    EXPECT_FALSE(m_logOns.reach("srv01", [] { return false; }));
    EXPECT_EQ(m_asked, 0);
    m_answer.clear();
    EXPECT_FALSE(m_logOns.reach("srv01", [this] {
        refuse("srv01");
        return false;
    }));
    EXPECT_EQ(m_asked, 1);
}

// A thread that was refused and waits for the person at the desk, who answers as `m_answer` says.
class LogOnsThreadTest : public LogOnsTest {
protected:
    bool isAnswered() {
        const int before = m_logOns.desk()->answers("srv01");
        refuse("srv01");
        auto waited =
            std::async(std::launch::async, [this] { m_logOns.desk()->waitForAnswer("SRV01", m_waiter); });
        if (m_isPatient)
            letEventsRun();
        else
            m_waiter.cancel();
        waited.get();
        return m_logOns.desk()->answers("Srv01") != before;
    }

    bool m_isPatient = true;
    share::ThreadWaiter m_waiter;
};

TEST_F(LogOnsThreadTest, TellWaitingThreadsOfTheAnswer) {
    EXPECT_TRUE(isAnswered());
    EXPECT_EQ(userOf("srv01"), "typed");
}

TEST_F(LogOnsThreadTest, TellWaitingThreadsOfACancelledQuestion) {
    m_answer.clear();
    EXPECT_FALSE(isAnswered());
}

TEST_F(LogOnsThreadTest, KeepNoThreadThatEnds) {
    m_isPatient = false;
    EXPECT_FALSE(isAnswered());
}

TEST_F(LogOnsThreadTest, LetNobodyWaitWithoutAQuestion) {
    m_logOns.desk()->waitForAnswer("srv01", m_waiter);
    EXPECT_EQ(m_logOns.desk()->answers("srv01"), 0);
}

TEST(LogOns, AreAskedByThreadsThatOutlastThem) {
    std::function<void(const std::string&)> refused;
    share::smb::CredentialSource source;
    {
        const LogOns logOns(
            {[](const std::string&) { return Credentials::of("filed", "x"); }, {}, {}, {}, {}, {}});
        refused = logOns.refusalHook();
        source = logOns.source();
    }
    refused("srv01");
    QCoreApplication::processEvents();
    EXPECT_EQ(source("srv01").user, "filed");
}

TEST_F(LogOnsTest, AskAfterTheWaitForTheServer) {
    m_isWaiting = true;
    refuse("srv01");
    letEventsRun();
    EXPECT_EQ(m_asked, 0);
    ASSERT_EQ(m_later.size(), 1U);
    m_later[0]();
    EXPECT_EQ(m_asked, 1);
}

} // namespace
} // namespace app
