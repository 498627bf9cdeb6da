// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/shell/help/DesktopHelp.h"

#include "platform/shell/help/HelpWindow.h"

#include <QDesktopServices>
#include <QPrintDialog>
#include <QPrinter>
#include <QScreen>
#include <QTextDocument>

namespace shell::help {
namespace {

// On the caller's screen, and never larger than what is free of it.
void place(QWidget& window, const QWidget* caller) {
    const QRect free = (caller != nullptr ? caller->screen() : window.screen())->availableGeometry();
    window.resize(window.size().boundedTo(free.size() * 9 / 10));
    window.move(free.center() - window.rect().center());
}

} // namespace

DesktopHelp::DesktopHelp(HelpLayout layout, HelpSurroundings surroundings)
    : m_layout(std::move(layout)), m_surroundings(std::move(surroundings)) {}

DesktopHelp::~DesktopHelp() = default;

bool DesktopHelp::HtmlHelpA(QWidget* caller, const QString& file, std::uint32_t command,
                            const QString& topic) {
    if (command != HH_DISPLAY_TOPIC)
        return false;
    const std::shared_ptr<const HelpBook> book = HelpBook::open(file, m_layout);
    if (!book || !book->find(topic).isValid())
        return false;
    if (!m_window) {
        m_window = std::make_unique<HelpWindow>(m_surroundings);
        place(*m_window, caller);
    }
    m_window->open(book, topic);
    m_window->setWindowState(m_window->windowState() & ~Qt::WindowMinimized);
    m_window->show();
    m_window->raise();
    m_window->activateWindow();
    return true;
}

void openWithTheDesktop(const QUrl& address) {
    QDesktopServices::openUrl(address);
}

void printWithDialog(QTextDocument& document, QWidget& parent) {
    QPrinter printer;
    QPrintDialog dialog(&printer, &parent);
    if (dialog.exec() == QDialog::Accepted)
        document.print(&printer);
}

} // namespace shell::help
