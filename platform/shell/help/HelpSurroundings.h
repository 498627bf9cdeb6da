// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// What the help window is given from outside: its texts and pictures, and what reaches out of the program.

#include <QIcon>
#include <QString>

#include <functional>

class QTextDocument;
class QUrl;
class QWidget;

namespace shell::help {

struct HelpTexts {
    QString title;
    QString contents;
    QString search; // the search field's own text while it is empty
    QString found;  // what the list of found pages is called
    QString nothingFound;
    QString back;
    QString forward;
    QString start;
    QString print;
};

struct HelpIcons {
    QIcon window;
    QIcon back;
    QIcon forward;
    QIcon start;
    QIcon print;
};

struct HelpSurroundings {
    HelpTexts texts;
    HelpIcons icons;
    std::function<void(const QUrl&)> openOutside;
    std::function<void(QTextDocument&, QWidget& parent)> print;
};

} // namespace shell::help
