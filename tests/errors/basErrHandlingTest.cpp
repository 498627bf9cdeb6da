// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "errors/basErrHandling.h"

#include "platform/basic/ErrorNumbers.h"
#include "tests/errors/DiskSync.h"
#include "tests/errors/WorkingFolder.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <stdexcept>
#include <vector>

namespace errors {
namespace {

namespace fs = std::filesystem;

class FixedClock final : public basic::Clock {
public:
    basic::CalendarTime now() const override { return {2005, 3, 14, 17, 5, 9}; }
};

// What the dialog was asked to do, and what it does meanwhile; outlives the dialog.
struct Script {
    std::vector<std::string> calls;
    std::string answer;
    std::string failing; // the name of a call that throws
    std::function<void()> whileShown = [] {};
    int made = 0;
};

class ScriptedDialog final : public ErrorDialog {
public:
    explicit ScriptedDialog(Script& script) : m_script(script) { ++m_script.made; }

    void setErrorNumber(std::int32_t number) override { note("number", std::to_string(number)); }
    void setLineNumber(std::int32_t line) override { note("line", std::to_string(line)); }
    void setDescription(std::string_view description) override { note("description", description); }
    void setProcedureName(std::string_view procedure) override { note("procedure", procedure); }
    void setModuleName(std::string_view module) override { note("module", module); }
    void Init() override {
        m_answer.clear();
        note("Init", "");
    }
    void showModal() override {
        note("show", "");
        m_script.whileShown();
        m_answer = m_script.answer;
    }
    std::string answer() const override {
        if (m_script.failing == "answer")
            throw std::runtime_error("broken");
        return m_answer;
    }

private:
    void note(const std::string& call, std::string_view value) {
        m_script.calls.push_back(value.empty() ? call : call + " " + std::string(value));
        if (call == m_script.failing)
            throw std::runtime_error("broken");
    }

    Script& m_script;
    std::string m_answer;
};

constexpr char kRecord[] = "***** Error 00013 at: 2005-03-14 17:05:09\r\n"
                           "  *** Module:         frmOptions\r\n"
                           "  *** Procedure:      Init\r\n"
                           "  *** Line Number:    0\r\n"
                           "  *** Description:    Type mismatch\r\n";

class basErrHandlingTest : public ::testing::Test {
protected:
    ErrorAction report(std::int32_t number = 13) {
        return m_handler.ReportError("frmOptions", "Init", number, "Type mismatch", 0);
    }
    std::string logged() const { return contentOf(m_folder.path() / "qmClient.log"); }
    bool logIsOpen() const {
        return std::any_of(fs::directory_iterator("/proc/self/fd"), {}, [&](const auto& entry) {
            std::error_code ignored;
            return fs::read_symlink(entry.path(), ignored) == m_folder.path() / "qmClient.log";
        });
    }

