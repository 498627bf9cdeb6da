// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/ButtonStates.h"

#include "app/CommandBarLayout.h"
#include "tests/app/PlayerButtons.h"
#include "tests/errors/RecordingErrorHandler.h"

#include <QMainWindow>

#include <gtest/gtest.h>

#include <array>
#include <ostream>
#include <string>

namespace app {
namespace {

constexpr int kNothing = 0; // no item is selected
constexpr int kWithMessage = 1;
constexpr int kWithoutMessage = 8;

constexpr bool o = false;
constexpr bool I = true;

struct Row {
    bool isPlaying, isPaused, hasFile, message;
    const char* buttons; // as playerButtons() tells them
};

const std::array kTruthTable{
    Row{o, o, o, o, "-----"}, Row{o, o, o, I, "+----"}, Row{o, o, I, o, "X----"}, Row{o, o, I, I, "x----"},
    Row{o, I, o, o, "--X--"}, Row{o, I, o, I, "+-X--"}, Row{o, I, I, o, "--X--"}, Row{o, I, I, I, "+-X--"},
    Row{I, o, o, o, "+++++"}, Row{I, o, o, I, "+++++"}, Row{I, o, I, o, "x++++"}, Row{I, o, I, I, "x++++"},
    Row{I, I, o, o, "++x++"}, Row{I, I, o, I, "++x++"}, Row{I, I, I, o, "++x++"}, Row{I, I, I, I, "++x++"},
};

std::ostream& operator<<(std::ostream& out, const Row& row) {
    return out << "playing " << row.isPlaying << ", paused " << row.isPaused << ", file " << row.hasFile
               << ", message " << row.message;
}

class ButtonStatesTest : public testing::Test {
protected:
    ButtonStatesTest() {
        layOutCommandBar(ab);
        list.ColumnHeaders().Add("", {70});
    }
    void select(int icon) {
        list.ListItems().Clear();
        forms::ListItem item = list.ListItems().Add("KA", "");
        item.SetSmallIcon(icon);
        if (icon != kNothing)
            list.SetSelectedItem(item);
    }
    void update(const PlaybackState& player) {
        ButtonStates({errors, ab, list, [&] { return player; }}).UpdateButtonStates();
    }
    std::string buttons() { return playerButtons(ab); }
    forms::Tool& button(const char* name) { return ab.Bands(kBandStatus).Tools(name); }

    errors::RecordingErrorHandler errors;
    QMainWindow window;
    forms::CommandBar ab{window};
    forms::ListView list;
};

TEST_F(ButtonStatesTest, FollowEveryCombinationOfPlayerAndSelection) {
    for (const Row& row : kTruthTable) {
        select(row.message ? kWithMessage : kNothing);
        update({row.isPlaying, row.isPaused, row.hasFile});
        EXPECT_EQ(buttons(), row.buttons) << row;
    }
}

TEST_F(ButtonStatesTest, CallWithoutAMessageIsAsIfNothingWereSelected) {
    for (const Row& row : kTruthTable) {
        select(kWithoutMessage);
        update({row.isPlaying, row.isPaused, row.hasFile});
        if (!row.message) {
            EXPECT_EQ(buttons(), row.buttons) << row;
        }
    }
}

TEST_F(ButtonStatesTest, PausedPlayIsNotPressedAndEnabledOnlyWhilePlaybackCountsOrAMessageIsSelected) {
    select(kNothing);
    update({.isPlaying = false, .isPaused = true, .hasFile = true});
    EXPECT_FALSE(button("miSPlay").Enabled());
    update({.isPlaying = true, .isPaused = true, .hasFile = true});
    EXPECT_TRUE(button("miSPlay").Enabled());
    select(kWithMessage);
    update({.isPlaying = false, .isPaused = true, .hasFile = true});
    EXPECT_TRUE(button("miSPlay").Enabled());
    EXPECT_FALSE(button("miSPlay").Checked());
    EXPECT_TRUE(button("miSPause").Checked());
}

TEST_F(ButtonStatesTest, EveryFlagIsSetAnew) {
    for (const char* name : {"miSStop", "miSPause", "miSPlay", "miSRew", "miSFwd"}) {
        button(name).SetChecked(true);
        button(name).SetEnabled(true);
    }
    update({});
    for (const char* name : {"miSStop", "miSPause", "miSPlay", "miSRew", "miSFwd"}) {
        EXPECT_FALSE(button(name).Checked()) << name;
        EXPECT_FALSE(button(name).Enabled()) << name;
    }
}

TEST_F(ButtonStatesTest, CopiesInTheMenusAreNeverDisabled) {
    update({});
    for (const int band : {kBandTools, kBandPopup}) {
        EXPECT_TRUE(ab.Bands(band).Tools("miSPlay").Enabled()) << band;
        EXPECT_FALSE(ab.Bands(band).Tools("miSPlay").Checked()) << band;
    }
}

} // namespace
} // namespace app
