// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/app/MainWorld.h"

#include <QApplication>
#include <QLabel>
#include <QMouseEvent>
#include <QTest>

namespace app {
namespace {

std::string settings(const std::vector<int>& mailboxes, int pollSeconds, const std::string& server) {
    const std::string client = "[HKEY_CURRENT_USER\\Software\\Corvantis\\Quillamar\\1.0\\Client";
    std::string text = "Windows Registry Editor Version 5.00\r\n\r\n" + client + "]\r\n\"ServerName\"=\"" +
                       server + "\"\r\n\"PollInterval\"=\"" + std::to_string(pollSeconds) + "\"\r\n";
    for (const int id : mailboxes) {
        const std::string name = std::to_string(id);
        text.append("\r\n")
            .append(client)
            .append("\\Mailboxes\\")
            .append(name)
            .append("]\r\n\"Name\"=\"Box ");
        text.append(name).append("\"\r\n\"Description\"=\"\"\r\n\"MailboxType\"=\"M\"\r\n");
    }
    return text;
}

} // namespace

void MainWorld::configure(const std::vector<int>& ids, int pollSeconds, const std::string& server) {
    folder.makeFile("registry.reg", settings(ids, pollSeconds, server));
    folder.makeFolder("share/MBX");
}

tests::CallLogFile& MainWorld::mailbox(int id) {
    const auto file = folder.path("share/MBX/" + std::to_string(id) + "/qmLog.mdb");
    const auto [found, isNew] = mailboxes.try_emplace(id, file);
    if (isNew)
        found->second.create();
    return found->second;
}

void MainWorld::removeShare() const {
    std::filesystem::remove_all(folder.path("share"));
}

void MainWorld::load() {
    create();
    window->Form_Load();
}

void MainWorld::create() {
    window.emplace(MainServices{reportTo,
                                files,
                                common,
                                clipboard,
                                messageBoxes,
                                desktop,
                                tray::TrayServices{notificationArea, windows, icons},
                                format,
                                [this] { return newConfig(); },
                                playerServices(),
                                {help, QCoreApplication::applicationDirPath(), registry,
                                 [this](const std::string& path) { startedPrograms.push_back(path); }},
                                dialogs::OptionsServices{search, servers},
                                shareAccess});
}

std::shared_ptr<data::clsConfig> MainWorld::newConfig() {
    onNewConfig();
    return {new data::clsConfig(registry, messageBoxes, reportTo), [this](data::clsConfig* config) {
                const std::unique_ptr<data::clsConfig> released(config);
                onConfigGone();
            }};
}

audio::PlayerServices MainWorld::playerServices() {
    return {reportTo, messageBoxes, files, audioDevices, [this] {
                return std::make_shared<audio::clsWave>(
                    audio::WaveServices{reportTo, messageBoxes, sound, audioDevices, values, clock});
            }};
}

std::vector<std::string> MainWorld::column(int index) {
    auto& items = window->findChild<forms::ListView*>(QStringLiteral("lsCalls"))->ListItems();
    std::vector<std::string> texts;
    for (int i = 1; i <= items.Count(); ++i)
        texts.emplace_back(index == 0 ? items.Item(i).Text() : items.Item(i).SubItems(index));
    return texts;
}

std::string MainWorld::onlyLine() {
    const auto lines = column(0);
    return lines.size() == 1 ? lines[0] : "(" + std::to_string(lines.size()) + " lines)";
}

// The popup is a window of its own, found like any other.
tray::frmAlert* MainWorld::popup() {
    for (QWidget* widget : QApplication::topLevelWidgets())
        if (auto* alert = qobject_cast<tray::frmAlert*>(widget); alert != nullptr && alert->isVisible())
            return alert;
    return nullptr;
}

std::string MainWorld::popupText() {
    return popup() == nullptr ? "" : popup()->lblInfo().text().toStdString();
}

void MainWorld::clickPopup(const char* label) {
    auto* link = popup()->findChild<QWidget*>(QString::fromLatin1(label));
    QTest::mouseClick(link, Qt::LeftButton);
}

} // namespace app
