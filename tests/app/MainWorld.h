// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// What the tests of the main window stand on: a server's share in a folder of their own with real call logs,
// settings in a registry beside it, and the real window over them. Only what would reach out of the test is
// replaced: the notification area, the desktop's rectangles and the error dialog record what they are asked.

#include "app/frmMain.h"
#include "platform/basic/RuntimeError.h"
#include "platform/forms/QtClipboard.h"
#include "platform/jet/Connection.h"
#include "platform/jet/Engine.h"
#include "platform/registry/Registry.h"
#include "platform/share/LocalFileSystemObject.h"
#include "platform/shell/NotifyIconRecord.h"
#include "platform/shell/help/DesktopHelp.h"
#include "tests/app/OptionsUser.h"
#include "tests/audio/RecordedSound.h"
#include "tests/audio/SetClock.h"
#include "tests/data/CallLogFile.h"
#include "tests/data/SettingsWorld.h"
#include "tests/dialogs/PreparedServer.h"
#include "tests/errors/RecordingErrorHandler.h"
#include "tests/platform/share/TemporaryFolder.h"

#include <QCoreApplication>
#include <QEvent>

#include <gtest/gtest.h>

#include <map>
#include <optional>
#include <string>
#include <vector>

namespace app {

class QuietNotificationArea final : public shell::NotificationArea {
public:
    bool Shell_NotifyIconA(std::uint32_t, std::span<const std::byte>) override { return true; }
    bool Shell_NotifyIconW(std::uint32_t message, std::span<const std::byte> record) override {
        if (message == failing)
            throw basic::RuntimeError(basic::kInvalidProcedureCall);
        messages.push_back(message);
        if (const auto read = shell::readNotifyIconW(record); read && read->tip)
            tip = *read->tip;
        if (onMessage)
            onMessage(message);
        return true;
    }
    void setMenu(shell::WindowHandle owner, QMenu* shownMenu) override {
        window = owner;
        menu = shownMenu;
    }
    void trackPopupMenu(shell::WindowHandle) override { ++tracked; }

    std::function<void(std::uint32_t)> onMessage;
    std::u16string tip;                   // the last one told
    std::vector<std::uint32_t> messages;  // NIM_ADD 0, NIM_MODIFY 1, NIM_DELETE 2, NIM_SETVERSION 4
    std::optional<std::uint32_t> failing; // the message that throws
    QMenu* menu = nullptr;
    shell::WindowHandle window = 0; // the icon's
    int tracked = 0;                // times the menu was shown
};

class BareDesktop final : public shell::DesktopWindows {
public:
    shell::WindowHandle FindWindowExA(std::string_view) override { return 0; }
    shell::WindowHandle GetDesktopWindow() override { return 1; }
    shell::Rectangle GetWindowRect(shell::WindowHandle) override { return {0, 0, 1024, 768}; }
    void move(QWidget& window, int left, int top) override { window.move(left, top); }
    void clearOwner(QWidget&) override {}
    void makeTopMost(QWidget&) override {}
};

class MainWorld : public testing::Test {
protected:
    MainWorld() : MainWorld(nullptr) {}
    // Failures go to `other` instead of errorHandler.
    explicit MainWorld(errors::ErrorHandler* other) : reportTo(other != nullptr ? *other : errorHandler) {}
    // What an unloaded window left for later goes before the services that it needs.
    ~MainWorld() override {
        window.reset();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }

    // The settings name the server; its share is there unless removeShare() is called.
    void configure(const std::vector<int>& mailboxes, int pollSeconds = 10,
                   const std::string& server = "srv01");
    tests::CallLogFile& mailbox(int id);
    // A file beside the mailbox's call log; answers its path.
    std::string makeSound(int id, const std::string& name) const {
        return folder.makeFile("share/MBX/" + std::to_string(id) + "/" + name, "RIFF");
    }
    void removeShare() const;
    void load();
    // The same in two steps.
    void create();

    forms::TabStrip& tabStrip() { return *window->findChild<forms::TabStrip*>(); }
    forms::ListView& list() { return *window->findChild<forms::ListView*>(); }
    std::vector<std::string> column(int index);
    std::string onlyLine();
    tray::frmAlert* popup();
    std::string popupText();
    void clickPopup(const char* label);
    std::string settingsFile() const {
        return registry::RegistryFolder::content(folder.path("registry.reg"));
    }
    audio::PlayerServices playerServices();
    std::shared_ptr<data::clsConfig> newConfig();
    audio::ctlAudio& player() { return *window->findChild<audio::ctlAudio*>(); }
    void tick() { window->mTimer_ThatTime(); }
    // Only srv01 has a share.
    std::optional<std::string> shareOf(std::string_view server) const {
        onShare();
        return server == "srv01" ? std::optional(folder.path("share")) : std::nullopt;
    }

    share::ShareResolver resolver() const {
        return {[this](std::string_view server) { return shareOf(server); }, [] { return std::string(); }};
    }

    // The same share for another thread.
    share::ShareResolver searched() const {
        return {[path = folder.path("share")](std::string_view server) {
                    return server == "srv01" ? std::optional(path) : std::nullopt;
                },
                [] { return std::string(); }};
    }

    share::testing::TemporaryFolder folder;
    errors::RecordingErrorHandler errorHandler;
    errors::ErrorHandler& reportTo;
    data::RecordedBoxes messageBoxes;
    forms::QtClipboard clipboard;
    QuietNotificationArea notificationArea;
    BareDesktop desktop;
    shell::WindowTable windows;
    shell::IconTable icons;
    basic::DateTimeFormat format;
    registry::SystemCalls systemCalls;
    registry::Registry registry{registry::RegistryPaths{folder.path("registry.reg"), {}}, systemCalls};
    share::LocalFileSystemObject files{resolver()};
    jet::Engine engine{files, [](int) {}, {.tries = 2, .sleep = [](std::chrono::milliseconds) {}}};
    data::basCommon common{reportTo, files, [this] { return std::make_shared<jet::Connection>(engine); }};
    audio::RecordedSound sound;
    audio::SetClock clock;
    data::basRegistry values{registry, messageBoxes};
    std::function<void(std::int32_t)> onSleep = [](std::int32_t) {};
    audio::basAudio audioDevices{reportTo, sound, [this](std::int32_t ms) { onSleep(ms); }};
    std::map<int, tests::CallLogFile> mailboxes;
    shell::help::DesktopHelp help{
        {{}, QStringLiteral("Client_Contents.hhc")},
        {.texts = {}, .icons = {}, .openOutside = [](const QUrl&) {}, .print = [](auto&, auto&) {}}};
    std::vector<std::string> startedPrograms;
    std::function<void()> onShare = [] {};      // somebody asks for the server's share
    std::function<void()> onNewConfig = [] {};  // somebody makes a configuration
    std::function<void()> onConfigGone = [] {}; // it is released
    dialogs::PreparedServer servers;
    dialogs::MailboxSearch search{[this](const std::string&) {
        return dialogs::SearchedShare{std::make_unique<share::LocalFileSystemObject>(searched()), {}};
    }};
    OptionsUser options;
    ShareAccess shareAccess;
    std::optional<frmMain> window;
};

} // namespace app
