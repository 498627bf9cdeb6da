// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// Walks the list of all procedures that scripts/list-procedures takes from the sources.
#include "tests/errors/Provocation.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>
#include <set>
#include <sstream>

namespace errors {
namespace {

struct Listed {
    std::string module;
    std::string procedure;
    std::string kind;
    std::string file;
    std::string reason;

    bool isTrapped() const { return kind == "trap" || kind == "door"; }
    std::string name() const { return module + " " + procedure; }
};

std::vector<Listed> procedures() {
    std::vector<Listed> all;
    std::ifstream table(QM_PROCEDURES);
    for (std::string line; std::getline(table, line);) {
        std::istringstream columns(line);
        Listed entry;
        for (auto* field : {&entry.module, &entry.procedure, &entry.kind, &entry.file, &entry.reason})
            std::getline(columns, *field, '\t');
        all.push_back(entry);
    }
    return all;
}

std::set<std::string> provoked() {
    std::set<std::string> names;
    for (const Provocation& provocation : Provocation::all())
        names.insert(provocation.module + " " + provocation.procedure);
    return names;
}

std::set<std::string> excused() {
    std::set<std::string> names;
    for (const CannotFail& exception : CannotFail::all())
        names.insert(exception.module + " " + exception.procedure);
    return names;
}

TEST(ProcedureList, HasTheProceduresOfEverySubsystem) {
    std::set<std::string> modules;
    for (const Listed& entry : procedures())
        modules.insert(entry.module);
    EXPECT_THAT(modules,
                testing::IsSupersetOf({"frmMain", "clsConfig", "clsMailbox", "basCommon", "frmAlert"}));
}

TEST(ProcedureList, EveryProcedureHasATrapOrSaysWhyNot) {
    for (const Listed& entry : procedures()) {
        EXPECT_NE(entry.kind, "missing") << entry.file << ": " << entry.name() << ": " << entry.reason;
        EXPECT_EQ(entry.reason.empty(), entry.kind != "none") << entry.file << ": " << entry.name();
    }
}

TEST(ProcedureList, EveryTrapIsProvokedOrSaysWhyNothingInItCanFail) {
    const auto known = provoked();
    const auto exceptions = excused();
    for (const Listed& entry : procedures())
        EXPECT_TRUE(!entry.isTrapped() || known.count(entry.name()) != exceptions.count(entry.name()))
            << entry.file << ": " << entry.name() << " needs a Provocation, or else a CannotFail";
    for (const CannotFail& exception : CannotFail::all())
        EXPECT_FALSE(exception.why.empty()) << exception.module << " " << exception.procedure;
}

TEST(ProcedureList, NoProvocationIsLeftOverFromAProcedureThatIsGone) {
    std::set<std::string> listed;
    for (const Listed& entry : procedures())
        listed.insert(entry.name());
    EXPECT_THAT(provoked(), testing::Each(testing::AnyOfArray(listed)));
    EXPECT_THAT(excused(), testing::Each(testing::AnyOfArray(listed)));
}

class ProvokedFailure : public testing::TestWithParam<Provocation> {
protected:
    Effect run(ErrorAction answer) {
        Trial trial(answer);
        const Effect effect = GetParam().run(trial);
        EXPECT_FALSE(trial.reports.empty());
        if (!trial.reports.empty())
            check(trial.reports.front());
        m_reports = trial.reports.size();
        return effect;
    }

    static void check(const Report& report) {
        EXPECT_EQ(report.module, GetParam().module);
        EXPECT_EQ(report.procedure, GetParam().procedure);
        EXPECT_EQ(report.number, GetParam().number) << report.description;
        EXPECT_FALSE(report.description.empty());
        EXPECT_GT(report.line, 0);
    }

    std::size_t m_reports = 0;
};

TEST_P(ProvokedFailure, TryAgainRunsTheStatementAgainAndAllThatFollows) {
    const Effect effect = run(ErrorAction::Retry);
    EXPECT_EQ(m_reports, 1U);
    EXPECT_TRUE(effect.failing);
    EXPECT_TRUE(effect.next.value_or(true));
}

TEST_P(ProvokedFailure, IgnoreGoesOnWithTheNextStatement) {
    const Effect effect = run(ErrorAction::Ignore);
    EXPECT_FALSE(effect.failing);
    EXPECT_TRUE(effect.next.value_or(true));
}

TEST_P(ProvokedFailure, CancelLeavesTheProcedureAndItsCallerNeverLearns) {
    const Effect effect = run(ErrorAction::Abort);
    EXPECT_EQ(m_reports, 1U);
    EXPECT_FALSE(effect.failing);
    EXPECT_FALSE(effect.next.value_or(false));
}

std::string testName(const testing::TestParamInfo<Provocation>& parameter) {
    std::string name = parameter.param.module + "_" + parameter.param.procedure;
    std::replace(name.begin(), name.end(), '.', '_');
    return name;
}

INSTANTIATE_TEST_SUITE_P(In, ProvokedFailure, testing::ValuesIn(Provocation::all()), testName);

} // namespace
} // namespace errors
