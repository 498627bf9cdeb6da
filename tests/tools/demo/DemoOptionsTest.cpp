// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/demo/DemoOptions.h"

#include <gtest/gtest.h>

#include <vector>

namespace demo {
namespace {

DemoOptions parse(const std::vector<std::string>& arguments) {
    return DemoOptions::parse(arguments);
}

TEST(DemoOptions, FolderAloneRunsForEver) {
    const DemoOptions options = parse({"/srv/demo"});
    EXPECT_EQ(options.folder, "/srv/demo");
    EXPECT_EQ(options.every, std::chrono::seconds(5));
    EXPECT_FALSE(options.calls.has_value());
    EXPECT_EQ(options.mailbox, 0);
}

TEST(DemoOptions, TakesEveryOption) {
    const DemoOptions options = parse({"--every", "0.25", "--calls", "7", "folder", "--mailbox", "9"});
    EXPECT_EQ(options.every, std::chrono::milliseconds(250));
    EXPECT_EQ(options.calls, 7U);
    EXPECT_EQ(options.mailbox, 9);
    EXPECT_EQ(parse({"folder", "--once"}).calls, 1U);
    EXPECT_TRUE(parse({"--help"}).help);
}

TEST(DemoOptions, RefusesWhatItDoesNotUnderstand) {
    const std::vector<std::vector<std::string>> lines{{},
                                                      {"a", "b"},
                                                      {"a", "--evry", "1"},
                                                      {"a", "--every"},
                                                      {"a", "--every", "soon"},
                                                      {"a", "--every", "-1"},
                                                      {"a", "--every", "nan"},
                                                      {"a", "--calls", "0"},
                                                      {"a", "--calls", "1x"},
                                                      {"a", "--mailbox", "0"},
                                                      {"a", "--mailbox", "99999999999"}};
    for (const auto& line : lines)
        EXPECT_THROW(parse(line), UsageError) << ::testing::PrintToString(line);
}

} // namespace
} // namespace demo
