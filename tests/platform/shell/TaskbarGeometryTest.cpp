// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/shell/TaskbarGeometry.h"

#include <gtest/gtest.h>

namespace shell {
namespace {

constexpr Rectangle kMonitor{0, 0, 1024, 768};
constexpr int kRootHeight = 768;

int rows(const Panel& panel, const Rectangle& monitor = kMonitor, int rootHeight = kRootHeight) {
    return reservedBottomRows(monitor, rootHeight, std::span(&panel, 1));
}

Panel dock(const Rectangle& place) {
    return {place, true, true, std::nullopt};
}

TEST(TaskbarGeometryTest, TakesTheStripOfAPanelAtTheBottom) {
    EXPECT_EQ(rows({{0, 738, 1024, 768}, true, true, BottomStrut{30, 0, 1023}}), 30);
}

TEST(TaskbarGeometryTest, TakesTheStripOfANarrowPanelToo) {
    EXPECT_EQ(rows({{900, 744, 1024, 768}, true, true, BottomStrut{24, 900, 1023}}), 24);
}

TEST(TaskbarGeometryTest, TakesAShownDockThatReservesNothing) {
    EXPECT_EQ(rows(dock({0, 740, 1024, 768})), 28);
}

TEST(TaskbarGeometryTest, TakesAFloatingDockWithTheGapBelowIt) {
    EXPECT_EQ(rows(dock({100, 730, 900, 760})), 38);
}

TEST(TaskbarGeometryTest, TakesTheHighestOfSeveralPanels) {
    const std::array panels{dock({0, 740, 500, 768}), dock({500, 720, 1024, 768})};
    EXPECT_EQ(reservedBottomRows(kMonitor, kRootHeight, panels), 48);
}

TEST(TaskbarGeometryTest, IgnoresDocksAtTheOtherEdges) {
    EXPECT_EQ(rows(dock({0, 0, 1024, 30})), 0);
    EXPECT_EQ(rows(dock({0, 0, 60, 768})), 0);
    EXPECT_EQ(rows(dock({964, 0, 1024, 768})), 0);
    EXPECT_EQ(rows({{0, 0, 60, 768}, true, true, BottomStrut{0, 0, 0}}), 0);
}

TEST(TaskbarGeometryTest, IgnoresHiddenPanels) {
    EXPECT_EQ(rows({{0, 738, 1024, 768}, true, false, BottomStrut{30, 0, 1023}}), 0);
    EXPECT_EQ(rows(dock({0, 768, 1024, 798})), 0) << "moved off the screen";
}

TEST(TaskbarGeometryTest, IgnoresAnOrdinaryWindowAtTheBottom) {
    EXPECT_EQ(rows({{0, 738, 1024, 768}, false, true, std::nullopt}), 0);
}

TEST(TaskbarGeometryTest, IgnoresThePanelOfAnotherMonitor) {
    const Panel panel{{1024, 738, 2048, 768}, true, true, BottomStrut{30, 1024, 2047}};
    EXPECT_EQ(rows(panel), 0);
    EXPECT_EQ(rows(panel, {1024, 0, 2048, 768}), 30);
}

TEST(TaskbarGeometryTest, CountsAStrutFromTheBottomOfTheWholeDesktop) {
    // A monitor of 768 rows beside one of 1080: the panel has to reserve the dead rows below it as well.
    const Panel panel{{0, 738, 1024, 768}, true, true, BottomStrut{1080 - 738, 0, 1023}};
    EXPECT_EQ(rows(panel, kMonitor, 1080), 30);
}

TEST(TaskbarGeometryTest, FindsThePanelBetweenTwoMonitorsOnTopOfEachOther) {
    // Reserved at the outer edge, where struts end up, but lying at the inner one.
    const Panel panel{{0, 744, 1024, 768}, true, true, BottomStrut{24, 0, 1023}};
    EXPECT_EQ(rows(panel, kMonitor, 1536), 24);
}

TEST(TaskbarGeometryTest, IgnoresStrutsLargerThanTheScreen) {
    EXPECT_EQ(rows({{0, 738, 1024, 768}, false, true, BottomStrut{0xFFFFFFFF, 0, 0xFFFFFFFF}}), 0);
    EXPECT_EQ(rows({{0, 738, 1024, 768}, false, true, BottomStrut{768, 0, 1023}}), 0);
}

TEST(BottomStrutTest, ReadsTheBottomPartOfThePartialStrut) {
    const std::array<std::uint32_t, 12> partial{1, 2, 3, 30, 4, 5, 6, 7, 8, 9, 100, 900};
    const std::array<std::uint32_t, 4> plain{0, 0, 0, 99};
    const auto strut = bottomStrut(partial, plain, 1024);
    ASSERT_TRUE(strut);
    EXPECT_EQ(strut->height, 30U);
    EXPECT_EQ(strut->firstColumn, 100U);
    EXPECT_EQ(strut->lastColumn, 900U);
}

TEST(BottomStrutTest, SpansAllColumnsWithAPlainStrut) {
    const std::array<std::uint32_t, 4> plain{0, 0, 0, 99};
    const auto strut = bottomStrut({}, plain, 1024);
    ASSERT_TRUE(strut);
    EXPECT_EQ(strut->height, 99U);
    EXPECT_EQ(strut->firstColumn, 0U);
    EXPECT_EQ(strut->lastColumn, 1023U);
}

TEST(BottomStrutTest, RejectsListsOfAnotherLength) {
    const std::array<std::uint32_t, 11> wrong{};
    EXPECT_FALSE(bottomStrut(wrong, wrong, 1024));
    EXPECT_FALSE(bottomStrut({}, {}, 1024));
}

} // namespace
} // namespace shell
