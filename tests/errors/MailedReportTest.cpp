// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "errors/MailedReport.h"

#include "errors/ReportText.h"
#include "platform/basic/RuntimeError.h"
#include "platform/shell/DesktopMail.h"
#include "resources/StringTable.h"
#include "tests/errors/WorkingFolder.h"

#include <QWidget>

#include <gtest/gtest.h>

#include <cstdlib>
#include <vector>

namespace errors {
namespace {

using forms::MessageBoxResult;
using resources::Language;
using shell::MailOutcome;

class FixedClock final : public basic::Clock {
public:
    basic::CalendarTime now() const override { return {2005, 3, 14, 17, 5, 9}; }
};

// Everything that happens, in its order: boxes and what the mail program is asked for.
struct Course {
    std::vector<std::string> steps;
    QString to;
    QString subject;
    QString body;
    MailOutcome outcome = MailOutcome::Sent;
    std::string failing;
    shell::MailItem::Done done; // what the mail program will tell
};

class RecordedBoxes final : public forms::MessageBoxes {
public:
    explicit RecordedBoxes(Course& course) : m_course(course) {}

    MessageBoxResult show(const QString& text, std::int32_t style, const QString& title) override {
        EXPECT_EQ(title, QStringLiteral("Quillamar Client"));
        m_course.steps.push_back(std::to_string(style) + " " + text.toStdString());
        return answer;
    }
    MessageBoxResult answer = MessageBoxResult::No;

private:
    Course& m_course;
};

class RecordedItem final : public shell::MailItem {
public:
    explicit RecordedItem(Course& course) : m_course(course) {}
    void Display(Done done) override { act("Display", std::move(done)); }
    void Send(Done done) override { act("Send", std::move(done)); }

private:
    void act(const std::string& step, Done done) {
        if (step == m_course.failing)
            throw basic::RuntimeError(basic::kPathFileAccess);
        m_course.steps.push_back(step);
        m_course.to = To;
        m_course.subject = Subject;
        m_course.body = Body;
        m_course.done = std::move(done);
    }

    Course& m_course;
};

class RecordedMail final : public shell::MailProgram {
public:
    explicit RecordedMail(Course& course) : m_course(course) {}

    std::unique_ptr<shell::MailItem> CreateItem() override {
        if (m_course.failing == "CreateItem")
            throw basic::RuntimeError(basic::kCannotCreateObject);
        return std::make_unique<RecordedItem>(m_course);
    }

private:
    Course& m_course;
};

const ReportFields kFields{QStringLiteral("Quillamar Client (qmClient)"), QStringLiteral("1.0.747"),
                           QStringLiteral("frmMain - LoadList"), QStringLiteral("WinXP Build:2600 "),
                           QStringLiteral("Overflow\r\nErrNumber: 6\r\nErrLine: 120")};

const char* const kReport = "Error occured at: 2005-03-14 17:05:09\r\n"
                            "\r\n"
                            "Component: \tQuillamar Client (qmClient)\r\n"
                            "Version:   \t1.0.747\r\n"
                            "Modul:     \tfrmMain - LoadList\r\n"
                            "OS-VErsion:\tWinXP Build:2600 \r\n"
                            "\r\n"
                            "Error:     \tOverflow\r\n"
                            "ErrNumber: 6\r\n"
                            "ErrLine: 120\r\n"
                            "Comments:  \r\n"
                            "\r\n";

TEST(ReportText, IsTheReportToTheLetter) {
    EXPECT_EQ(reportText(kFields, {2005, 3, 14, 17, 5, 9}).toStdString(), kReport);
}

class MailedReportTest : public ::testing::Test {
protected:
    void TearDown() override { resources::setLanguage(Language::English); }

    void send(MessageBoxResult answer) {
        m_boxes.answer = answer;
        m_report.send(kFields, m_window);
    }
    void end(MailOutcome outcome) const { m_course.done(outcome); }

