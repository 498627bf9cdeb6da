// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// The tray component and the popup on a real desktop, for tests that look at it from outside. Prints each
// event as a line and obeys the lines of the FIFO named by its argument:
//   tip TEXT, icon, alert TEXT, balloon TEXT, enable INDEX, disable INDEX, state, quit

#include "platform/shell/DesktopNotificationArea.h"
#include "platform/shell/DesktopTrayHosts.h"
#include "platform/shell/NotificationAreaWatch.h"
#include "platform/shell/WorkstationWindows.h"
#include "resources/Icons.h"
#include "resources/StringTable.h"
#include "tray/frmAlert.h"
#include "tray/frmSysTray.h"

#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QSocketNotifier>
#include <QTextStream>

#include <fcntl.h>
#include <unistd.h>

namespace {

void say(const QString& line) {
    QTextStream(stdout) << line << Qt::endl;
}

class Abort : public errors::ErrorHandler {
public:
    errors::ErrorAction ReportError(std::string_view, std::string_view procedure, std::int32_t number,
                                    std::string_view, std::int32_t) override {
        say(u"error %1 %2"_qs.arg(QString::fromUtf8(procedure.data(), qsizetype(procedure.size())))
                .arg(number));
        return errors::ErrorAction::Abort;
    }
};

class Probe {
public:
    explicit Probe(const char* fifo)
        : m_input(open(fifo, O_RDWR | O_NONBLOCK)), m_notifier(m_input, QSocketNotifier::Read) {
        QObject::connect(&m_notifier, &QSocketNotifier::activated, &m_notifier, [this] { readCommands(); });
        wireTray();
        QObject::connect(&m_alert, &tray::frmAlert::Show, &m_alert, [this](bool& ShowList) {
            say(u"Show %1 %2"_qs.arg(ShowList).arg(m_alert.isVisible()));
        });
        QObject::connect(&m_watch, &shell::NotificationAreaWatch::missing, &m_alert,
                         [] { say(u"missing"_qs); });
        fillMenu();
        say(u"ready"_qs);
    }
    ~Probe() { close(m_input); }

private:
    void wireTray() {
        using tray::frmSysTray;
        QObject::connect(&m_tray, &frmSysTray::SysTrayMouseDown, &m_tray, [this](int Button) {
            say(u"MouseDown %1"_qs.arg(Button));
            if (Button == 2)
                m_tray.ShowMenu();
        });
        QObject::connect(&m_tray, &frmSysTray::SysTrayMouseUp, &m_tray,
                         [](int Button) { say(u"MouseUp %1"_qs.arg(Button)); });
        QObject::connect(&m_tray, &frmSysTray::SysTrayDoubleClick, &m_tray,
                         [](int Button) { say(u"DoubleClick %1"_qs.arg(Button)); });
        QObject::connect(&m_tray, &frmSysTray::MenuClick, &m_tray, [](int Index, const QString& Key) {
            say(u"MenuClick %1 %2"_qs.arg(Index).arg(Key));
        });
        QObject::connect(&m_tray, &frmSysTray::BalloonShow, &m_tray, [] { say(u"BalloonShow"_qs); });
        QObject::connect(&m_tray, &frmSysTray::BalloonClicked, &m_tray, [] { say(u"BalloonClicked"_qs); });
        QObject::connect(&m_tray, &frmSysTray::BalloonTimeOut, &m_tray, [] { say(u"BalloonTimeOut"_qs); });
    }

    void fillMenu() {
        const auto text = [](std::int32_t id) {
            return QString::fromStdString(resources::LoadLocalString(id));
        };
        m_tray.Load();
        m_tray.AddMenuItem(text(3683), u"open"_qs, true);
        m_tray.AddMenuItem(text(3684), u"config"_qs, false);
        m_tray.AddMenuItem(u"-"_qs, QString(), false);
        m_tray.AddMenuItem(text(121), u"about"_qs, false);
        m_tray.AddMenuItem(text(3770), u"close"_qs, false);
        m_tray.setToolTip(u"Quillamar"_qs);
    }

    void readCommands() {
        char buffer[4096];
        const auto length = read(m_input, buffer, sizeof buffer);
        m_pending += QByteArray(buffer, std::max<qsizetype>(length, 0));
        for (qsizetype end = m_pending.indexOf('\n'); end >= 0; end = m_pending.indexOf('\n')) {
            const QString line = QString::fromUtf8(m_pending.left(end));
            m_pending.remove(0, end + 1);
            obey(line.section(u' ', 0, 0), line.section(u' ', 1));
        }
    }

    void obey(const QString& command, const QString& argument) {
        if (command == u"tip")
            m_tray.setToolTip(argument);
        else if (command == u"icon")
            m_tray.setIconHandle(m_icons.add(resources::newCallsPicture()));
        else if (command == u"alert")
            announce(argument);
        else if (command == u"balloon")
            m_tray.ShowBalloonTip(argument, u"Title"_qs, 1);
        else if (command == u"enable" || command == u"disable")
            m_tray.EnableMenuItem(argument.toShort(), command == u"enable");
        else if (command == u"quit")
            QApplication::quit();
        say(u"done "_qs + command);
    }

    void announce(const QString& message) {
        m_alert.lblInfo().setText(message);
        m_alert.ShowForm();
    }

    int m_input;
    QSocketNotifier m_notifier;
    QByteArray m_pending;
    Abort m_errors;
    shell::WindowTable m_windows;
    shell::IconTable m_icons;
    shell::DesktopTrayHosts m_hosts{QDBusConnection::sessionBus()};
    shell::DesktopNotificationArea m_area{m_windows, m_icons, m_hosts};
    shell::EventLoopTimer m_patience;
    shell::NotificationAreaWatch m_watch{m_hosts, m_patience};
    shell::WorkstationWindows m_desktop;
    tray::frmSysTray m_tray{{m_area, m_windows, m_icons}, u"qmClient"_qs, resources::trayIcon()};
    tray::frmAlert m_alert{m_errors, m_desktop};
};

} // namespace

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    QApplication::setApplicationName(u"qmClient"_qs);
    QApplication::setApplicationDisplayName(u"Quillamar Client"_qs);
    QApplication::setQuitOnLastWindowClosed(false);
    resources::setLanguage(resources::languageOf(qgetenv("LANG").toStdString()));
    const Probe probe(argv[1]);
    return QApplication::exec();
}
