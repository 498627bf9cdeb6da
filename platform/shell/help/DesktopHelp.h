// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// Help files in a window of this program's own, one window for all calls. It belongs to no other window: the
// caller may be hidden while it is read. The file is read anew with each call. Goes before the application
// object does, and the window with it; user-interface thread.

#include "platform/shell/HelpViewer.h"
#include "platform/shell/help/HelpBook.h"
#include "platform/shell/help/HelpSurroundings.h"

#include <memory>

namespace shell::help {

class HelpWindow;

class DesktopHelp : public HelpViewer {
public:
    DesktopHelp(HelpLayout layout, HelpSurroundings surroundings);
    DesktopHelp(const DesktopHelp&) = delete;
    DesktopHelp& operator=(const DesktopHelp&) = delete;
    ~DesktopHelp() override;

    bool HtmlHelpA(QWidget* caller, const QString& file, std::uint32_t command,
                   const QString& topic) override;

    // Null before the first page was shown.
    HelpWindow* window() const { return m_window.get(); }

private:
    HelpLayout m_layout;
    HelpSurroundings m_surroundings;
    std::unique_ptr<HelpWindow> m_window;
};

// With a browser or mail program of the workstation.
void openWithTheDesktop(const QUrl& address);
// Asks for a printer and prints.
void printWithDialog(QTextDocument& document, QWidget& parent);

} // namespace shell::help
