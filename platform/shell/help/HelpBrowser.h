// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// Shows the pages of a help file. Everything it loads comes out of that file: what a page names elsewhere is
// not fetched, pictures included. A click on a link within the file goes there; on one to the web or to a
// mail address it raises `outsideWanted`; on any other nothing happens. User-interface thread.

#include "platform/shell/help/HelpBook.h"

#include <QStringList>
#include <QTextBrowser>

#include <memory>

namespace shell::help {

class HelpBrowser : public QTextBrowser {
    Q_OBJECT
public:
    explicit HelpBrowser(QWidget* parent = nullptr);

    // Forgets the pages shown before.
    void setBook(std::shared_ptr<const HelpBook> book);
    // Does nothing when there is no such page. A fragment leads to its place in the page.
    void showPage(const QUrl& address);
    // Marks every place of the words in the page, until another page is shown, and goes to the first.
    void mark(const QStringList& words);

    QVariant loadResource(int type, const QUrl& name) override;

Q_SIGNALS:
    void outsideWanted(const QUrl& address);

private:
    void follow(const QUrl& address);
    QList<QTextEdit::ExtraSelection> placesOf(const QString& word) const;

    std::shared_ptr<const HelpBook> m_book;
};

} // namespace shell::help
