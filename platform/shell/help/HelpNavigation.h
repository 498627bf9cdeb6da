// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The left side of the help window: a search field above the table of contents. As soon as something is
// typed, the pages found take the table's place; the emptied field brings it back. User-interface thread.

#include "platform/shell/help/HelpSearch.h"
#include "platform/shell/help/HelpSurroundings.h"

#include <QWidget>

#include <memory>
#include <optional>

class QLineEdit;
class QListWidget;
class QStackedWidget;
class QTreeWidget;
class QTreeWidgetItem;

namespace shell::help {

class HelpNavigation : public QWidget {
    Q_OBJECT
public:
    HelpNavigation(const HelpTexts& texts, QWidget* parent = nullptr);

    void setBook(std::shared_ptr<const HelpBook> book);
    // Selects the page's entry in the table of contents, without raising anything.
    void showAsCurrent(const QUrl& address);
    void focusSearch();

Q_SIGNALS:
    // The words are those searched for, none when the page was chosen in the table of contents.
    void pageWanted(const QUrl& address, const QStringList& words);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void build(const HelpTexts& texts);
    void colourHint();
    void fillContents();
    void search(const QString& query);
    void chooseTopic(const QTreeWidgetItem* item);
    void chooseFound();

    QString m_nothingFound;
    QLineEdit* m_txtSearch;
    QStackedWidget* m_pages;
    QTreeWidget* m_tvContents;
    QListWidget* m_lsFound;
    std::shared_ptr<const HelpBook> m_book;
    std::optional<HelpSearch> m_search; // made with the first query
};

} // namespace shell::help
