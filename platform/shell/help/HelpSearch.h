// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// Finds the pages of a table of contents that hold all words of a query, without regard to case; parts of
// words count. Reads all pages when it is made. One thread.

#include "platform/shell/help/HelpBook.h"

#include <QString>
#include <QStringList>

#include <vector>

namespace shell::help {

class HelpSearch {
public:
    explicit HelpSearch(const HelpBook& book);

    static QStringList wordsOf(const QString& query);

    // Indices of book.topics(): those with all words in their title first, then the others, each in their
    // order. A page that is listed twice is found once. Without a word nothing is found.
    std::vector<std::size_t> find(const QString& query) const;

private:
    struct Page {
        std::size_t topic;
        QString title;
        QString text;
    };

    std::vector<Page> m_pages;
};

} // namespace shell::help
