// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/shell/WindowTable.h"

#include <QCoreApplication>

#include <gtest/gtest.h>

#include <vector>

namespace shell {
namespace {

TEST(WindowTableTest, DeliversMessagesFromTheEventLoopAndInOrder) {
    WindowTable windows;
    std::vector<std::uint32_t> codes;
    const WindowHandle window = windows.add([&](const Message& message) { codes.push_back(message.lParam); });
    windows.post(window, {512, 7, 513});
    windows.post(window, {512, 7, 514});
    EXPECT_TRUE(codes.empty());
    QCoreApplication::processEvents();
    EXPECT_EQ(codes, (std::vector<std::uint32_t>{513, 514}));
}

TEST(WindowTableTest, DropsMessagesForAWindowThatIsGone) {
    WindowTable windows;
    int calls = 0;
    const WindowHandle window = windows.add([&](const Message&) { ++calls; });
    windows.post(window, {512, 7, 513});
    windows.remove(window);
    QCoreApplication::processEvents();
    EXPECT_EQ(calls, 0);
    EXPECT_FALSE(windows.contains(window));
}

TEST(WindowTableTest, LetsAProcedureRemoveItsOwnWindow) {
    WindowTable windows;
    WindowHandle window = 0;
    std::vector<int> kept{1, 2, 3};
    std::size_t seen = 0;
    window = windows.add([&windows, &window, &seen, kept](const Message&) {
        windows.remove(window);
        seen = kept.size();
    });
    windows.post(window, {});
    windows.post(window, {});
    QCoreApplication::processEvents();
    EXPECT_EQ(seen, 3U);
}

TEST(WindowTableTest, NeverGivesAHandleTwice) {
    WindowTable windows;
    const WindowHandle first = windows.add([](const Message&) {});
    windows.remove(first);
    EXPECT_NE(windows.add([](const Message&) {}), first);
    EXPECT_NE(first, 0U);
}

} // namespace
} // namespace shell
