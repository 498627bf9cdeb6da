// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The flags of every tool of the command bar in every state that the program can be in.
#include "tests/app/MainWorld.h"
#include "tests/app/PlayerButtons.h"

#include <QTest>

#include <gmock/gmock.h>

#include <functional>
#include <ostream>

namespace app {
namespace {

using testing::IsEmpty;

class ToolStatesTest;

struct State {
    const char* name;
    void (ToolStatesTest::*reach)();
    const char* buttons; // as playerButtons() tells them
};

std::ostream& operator<<(std::ostream& out, const State& state) {
    return out << state.name;
}

class ToolStatesTest : public MainWorld, public testing::WithParamInterface<State> {
public:
    void noServer() {
        configure({}, 10, "");
        load();
    }
    void noConnection() {
        configure({12}, 10, "elsewhere");
        load();
    }
    void noMailbox() {
        configure({});
        load();
    }
    void emptyLog() {
        configure({12});
        mailbox(12);
        load();
    }
    void nothingSelected() { loadCalls({12}); }
    void callWithMessage() {
        loadCalls({12});
        select("KC1");
    }
    void callWithoutMessage() {
        loadCalls({12});
        select("KC2");
    }
    void playing() {
        callWithMessage();
        window->ab_ToolClick("miSPlay");
    }
    void playingAndAnotherCallSelected() {
        playing();
        select("KC2");
    }
    void playingInTheTray() {
        playing();
        window->showWindow();
        window->close();
    }
    void paused() {
        playing();
        window->ab_ToolClick("miSPause");
    }
    void stopped() {
        playing();
        window->ab_ToolClick("miSStop");
    }
    void ended() {
        playing();
        sound.isRunning = false;
        sound.ending = mediagraph::EventCode::Complete;
        ASSERT_TRUE(QTest::qWaitFor([this] { return !player().IsPlaying(); }));
    }
    void missingMessage() {
        callWithMessage();
        std::filesystem::remove(folder.path("share/MBX/12/C1.wav"));
        window->ab_ToolClick("miSPlay");
    }
    void newCallWhilePlaying() {
        playing();
        mailbox(12).append({"C3", "Carl", 3});
        tick();
    }
    void anotherTab() {
        loadCalls({12, 15});
        select("KC1");
        tabStrip().SetSelectedItem(2);
        Q_EMIT tabStrip().Click();
    }
    void everythingSelected() {
        callWithMessage();
        window->ab_ToolClick("miESelectAll");
        window->UpdateButtonStates();
    }
    void emptied() {
        playing();
        window->ab_ToolClick("miEClear");
    }
    void serverGone() {
        callWithMessage();
        removeShare();
        tick();
    }

protected:
    void loadCalls(const std::vector<int>& ids) {
        configure(ids);
        for (const int id : ids) {
            mailbox(id).append({"C1", "Anna", 7});
            mailbox(id).append({"C2", "Ben", 0});
            makeSound(id, "C1.wav");
        }
        load();
    }
    void select(const char* key) {
        const forms::ListItem item = list().ListItems().Item(key);
        list().SetSelectedItem(item);
        Q_EMIT list().ItemClick(item.Index());
    }
    std::string buttons() { return playerButtons(window->ab()); }
    // Tools but the five buttons that are disabled or pressed.
    std::vector<std::string> changedOthers() {
        std::vector<std::string> found;
        for (int band = 0; band < window->ab().BandCount(); ++band)
            for (int index = band == 0 ? 5 : 0; index < window->ab().Bands(band).ToolCount(); ++index) {
                const forms::Tool& tool = window->ab().Bands(band).Tools(index);
                if (!tool.Enabled() || tool.Checked())
                    found.push_back(window->ab().Bands(band).Name() + ' ' + tool.Name());
            }
        return found;
    }
};

TEST_P(ToolStatesTest, ButtonsFollowAndNoOtherToolIsEverDisabledOrPressed) {
    (this->*GetParam().reach)();
    EXPECT_EQ(buttons(), GetParam().buttons);
    EXPECT_THAT(changedOthers(), IsEmpty());
    EXPECT_TRUE(errorHandler.reports.empty());
}

using States = ToolStatesTest;

INSTANTIATE_TEST_SUITE_P(
    With, ToolStatesTest,
    testing::Values(
        State{"NoServer", &States::noServer, "-----"}, State{"NoConnection", &States::noConnection, "-----"},
        State{"NoMailbox", &States::noMailbox, "-----"}, State{"AnEmptyLog", &States::emptyLog, "-----"},
        State{"NothingSelected", &States::nothingSelected, "-----"},
        State{"ACallWithAMessage", &States::callWithMessage, "+----"},
        State{"ACallWithoutAMessage", &States::callWithoutMessage, "-----"},
        State{"AMessagePlaying", &States::playing, "x++++"},
        State{"AnotherCallSelectedWhilePlaying", &States::playingAndAnotherCallSelected, "x++++"},
        State{"AMessagePlayingInTheTray", &States::playingInTheTray, "x++++"},
        State{"AMessagePaused", &States::paused, "++x++"},
        State{"AMessageStopped", &States::stopped, "+----"}, State{"AMessageEnded", &States::ended, "+----"},
        State{"AMissingMessage", &States::missingMessage, "+----"},
        State{"ANewCallWhilePlaying", &States::newCallWhilePlaying, "x++++"},
        State{"AnotherTab", &States::anotherTab, "-----"},
        State{"EverythingSelected", &States::everythingSelected, "+----"},
        State{"AnEmptiedLog", &States::emptied, "-----"},
        State{"AServerThatWentAway", &States::serverGone, "+----"}),
    [](const auto& tried) { return tried.param.name; });

} // namespace
} // namespace app
