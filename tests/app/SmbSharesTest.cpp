// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/SmbShares.h"

#include "app/SmbComputers.h"
#include "tests/platform/share/smb/SambaServer.h"

#include <QTest>

#include <gtest/gtest.h>

#include <optional>

namespace app {
namespace {

using share::testing::SambaServer;

// The first answer starts programs of the server's own.
constexpr int kPatienceMilliseconds = 60'000;

class SmbSharesTest : public testing::Test {
protected:
    SmbSharesTest() {
        m_shares.emplace(share::smb::SmbServer::Surroundings{.program = share::smb::helperProgram(),
                                                             .spread = [] { return 0.0; },
                                                             .credentials =
                                                                 [this](const std::string&) {
                                                                     return share::smb::Credentials::of(
                                                                         SambaServer::kUser, m_password);
                                                                 }},
                         [this](std::string_view) {
                             return share::smb::ServerAddress{"127.0.0.1", m_samba.port()};
                         });
        QObject::connect(&*m_shares, &SmbShares::listed, &*m_shares,
                         [this](const QString& computer, const QStringList& shares) {
                             m_answers.append(computer + u": "_qs + shares.join(u", "_qs));
                         });
        QObject::connect(&*m_shares, &SmbShares::failed, &*m_shares,
                         [this](const QString& computer) { m_answers.append(computer + u" failed"_qs); });
    }
    bool waitFor(qsizetype answers) {
        return QTest::qWaitFor([&] { return m_answers.size() >= answers; }, kPatienceMilliseconds);
    }

    SambaServer m_samba{{.ofShare = "[public]\npath = /tmp\n"}};
    std::string m_password = "secret";
    std::optional<SmbShares> m_shares;
    QStringList m_answers;
};

TEST_F(SmbSharesTest, ListsWhatAServerOffersAndHidesTheRest) {
    m_shares->list(u"srv01"_qs);
    ASSERT_TRUE(waitFor(1));
    EXPECT_EQ(m_answers[0], u"srv01: public"_qs);
}

TEST_F(SmbSharesTest, SaysSoWhereTheServerDoesNotTellAndAnswersTheNextOne) {
    m_password = "wrong";
    m_shares->list(u"srv01"_qs);
    ASSERT_TRUE(waitFor(1));
    EXPECT_EQ(m_answers[0], u"srv01 failed"_qs);
    m_password = "secret";
    m_shares->list(u"srv02"_qs);
    ASSERT_TRUE(waitFor(2));
    EXPECT_EQ(m_answers[1], u"srv02: public"_qs);
}

TEST_F(SmbSharesTest, EndsWhileAServerHangs) {
    m_samba.pause();
    m_shares->list(u"srv01"_qs);
    m_shares->list(u"srv02"_qs);
    m_shares.reset();
    m_samba.resume();
    EXPECT_TRUE(m_answers.isEmpty());
}

TEST(SmbComputers, TellsTheEndOfTheSearchWhereNothingCanBeAsked) {
    SmbComputers computers("/nonexistent");
    bool isSearched = false;
    QObject::connect(&computers, &shell::ComputerSource::searched, &computers, [&] { isSearched = true; });
    computers.start();
    EXPECT_TRUE(QTest::qWaitFor([&] { return isSearched; }, kPatienceMilliseconds));
}

TEST(SmbComputers, EndsInTheMiddleOfASearch) {
    SmbComputers computers(share::smb::helperProgram());
    computers.start();
}

} // namespace
} // namespace app
