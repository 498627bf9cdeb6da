// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/shell/help/HelpSearch.h"

#include <QSet>
#include <QTextDocumentFragment>

#include <algorithm>

namespace shell::help {
namespace {

bool hasAll(const QString& text, const QStringList& words) {
    return std::all_of(words.begin(), words.end(),
                       [&](const QString& word) { return text.contains(word, Qt::CaseInsensitive); });
}

} // namespace

HelpSearch::HelpSearch(const HelpBook& book) {
    QSet<QUrl> listed;
    for (std::size_t index = 0; index < book.topics().size(); ++index) {
        const HelpTopic& topic = book.topics()[index];
        const QUrl address = book.find(topic.page);
        const auto html = book.read(address);
        if (!html || listed.contains(address))
            continue;
        listed.insert(address);
        m_pages.push_back(
            {index, topic.title, QTextDocumentFragment::fromHtml(QString::fromUtf8(*html)).toPlainText()});
    }
}

QStringList HelpSearch::wordsOf(const QString& query) {
    return query.simplified().split(u' ', Qt::SkipEmptyParts);
}

std::vector<std::size_t> HelpSearch::find(const QString& query) const {
    const QStringList words = wordsOf(query);
    std::vector<std::size_t> inTitle;
    std::vector<std::size_t> inText;
    for (const Page& page : m_pages) {
        if (words.isEmpty())
            break;
        if (hasAll(page.title, words))
            inTitle.push_back(page.topic);
        else if (hasAll(page.title + u'\n' + page.text, words))
            inText.push_back(page.topic);
    }
    inTitle.insert(inTitle.end(), inText.begin(), inText.end());
    return inTitle;
}

} // namespace shell::help