    WorkingFolder m_folder;
    FixedClock m_clock;
    Script m_script;
    basErrHandling m_handler{ErrorLog("qmClient.log", ""), m_clock,
                             [this] { return std::make_unique<ScriptedDialog>(m_script); }};
};

TEST(ErrorAction, HasTheNumbersOfTheProtocol) {
    EXPECT_EQ(static_cast<std::int32_t>(ErrorAction::Retry), 1);
    EXPECT_EQ(static_cast<std::int32_t>(ErrorAction::Ignore), 2);
    EXPECT_EQ(static_cast<std::int32_t>(ErrorAction::Abort), 3);
}

TEST_F(basErrHandlingTest, Error401AbortsWithoutRecordOrDialog) {
    m_script.answer = "I";
    EXPECT_EQ(report(401), ErrorAction::Abort);
    EXPECT_FALSE(fs::exists(m_folder.path() / "qmClient.log"));
    EXPECT_EQ(m_script.made, 0);
}

TEST_F(basErrHandlingTest, AnyOtherNumberGoesOnEvenZero) {
    m_script.answer = "I";
    for (const std::int32_t number : {0, 400, 402, -401})
        EXPECT_EQ(report(number), ErrorAction::Ignore) << number;
    EXPECT_EQ(logged().substr(0, 17), "***** Error 00000");
}

TEST_F(basErrHandlingTest, HandsTheDialogItsValuesInOrder) {
    report();
    EXPECT_EQ(m_script.calls,
              (std::vector<std::string>{"number 13", "line 0", "description Type mismatch", "procedure Init",
                                        "module frmOptions", "Init", "show"}));
}

TEST_F(basErrHandlingTest, AnswersMapToActions) {
    const std::vector<std::pair<std::string, ErrorAction>> answers{
        {"I", ErrorAction::Ignore}, {"R", ErrorAction::Retry}, {"A", ErrorAction::Abort},
        {"", ErrorAction::Abort},   {"i", ErrorAction::Abort}, {"RI", ErrorAction::Abort},
    };
    for (const auto& [answer, action] : answers) {
        m_script.answer = answer;
        EXPECT_EQ(report(), action) << answer;
    }
}

TEST_F(basErrHandlingTest, TheRecordIsOnTheDiskAndTheLogOpenWhileTheDialogIsUp) {
    bool shown = false;
    m_script.whileShown = [&] {
        shown = true;
        EXPECT_EQ(logged(), kRecord);
        EXPECT_TRUE(logIsOpen());
    };
    report();
    EXPECT_TRUE(shown);
    EXPECT_FALSE(logIsOpen());
}

TEST_F(basErrHandlingTest, TheRecordIsWrittenThroughToTheDiskBeforeTheDialogShows) {
    const DiskSync disk;
    std::vector<std::size_t> sizes;
    m_script.whileShown = [&] { sizes = disk.sizes(); };
    report();
    EXPECT_EQ(sizes, std::vector<std::size_t>{sizeof(kRecord) - 1});
}

TEST_F(basErrHandlingTest, TwoErrorsMakeTwoCompleteRecordsWithoutABlankLineBetween) {
    report();
    report();
    EXPECT_EQ(logged(), std::string(kRecord) + kRecord);
}

TEST_F(basErrHandlingTest, OneDialogServesAllFailures) {
    report();
    report();
    EXPECT_EQ(m_script.made, 1);
}

TEST_F(basErrHandlingTest, AnUnwritableLogDoesNotKeepTheDialogAway) {
    fs::create_directory(m_folder.path() / "qmClient.log");
    m_script.answer = "R";
    EXPECT_EQ(report(), ErrorAction::Retry);
}

TEST_F(basErrHandlingTest, ARecordThatCannotBeWrittenDoesNotKeepTheDialogAway) {
    const DiskSync disk(DiskSync::Outcome::Fails);
    m_script.answer = "R";
    EXPECT_EQ(report(), ErrorAction::Retry);
}

TEST_F(basErrHandlingTest, AClockThatFailsKeepsNeitherRecordNorDialogAway) {
    struct BrokenClock final : basic::Clock {
        basic::CalendarTime now() const override { throw std::runtime_error("no time"); }
    } clock;
    m_script.answer = "I";
    basErrHandling handler{ErrorLog("qmClient.log", ""), clock,
                           [this] { return std::make_unique<ScriptedDialog>(m_script); }};
    EXPECT_EQ(handler.ReportError("frmOptions", "Init", 13, "Type mismatch", 0), ErrorAction::Ignore);
    EXPECT_EQ(logged().substr(0, 21), "***** Error 00013 at:");
}

TEST_F(basErrHandlingTest, ADialogThatCannotBeMadeAborts) {
    basErrHandling handler{ErrorLog("qmClient.log", ""), m_clock,
                           []() -> std::unique_ptr<ErrorDialog> { throw std::bad_alloc(); }};
    EXPECT_EQ(handler.ReportError("frmOptions", "Init", 13, "Type mismatch", 0), ErrorAction::Abort);
    EXPECT_EQ(handler.ReportError("frmOptions", "Init", 13, "Type mismatch", 0), ErrorAction::Abort);
    EXPECT_EQ(logged(), std::string(kRecord) + kRecord);
}

TEST_F(basErrHandlingTest, ADialogThatIsNullAborts) {
    basErrHandling handler{ErrorLog("qmClient.log", ""), m_clock, [] { return nullptr; }};
    EXPECT_EQ(handler.ReportError("frmOptions", "Init", 13, "Type mismatch", 0), ErrorAction::Abort);
}

TEST_F(basErrHandlingTest, AStepThatFailsIsSkippedAndTheNextOneRuns) {
    m_script.answer = "I";
    for (const char* call : {"number", "line", "description", "procedure", "module", "Init"}) {
        m_script.calls.clear();
        m_script.failing = call;
        EXPECT_EQ(report(), ErrorAction::Ignore) << call;
        EXPECT_EQ(m_script.calls.size(), 7U) << call;
    }
}

TEST_F(basErrHandlingTest, ADialogThatCannotBeShownAborts) {
    m_script.answer = "I";
    EXPECT_EQ(report(), ErrorAction::Ignore);
    m_script.failing = "show";
    EXPECT_EQ(report(), ErrorAction::Abort) << "the answer of the failure before must not count";
}

TEST_F(basErrHandlingTest, AnAnswerThatCannotBeReadAborts) {
    m_script.answer = "I";
    m_script.failing = "answer";
    EXPECT_EQ(report(), ErrorAction::Abort);
    m_script.failing.clear();
    EXPECT_EQ(report(), ErrorAction::Ignore) << "later failures are asked about again";
}

TEST_F(basErrHandlingTest, OnceNobodyIsAskedAFailureLeavesItsRecordAndIsIgnored) {
    m_script.answer = "A";
    m_script.whileShown = [this] {
        m_handler.askNobody();
        EXPECT_EQ(report(), ErrorAction::Ignore) << "also while a dialog is up";
    };
    EXPECT_EQ(report(), ErrorAction::Abort) << "was asked before";
    EXPECT_EQ(report(), ErrorAction::Ignore);
    EXPECT_EQ(std::count(m_script.calls.begin(), m_script.calls.end(), "show"), 1);
    EXPECT_EQ(logged(), std::string(kRecord) + kRecord + kRecord);
    EXPECT_EQ(report(basic::kNonModalWhileModal), ErrorAction::Abort);
}

TEST_F(basErrHandlingTest, AReportWhileADialogIsUpLeavesItsRecordAndAborts) {
    m_script.answer = "R";
    int shown = 0;
    m_script.whileShown = [&] {
        if (++shown > 1)
            return;
        const std::size_t calls = m_script.calls.size();
        EXPECT_EQ(m_handler.ReportError("frmMain", "mTimer_ThatTime", 6, "Overflow", 7), ErrorAction::Abort);
        EXPECT_EQ(m_script.calls.size(), calls) << "the open dialog is left alone";
    };
    EXPECT_EQ(report(), ErrorAction::Retry);
    EXPECT_EQ(logged(), std::string(kRecord) + "***** Error 00006 at: 2005-03-14 17:05:09\r\n"
                                               "  *** Module:         frmMain\r\n"
                                               "  *** Procedure:      mTimer_ThatTime\r\n"
                                               "  *** Line Number:    7\r\n"
                                               "  *** Description:    Overflow\r\n");
    m_script.answer = "I";
    EXPECT_EQ(report(), ErrorAction::Ignore) << "later failures are asked about again";
}

} // namespace
} // namespace errors
