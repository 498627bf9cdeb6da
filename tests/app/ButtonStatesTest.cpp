// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/ButtonStates.h"

#include "app/CommandBarLayout.h"
#include "tests/errors/RecordingErrorHandler.h"

#include <QMainWindow>

#include <gtest/gtest.h>

#include <ostream>

namespace app {
namespace {

constexpr int kNothing = 0; // no item is selected
constexpr int kWithMessage = 1;
constexpr int kWithoutMessage = 8;

struct Case {
    const char* name;
    PlaybackState player; // playing, paused, has a file
    int selectedIcon;
    bool playEnabled, playChecked, pauseChecked, othersEnabled;
};

std::ostream& operator<<(std::ostream& out, const Case& tried) {
    return out << tried.name;
}

class ButtonStatesTest : public testing::TestWithParam<Case> {
protected:
    ButtonStatesTest() {
        layOutCommandBar(ab);
        list.ColumnHeaders().Add("", {70});
    }
    void select(int icon) {
        forms::ListItem item = list.ListItems().Add("KA", "");
        item.SetSmallIcon(icon);
        if (icon != kNothing)
            list.SetSelectedItem(item);
    }
    forms::Tool& button(const char* name) { return ab.Bands(kBandStatus).Tools(name); }

    errors::RecordingErrorHandler errors;
    QMainWindow window;
    forms::CommandBar ab{window};
    forms::ListView list;
};

TEST_P(ButtonStatesTest, FollowPlayerAndSelection) {
    const Case& tried = GetParam();
    select(tried.selectedIcon);
    ButtonStates({errors, ab, list, [&] { return tried.player; }}).UpdateButtonStates();
    EXPECT_EQ(button("miSPlay").Enabled(), tried.playEnabled);
    EXPECT_EQ(button("miSPlay").Checked(), tried.playChecked);
    EXPECT_EQ(button("miSPause").Checked(), tried.pauseChecked);
    for (const char* name : {"miSStop", "miSPause", "miSRew", "miSFwd"})
        EXPECT_EQ(button(name).Enabled(), tried.othersEnabled) << name;
    for (const char* name : {"miSStop", "miSRew", "miSFwd"})
        EXPECT_FALSE(button(name).Checked()) << name;
}

INSTANTIATE_TEST_SUITE_P(
    While, ButtonStatesTest,
    testing::Values(
        Case{"NothingIsSelected", {false, false, false}, kNothing, false, false, false, false},
        Case{"ACallWithoutMessageIs", {false, false, false}, kWithoutMessage, false, false, false, false},
        Case{"ACallWithMessageIs", {false, false, false}, kWithMessage, true, false, false, false},
        Case{"Playing", {true, false, true}, kNothing, true, true, false, true},
        Case{"PlayingWithAnotherCallSelected", {true, false, true}, kWithMessage, true, true, false, true},
        Case{"PausedAndStillCountedAsPlaying", {true, true, true}, kNothing, true, false, true, true},
        Case{"PausedAndNotPlaying", {false, true, true}, kNothing, false, false, true, false},
        Case{"PausedAndNotPlayingWithAMessage", {false, true, true}, kWithMessage, true, false, true, false},
        Case{"StoppedWithAFile", {false, false, true}, kNothing, false, true, false, false}),
    [](const auto& tried) { return tried.param.name; });

TEST_F(ButtonStatesTest, EveryFlagIsSetAnew) {
    for (const char* name : {"miSStop", "miSPause", "miSPlay", "miSRew", "miSFwd"}) {
        button(name).SetChecked(true);
        button(name).SetEnabled(true);
    }
    ButtonStates({errors, ab, list, [] { return PlaybackState{}; }}).UpdateButtonStates();
    for (const char* name : {"miSStop", "miSPause", "miSPlay", "miSRew", "miSFwd"}) {
        EXPECT_FALSE(button(name).Checked()) << name;
        EXPECT_FALSE(button(name).Enabled()) << name;
    }
}

TEST_F(ButtonStatesTest, CopiesInTheMenusAreNeverDisabled) {
    ButtonStates({errors, ab, list, [] { return PlaybackState{}; }}).UpdateButtonStates();
    for (const int band : {kBandTools, kBandPopup}) {
        EXPECT_TRUE(ab.Bands(band).Tools("miSPlay").Enabled()) << band;
        EXPECT_FALSE(ab.Bands(band).Tools("miSPlay").Checked()) << band;
    }
}

} // namespace
} // namespace app