    const std::string m_question = "35 Do you want to review or comment the Error-Report?";
    const std::string m_success = "64 The message was sent successfully.";
    const std::string m_failure = "48 Failed to send Error-Report. Could not start Outlook.";
    Course m_course;
    RecordedBoxes m_boxes{m_course};
    RecordedMail m_mail{m_course};
    FixedClock m_clock;
    QWidget m_window;
    MailedReport m_report{m_mail, m_boxes, m_clock};
};

TEST_F(MailedReportTest, NoSendsItWithoutShowingItAndConfirms) {
    send(MessageBoxResult::No);
    EXPECT_EQ(m_course.steps, (std::vector<std::string>{m_question, "Send"}));
    end(MailOutcome::Sent);
    EXPECT_EQ(m_course.steps, (std::vector<std::string>{m_question, "Send", m_success}));
    EXPECT_EQ(m_course.to, QStringLiteral("support@corvantis.example"));
    EXPECT_EQ(m_course.subject, QStringLiteral("Quillamar Client Error-Report: Quillamar Client (qmClient)"));
    EXPECT_EQ(m_course.body.toStdString(), kReport);
}

TEST_F(MailedReportTest, YesShowsItAndConfirmsNothing) {
    send(MessageBoxResult::Yes);
    end(MailOutcome::Displayed);
    EXPECT_EQ(m_course.steps, (std::vector<std::string>{m_question, "Display"}));
    EXPECT_EQ(m_course.body.toStdString(), kReport);
}

TEST_F(MailedReportTest, CancelDropsIt) {
    send(MessageBoxResult::Cancel);
    EXPECT_EQ(m_course.steps, std::vector<std::string>{m_question});
}

TEST_F(MailedReportTest, WithoutAMailProgramItSaysSoAndAsksNothing) {
    m_course.failing = "CreateItem";
    send(MessageBoxResult::No);
    EXPECT_EQ(m_course.steps, std::vector<std::string>{m_failure});
}

TEST_F(MailedReportTest, OnAMachineWithoutMailProgramsThatIsSaidAtOnce) {
    const std::string before = std::getenv("PATH");
    const WorkingFolder empty;
    ::setenv("PATH", empty.path().c_str(), 1);
    shell::DesktopMail mail{QString(), {}};
    MailedReport(mail, m_boxes, m_clock).send(kFields, m_window);
    ::setenv("PATH", before.c_str(), 1);
    EXPECT_EQ(m_course.steps, std::vector<std::string>{m_failure});
}

TEST_F(MailedReportTest, AMailThatCouldOnlyBeShownIsNotCalledSent) {
    send(MessageBoxResult::No);
    end(MailOutcome::Displayed);
    EXPECT_EQ(m_course.steps, (std::vector<std::string>{m_question, "Send"}));
}

TEST_F(MailedReportTest, WhateverKeepsItFromGoingOutIsTold) {
    for (const char* step : {"Display", "Send"}) {
        m_course = Course();
        m_course.failing = step;
        send(*step == 'D' ? MessageBoxResult::Yes : MessageBoxResult::No);
        EXPECT_EQ(m_course.steps, (std::vector<std::string>{m_question, m_failure})) << step;
    }
    m_course = Course();
    send(MessageBoxResult::No);
    end(MailOutcome::Failed);
    EXPECT_EQ(m_course.steps, (std::vector<std::string>{m_question, "Send", m_failure}));
}

TEST_F(MailedReportTest, SpeaksTheUsersLanguage) {
    resources::setLanguage(Language::German);
    send(MessageBoxResult::No);
    end(MailOutcome::Sent);
    EXPECT_EQ(m_course.steps,
              (std::vector<std::string>{"35 Möchten Sie dem Fehlerbericht noch einen Kommentar hinzufügen?",
                                        "Send", "64 Die Nachricht wurde erfolgreich gesendet!"}));
    EXPECT_EQ(m_course.subject,
              QStringLiteral("Quillamar Client Fehler-Bericht:Quillamar Client (qmClient)"));
}

TEST_F(MailedReportTest, AnOutcomeThatComesAfterItsEndIsForNobody) {
    {
        MailedReport report{m_mail, m_boxes, m_clock};
        report.send(kFields, m_window);
    }
    const std::size_t before = m_course.steps.size();
    end(MailOutcome::Failed);
    EXPECT_EQ(m_course.steps.size(), before);
}

} // namespace
} // namespace errors
