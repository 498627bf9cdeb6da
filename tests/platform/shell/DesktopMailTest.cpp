// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/shell/DesktopMail.h"

#include "platform/basic/RuntimeError.h"
#include "tests/platform/share/TemporaryFolder.h"
#include "tests/platform/shell/MailReading.h"

#include <QElapsedTimer>
#include <QTest>

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <optional>
#include <sstream>

namespace shell {
namespace {

namespace fs = std::filesystem;
using testing::partsOf;

std::string contentOf(const fs::path& file) {
    std::ostringstream text;
    text << std::ifstream(file, std::ios::binary).rdbuf();
    return text.str();
}

// A machine whose only programs are those that a test puts there.
class DesktopMailTest : public ::testing::Test {
protected:
    DesktopMailTest() {
        fs::create_directory(bin());
        ::setenv("PATH", bin().c_str(), 1);
        ::setenv("XDG_RUNTIME_DIR", m_folder.path().c_str(), 1);
    }
    ~DesktopMailTest() override {
        ::setenv("PATH", m_path.c_str(), 1);
        m_runtime ? ::setenv("XDG_RUNTIME_DIR", m_runtime->c_str(), 1) : ::unsetenv("XDG_RUNTIME_DIR");
    }

    fs::path bin() const { return fs::path(m_folder.path()) / "bin"; }
    std::string recorded(const std::string& name) const {
        return contentOf(fs::path(m_folder.path()) / name);
    }
    std::vector<std::string> arguments(const std::string& program) const {
        std::vector<std::string> words;
        std::istringstream text(recorded(program + ".arguments"));
        for (std::string word; std::getline(text, word, '\0');)
            words.push_back(word);
        return words;
    }

    // Records its arguments and its input, then does the rest.
    void install(const std::string& name, const std::string& rest = "exit 0") const {
        const fs::path path = bin() / name;
        const std::string record = m_folder.path() + "/" + name;
        std::ofstream(path) << "#!/bin/sh\nexport PATH=/usr/bin:/bin\nprintf '%s\\0' \"$@\" > '" << record
                            << ".arguments'\ncat > '" << record << ".input'\n"
                            << rest << "\n";
        fs::permissions(path, fs::perms::owner_all);
    }

    MailItem::Done keep() {
        return [this](MailOutcome outcome) { m_outcome = outcome; };
    }
    std::unique_ptr<MailItem> item(const QString& body = QStringLiteral("Grüße\r\n100% & \"mehr\"\r\n")) {
        auto made = m_mail.CreateItem();
        made->To = QStringLiteral("support@corvantis.example");
        made->Subject = QStringLiteral("Fehler-Bericht: Größe & 100%");
        made->Body = body;
        return made;
    }
    std::optional<MailOutcome> outcome() {
        [[maybe_unused]] const bool came = QTest::qWaitFor([&] { return m_outcome.has_value(); }, 20000);
        return m_outcome;
    }

