// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/LogOns.h"

#include <QCoreApplication>

#include <gtest/gtest.h>

namespace app {
namespace {

using share::smb::Credentials;

class LogOnsTest : public testing::Test {
protected:
    std::string userOf(const std::string& server) { return m_logOns.source()(server).user; }
    static void letEventsRun() { QCoreApplication::processEvents(); }

    std::string m_answer = "typed"; // empty: cancelled
    int m_asked = 0;
    int m_tried = 0;
    std::string m_last;
    std::function<void()> m_onAsk = [] {};
    std::vector<std::function<void()>> m_later;
    bool m_isWaiting = false;
    LogOns m_logOns{{[](const std::string&) { return Credentials::of("filed", "x"); },
                     [this](const std::string&, const Credentials& last) -> std::optional<Credentials> {
                         ++m_asked;
                         m_last = last.user;
                         m_onAsk();
                         if (m_answer.empty())
                             return std::nullopt;
                         return Credentials::of(m_answer, "y");
                     },
                     [this](std::function<void()> work) {
                         if (m_isWaiting)
                             m_later.push_back(std::move(work));
                         else
                             work();
                     },
                     [this] { ++m_tried; }}};
};

TEST_F(LogOnsTest, BeginWithTheCredentialsFile) {
    EXPECT_EQ(userOf("srv01"), "filed");
    EXPECT_EQ(m_asked, 0);
}

TEST_F(LogOnsTest, AskForAServerThatRefusesAndTryWhatWasTyped) {
    m_logOns.refused("srv01");
    EXPECT_EQ(m_asked, 0) << "inside of the request";
    letEventsRun();
    EXPECT_EQ(m_asked, 1);
    EXPECT_EQ(m_last, "filed");
    EXPECT_EQ(m_tried, 1);
    EXPECT_EQ(userOf("SRV01"), "typed");
    EXPECT_EQ(userOf("srv02"), "filed");
}

TEST_F(LogOnsTest, TryNothingWhenTheQuestionIsCancelled) {
    m_answer.clear();
    m_logOns.refused("srv01");
    letEventsRun();
    EXPECT_EQ(m_asked, 1);
    EXPECT_EQ(m_tried, 0);
    EXPECT_EQ(userOf("srv01"), "filed");
}

TEST_F(LogOnsTest, AskOneQuestionAboutAServerAtATime) {
    m_onAsk = [this] {
        m_logOns.refused("srv01");
        letEventsRun();
    };
    m_logOns.refused("SRV01");
    letEventsRun();
    EXPECT_EQ(m_asked, 1);
}

TEST_F(LogOnsTest, AskAgainForARefusedUserWhoWasTyped) {
    m_logOns.refused("srv01");
    letEventsRun();
    m_logOns.refused("srv01");
    letEventsRun();
    EXPECT_EQ(m_asked, 2);
    EXPECT_EQ(m_last, "typed");
}

TEST_F(LogOnsTest, AskAfterTheWaitForTheServer) {
    m_isWaiting = true;
    m_logOns.refused("srv01");
    letEventsRun();
    EXPECT_EQ(m_asked, 0);
    ASSERT_EQ(m_later.size(), 1U);
    m_later[0]();
    EXPECT_EQ(m_asked, 1);
}

} // namespace
} // namespace app
