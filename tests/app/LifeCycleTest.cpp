// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
// One whole run of the real window, written down as it meets the outside: in which order it starts, and in
// which order it lets go of everything.
#include "app/OutsideEvents.h"
#include "app/TerminationSignals.h"
#include "resources/StringTable.h"
#include "tests/app/MainWorld.h"

#include <QApplication>
#include <QCoreApplication>
#include <QDialog>
#include <QEvent>
#include <QMenu>
#include <QPointer>
#include <QTest>

#include <csignal>

namespace app {
namespace {

using Trace = std::vector<std::string>;

class LifeCycleTest : public MainWorld {
protected:
    void SetUp() override {
        resources::setLanguage(resources::Language::German);
        configure({12});
        mailbox(12).append(2);
        create();
        observer.trace = &trace;
        window->installEventFilter(&observer);
        notificationArea.onMessage = [this](std::uint32_t message) { noteIcon(message); };
        onNewConfig = [this] { note("configuration"); };
        onShare = [this] {
            if (window->state().config && trace.back() != "share")
                note("share");
        };
        QObject::connect(&*window, &frmMain::ItemChanged, &*window,
                         [this](const auto&, const std::string& callID) { note("call " + callID); });
    }
    void TearDown() override {
        window.reset(); // before what its end is written into
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        resources::setLanguage(resources::Language::English);
    }

    void note(const std::string& event) { trace.push_back(event); }
    void noteIcon(std::uint32_t message) {
        if (message == 0)
            note("icon");
        if (message == 2)
            note("icon gone");
    }
    // Ends what a whole run has, and writes down what goes when, with what is still there then.
    void watchTheEnd() {
        onSleep = [this](std::int32_t) {
            if (trace.empty())
                note("player stops; player docked " + yesNo(isPlayerDocked()) + ", ticking " +
                     yesNo(window->timer().Enabled()));
        };
        notificationArea.onMessage = [this](std::uint32_t message) {
            noteIcon(message);
            EXPECT_FALSE(isPlayerDocked());
            EXPECT_FALSE(window->timer().Enabled());
            EXPECT_NE(window->state().currentConnection, nullptr);
        };
        onConfigGone = [this] {
            note("configuration gone");
            EXPECT_EQ(window->state().currentConnection, nullptr);
            EXPECT_EQ(window->state().listConnection, nullptr);
        };
        QObject::connect(&details(), &QObject::destroyed, [this] { note("details gone"); });
        QObject::connect(popup(), &QObject::destroyed, [this] { note("popup gone"); });
        QObject::connect(&*window, &frmMain::unloaded, [this] { note("unloaded"); });
        trace.clear();
    }
    bool isPlayerDocked() { return window->ab().Bands("Status").Tools("miSProgress").Custom() != nullptr; }
    QDialog& details() { return *window->findChild<QDialog*>(QStringLiteral("frmCallDetails")); }
    // Of the newest window, shown or not.
    static QWidget* newestPopup() {
        QWidget* newest = nullptr;
        for (QWidget* widget : QApplication::topLevelWidgets())
            if (qobject_cast<tray::frmAlert*>(widget) != nullptr)
                newest = widget;
        return newest;
    }
    // As the program is wired: what the session sends, and the signals that mean the same.
    void sendTermination() {
        const OutsideEvents events{errorHandler,
                                   {[] {}, [] {}, [] {}, [this] { window->unload(UnloadMode::SessionEnd); }}};
        TerminationSignals signals;
        QObject::connect(&signals, &TerminationSignals::received, &*window, [&] { events.sessionEnds(); });
        std::raise(SIGTERM);
        EXPECT_FALSE(window->isUnloaded()) << "not from inside the signal's handler";
        EXPECT_TRUE(QTest::qWaitFor([this] { return window->isUnloaded(); }));
    }
    static std::string yesNo(bool value) { return value ? "yes" : "no"; }

    // The events of the window itself that a start-up has.
    class Observer : public QObject {
    public:
        Trace* trace = nullptr;

    protected:
        bool eventFilter(QObject* watched, QEvent* event) override {
            if (event->type() == QEvent::WindowTitleChange)
                trace->push_back(static_cast<QWidget*>(watched)->windowTitle().toStdString());
            return false;
        }
    };

    Observer observer;
    Trace trace;
};

TEST_F(LifeCycleTest, StartsInItsOrder) {
    window->Form_Load();
    EXPECT_EQ(trace, (Trace{"Quillamar Anrufe", "Quillamar - Anrufe", "icon", "configuration", "share",
                            "call -1", "share", "call -1"}));
    EXPECT_TRUE(isPlayerDocked());
    EXPECT_FALSE(window->isVisible());
    EXPECT_FALSE(details().isVisible());
    EXPECT_TRUE(window->timer().Enabled());
    EXPECT_TRUE(errorHandler.reports.empty());
}

TEST_F(LifeCycleTest, LetsGoOfEverythingInItsOrder) {
    window->Form_Load();
    window->showWindow();
    list().SetSelectedItem(list().ListItems().Item(1));
    window->ab_ToolClick("miEDetails");
    mailbox(12).append(1);
    tick();
    list().SetSelectedItem(list().ListItems().Item(1));
    window->ChangeItem();
    ASSERT_NE(popup(), nullptr);
    const std::weak_ptr<jet::Connection> connection = window->state().currentConnection;
    watchTheEnd();

    window->unload(UnloadMode::Code);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_EQ(trace, (Trace{"player stops; player docked yes, ticking yes", "icon gone", "configuration gone",
                            "details gone", "unloaded", "popup gone"}));
    EXPECT_TRUE(connection.expired());
    EXPECT_TRUE(errorHandler.reports.empty());
}

TEST_F(LifeCycleTest, EveryWayOutRunsTheSameSequence) {
    const auto close = [this] { notificationArea.menu->actions().last()->trigger(); };
    const std::vector<std::pair<const char*, std::function<void()>>> ways{
        {"tray",
         [&] {
             close();
             EXPECT_FALSE(window->isUnloaded()) << "not from inside the menu's handler";
             tick();
         }},
        {"menu", [this] { window->ab_ToolClick("miFExit"); }},
        {"session end", [this] { window->unload(UnloadMode::SessionEnd); }},
        {"SIGTERM", [this] { sendTermination(); }}};
    for (const auto& [name, leave] : ways) {
        create();
        window->Form_Load();
        window->showWindow();
        list().SetSelectedItem(list().ListItems().Item(1));
        window->ab_ToolClick("miEDetails");
        const QPointer<QDialog> dialog = &details();
        const QPointer<QWidget> alert = newestPopup();
        ASSERT_FALSE(alert.isNull()) << name;
        const std::weak_ptr<jet::Connection> connection = window->state().currentConnection;
        ASSERT_FALSE(connection.expired()) << name;
        leave();
        EXPECT_TRUE(window->isUnloaded()) << name;
        EXPECT_EQ(notificationArea.messages.back(), 2U) << name;
        EXPECT_FALSE(isPlayerDocked()) << name;
        EXPECT_FALSE(window->timer().Enabled()) << name;
        EXPECT_EQ(window->state().config, nullptr) << name;
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        EXPECT_TRUE(dialog.isNull()) << name;
        EXPECT_TRUE(alert.isNull()) << name;
        EXPECT_TRUE(connection.expired()) << name;
        EXPECT_FALSE(window->isVisible()) << name;
    }
    EXPECT_TRUE(errorHandler.reports.empty());
}

} // namespace
} // namespace app
