// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/shell/AvahiComputers.h"

#include "tests/platform/shell/PrivateBus.h"
#include "tests/platform/shell/StubAvahi.h"

#include <QTest>

#include <gmock/gmock.h>

#include <optional>

namespace shell {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::Pair;

class AvahiComputersTest : public ::testing::Test {
protected:
    void search(const QDBusConnection& bus) {
        m_source.emplace(bus);
        QObject::connect(&*m_source, &ComputerSource::found, &*m_source,
                         [this](const QString& name, const QString& remark) {
                             m_found.emplace_back(name.toStdString(), remark.toStdString());
                         });
        QObject::connect(&*m_source, &ComputerSource::searched, &*m_source, [this] { ++m_searched; });
        m_source->start();
    }
    void searchToTheEnd() {
        search(m_bus.connection());
        ASSERT_TRUE(QTest::qWaitFor([this] { return m_searched > 0; }));
    }

    PrivateBus m_bus;
    std::optional<AvahiComputers> m_source;
    std::vector<std::pair<std::string, std::string>> m_found;
    int m_searched = 0;
};

TEST_F(AvahiComputersTest, NamesAnnouncedServersByTheirHosts) {
    StubAvahi avahi(m_bus.connection());
    avahi.hosts = {{u"File server"_qs, u"files.local"_qs}};
    avahi.afterReply = [&] {
        avahi.announce(u"File server"_qs);
        avahi.tellAllForNow();
    };
    searchToTheEnd();
    EXPECT_THAT(m_found, ElementsAre(Pair("files.local", "File server")));
    EXPECT_EQ(avahi.browsed[2].toString(), u"_smb._tcp"_qs);
}

TEST_F(AvahiComputersTest, MissesNothingThatIsToldBeforeTheBrowserHasItsName) {
    StubAvahi avahi(m_bus.connection());
    avahi.hosts = {{u"nas"_qs, u"nas.local"_qs}};
    avahi.beforeReply = [&] {
        avahi.announce(u"nas"_qs);
        avahi.tellAllForNow();
    };
    searchToTheEnd();
    EXPECT_THAT(m_found, ElementsAre(Pair("nas.local", "nas")));
}

TEST_F(AvahiComputersTest, PassesOverWhatOtherProgramsBrowseFor) {
    StubAvahi avahi(m_bus.connection());
    avahi.hosts = {{u"printer"_qs, u"printer.local"_qs}, {u"nas"_qs, u"nas.local"_qs}};
    const auto announceBoth = [&] {
        avahi.announce(u"printer"_qs, u"/Client7/ServiceBrowser1"_qs);
        avahi.announce(u"nas"_qs);
    };
    avahi.beforeReply = announceBoth;
    avahi.afterReply = [&] {
        announceBoth();
        avahi.tellAllForNow();
    };
    searchToTheEnd();
    EXPECT_THAT(m_found, ElementsAre(Pair("nas.local", "nas"), Pair("nas.local", "nas")));
}

TEST_F(AvahiComputersTest, FindsServersThatAppearAfterTheSearch) {
    StubAvahi avahi(m_bus.connection());
    avahi.hosts = {{u"nas"_qs, u"nas.local"_qs}};
    avahi.afterReply = [&] { avahi.tellAllForNow(); };
    searchToTheEnd();
    EXPECT_THAT(m_found, IsEmpty());
    avahi.announce(u"nas"_qs);
    EXPECT_TRUE(QTest::qWaitFor([this] { return m_found.size() == 1; }));
    EXPECT_EQ(m_searched, 1);
}

TEST_F(AvahiComputersTest, PassesOverAServerThatCannotBeResolved) {
    StubAvahi avahi(m_bus.connection());
    avahi.afterReply = [&] {
        avahi.announce(u"ghost"_qs);
        avahi.tellAllForNow();
    };
    searchToTheEnd();
    EXPECT_THAT(m_found, IsEmpty());
}

TEST_F(AvahiComputersTest, EndsTheSearchWhenTheDaemonGivesUp) {
    StubAvahi avahi(m_bus.connection());
    avahi.afterReply = [&] { avahi.fail(); };
    searchToTheEnd();
}

TEST_F(AvahiComputersTest, EndsTheSearchWhenTheDaemonEnds) {
    StubAvahi avahi(m_bus.connection());
    avahi.afterReply = [&] { avahi.leave(); };
    searchToTheEnd();
}

TEST_F(AvahiComputersTest, FindsNothingWithoutADaemon) {
    searchToTheEnd();
    EXPECT_THAT(m_found, IsEmpty());
}

TEST_F(AvahiComputersTest, FindsNothingWithoutABus) {
    search(QDBusConnection(u"no such bus"_qs));
    EXPECT_TRUE(QTest::qWaitFor([this] { return m_searched > 0; }));
    EXPECT_THAT(m_found, IsEmpty());
}

TEST_F(AvahiComputersTest, GivesItsBrowserBack) {
    StubAvahi avahi(m_bus.connection());
    avahi.afterReply = [&] { avahi.tellAllForNow(); };
    searchToTheEnd();
    m_source.reset();
    EXPECT_TRUE(QTest::qWaitFor([&] { return avahi.freed == 1; }));
}

} // namespace
} // namespace shell