    share::testing::TemporaryFolder m_folder;
    std::string m_path = std::getenv("PATH");
    std::optional<std::string> m_runtime = std::getenv("XDG_RUNTIME_DIR")
                                               ? std::optional<std::string>(std::getenv("XDG_RUNTIME_DIR"))
                                               : std::nullopt;
    DesktopMail m_mail{QStringLiteral("The text is attached."), {}};
    std::optional<MailOutcome> m_outcome;
};

TEST_F(DesktopMailTest, WithoutAnyProgramThereIsNoItem) {
    try {
        m_mail.CreateItem();
        FAIL() << "an item";
    } catch (const basic::RuntimeError& error) {
        EXPECT_EQ(error.number(), 429);
    }
}

TEST_F(DesktopMailTest, AFileThatIsNoProgramCountsForNothing) {
    std::ofstream(bin() / "sendmail") << "not executable";
    fs::create_directory(bin() / "xdg-email");
    EXPECT_THROW(m_mail.CreateItem(), basic::RuntimeError);
}

TEST_F(DesktopMailTest, NothingIsStartedBeforeDisplayOrSend) {
    install("xdg-email");
    install("sendmail");
    item();
    EXPECT_FALSE(fs::exists(m_folder.path() + "/xdg-email.arguments"));
    EXPECT_FALSE(fs::exists(m_folder.path() + "/sendmail.arguments"));
}

TEST_F(DesktopMailTest, DisplayHandsSubjectAndBodyOverWhole) {
    install("xdg-email");
    item()->Display(keep());
    EXPECT_EQ(outcome(), MailOutcome::Displayed);
    ASSERT_EQ(arguments("xdg-email").size(), 1U);
    auto parts = partsOf(arguments("xdg-email")[0]);
    EXPECT_EQ(parts["address"], "support@corvantis.example");
    EXPECT_EQ(parts["subject"], "Fehler-Bericht: Größe & 100%");
    EXPECT_EQ(parts["body"], "Grüße\r\n100% & \"mehr\"\r\n");
}

TEST_F(DesktopMailTest, ALongBodyIsAttachedAndTheBodySaysSo) {
    install("xdg-email");
    const QString longBody = QStringLiteral("Zeile äöü\r\n").repeated(3000);
    item(longBody)->Display(keep());
    EXPECT_EQ(outcome(), MailOutcome::Displayed);
    const auto words = arguments("xdg-email");
    ASSERT_EQ(words.size(), 3U);
    EXPECT_EQ(words[0], "--attach");
    EXPECT_EQ(contentOf(words[1]), longBody.toStdString());
    EXPECT_TRUE(words[1].ends_with(".txt"));
    EXPECT_EQ(fs::status(words[1]).permissions(), fs::perms::owner_read | fs::perms::owner_write);
    auto parts = partsOf(words[2]);
    EXPECT_EQ(parts["subject"], "Fehler-Bericht: Größe & 100%");
    EXPECT_EQ(parts["body"], "The text is attached.");
}

TEST_F(DesktopMailTest, AttachesFromThirtyKilobytesOfArgumentOn) {
    install("xdg-email");
    item(QStringLiteral("x").repeated(30000))->Display(keep());
    EXPECT_EQ(outcome(), MailOutcome::Displayed);
    EXPECT_EQ(arguments("xdg-email").size(), 1U);
    m_outcome.reset();
    item(QStringLiteral("x").repeated(31000))->Display(keep());
    EXPECT_EQ(outcome(), MailOutcome::Displayed);
    EXPECT_EQ(arguments("xdg-email").size(), 3U);
}

// The desktop's own script in between: what arrives at the program that opens URIs.
TEST_F(DesktopMailTest, TheRealHandOverKeepsSubjectAndBodyWhole) {
    ASSERT_TRUE(fs::exists("/usr/bin/xdg-email")) << "package xdg-utils";
    install("xdg-open");
    ::setenv("PATH", (bin().string() + ":/usr/bin:/bin").c_str(), 1);
    for (const char* name : {"XDG_CURRENT_DESKTOP", "DESKTOP_SESSION", "KDE_FULL_SESSION",
                             "GNOME_DESKTOP_SESSION_ID", "MATE_DESKTOP_SESSION_ID", "MAILER"})
        ::unsetenv(name);
    const QString body = QStringLiteral("\\\\srv01\\new\\c\r\nGrüße %41 & \"mehr\" 'so', $HOME `x`\r\n");
    item(body)->Display(keep());
    EXPECT_EQ(outcome(), MailOutcome::Displayed);
    ASSERT_EQ(arguments("xdg-open").size(), 1U);
    auto parts = partsOf(arguments("xdg-open")[0]);
    EXPECT_EQ(parts["subject"], "Fehler-Bericht: Größe & 100%");
    EXPECT_EQ(parts["body"], body.toStdString());
}

TEST_F(DesktopMailTest, SendGivesAProperMessageToTheTransferProgram) {
    install("sendmail");
    item()->Send(keep());
    EXPECT_EQ(outcome(), MailOutcome::Sent);
    EXPECT_EQ(arguments("sendmail"), (std::vector<std::string>{"-i", "--", "support@corvantis.example"}));
    const auto mail = testing::received(recorded("sendmail.input"));
    EXPECT_EQ(mail.header("To"), "support@corvantis.example");
    EXPECT_EQ(testing::decodedHeader(mail.header("Subject")), "Fehler-Bericht: Größe & 100%");
    EXPECT_EQ(mail.body, "Grüße\r\n100% & \"mehr\"\r\n");
}

TEST_F(DesktopMailTest, SendNeedsNoRoomInArguments) {
    install("sendmail");
    const QString body = QStringLiteral("Zeile äöü\r\n").repeated(50000);
    item(body)->Send(keep());
    EXPECT_EQ(outcome(), MailOutcome::Sent);
    EXPECT_EQ(testing::received(recorded("sendmail.input")).body, body.toStdString());
}

TEST_F(DesktopMailTest, SendWithoutATransferProgramOpensTheComposedMail) {
    install("xdg-email");
    item()->Send(keep());
    EXPECT_EQ(outcome(), MailOutcome::Displayed);
    EXPECT_EQ(arguments("xdg-email").size(), 1U);
}

TEST_F(DesktopMailTest, DisplayNeverSendsWhatTheUserWantedToSee) {
    install("sendmail");
    item()->Display(keep());
    EXPECT_EQ(outcome(), MailOutcome::Failed);
    EXPECT_FALSE(fs::exists(m_folder.path() + "/sendmail.arguments"));
}

TEST_F(DesktopMailTest, AProgramThatFailsOrDiesIsAFailure) {
    for (const char* rest : {"exit 1", "kill -9 $$"}) {
        install("xdg-email", rest);
        install("sendmail", rest);
        m_outcome.reset();
        item()->Display(keep());
        EXPECT_EQ(outcome(), MailOutcome::Failed) << rest;
        m_outcome.reset();
        item()->Send(keep());
        EXPECT_EQ(outcome(), MailOutcome::Failed) << rest;
    }
}

TEST_F(DesktopMailTest, AProgramThatCannotBeStartedIsThrown) {
    std::ofstream(bin() / "sendmail") << "#!/nowhere/interpreter\n";
    fs::permissions(bin() / "sendmail", fs::perms::owner_all);
    EXPECT_THROW(item()->Send(keep()), basic::RuntimeError);
}

// The program goes on until the test says so: events run meanwhile, and nothing is told before its end.
TEST_F(DesktopMailTest, TheEventLoopTurnsWhileTheProgramRuns) {
    ASSERT_EQ(::mkfifo((m_folder.path() + "/gate").c_str(), 0600), 0);
    install("sendmail", "read line < '" + m_folder.path() + "/gate'");
    item()->Send(keep());
    EXPECT_TRUE(QTest::qWaitFor([&] { return fs::exists(m_folder.path() + "/sendmail.input"); }, 20000));
    EXPECT_FALSE(m_outcome.has_value());
    std::ofstream(m_folder.path() + "/gate") << "go\n";
    EXPECT_EQ(outcome(), MailOutcome::Sent);
}

TEST_F(DesktopMailTest, TheProgramGoesOnWhenOursEnds) {
    ASSERT_EQ(::mkfifo((m_folder.path() + "/gate").c_str(), 0600), 0);
    install("sendmail",
            "read line < '" + m_folder.path() + "/gate'\necho done > '" + m_folder.path() + "/end'");
    {
        DesktopMail other(QString(), {});
        const auto mail = other.CreateItem();
        mail->Send(keep());
    }
    std::ofstream(m_folder.path() + "/gate") << "go\n";
    EXPECT_TRUE(QTest::qWaitFor([&] { return recorded("end") == "done\n"; }, 20000));
    EXPECT_FALSE(m_outcome.has_value());
}

} // namespace
} // namespace shell
