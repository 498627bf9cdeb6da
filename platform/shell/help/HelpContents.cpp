// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/shell/help/HelpContents.h"

#include <QRegularExpression>
#include <QTextDocumentFragment>

#include <algorithm>

namespace shell::help {
namespace {

QString attribute(const QString& tag, const QString& name) {
    const QRegularExpression pattern(QStringLiteral("\\b%1\\s*=\\s*\"([^\"]*)\"").arg(name),
                                     QRegularExpression::CaseInsensitiveOption);
    return QTextDocumentFragment::fromHtml(pattern.match(tag).captured(1)).toPlainText();
}

class Reader {
public:
    void take(const QString& name, const QString& tag) {
        if (name == u"ul")
            ++m_depth;
        else if (name == u"/ul")
            m_depth = std::max(m_depth - 1, 0);
        else if (name == u"object")
            m_topic = {{}, {}, std::clamp(m_depth - 1, 0, kDeepestLevel)};
        else if (name == u"param")
            takeParameter(attribute(tag, QStringLiteral("name")), attribute(tag, QStringLiteral("value")));
        else if (name == u"/object" && !m_topic.title.isEmpty())
            m_topics.push_back(std::exchange(m_topic, {}));
    }

    bool isFull() const { return m_topics.size() == kMostTopics; }
    std::vector<HelpTopic> topics() && { return std::move(m_topics); }

private:
    void takeParameter(const QString& name, const QString& value) {
        if (name.compare(u"Name", Qt::CaseInsensitive) == 0)
            m_topic.title = value;
        else if (name.compare(u"Local", Qt::CaseInsensitive) == 0)
            m_topic.page = value;
    }

    std::vector<HelpTopic> m_topics;
    HelpTopic m_topic;
    int m_depth = 0;
};

} // namespace

std::vector<HelpTopic> readHelpContents(const QString& html) {
    static const QRegularExpression tag(QStringLiteral("<(/?[a-zA-Z]+)[^>]*>"));
    Reader reader;
    auto tags = tag.globalMatch(html);
    while (tags.hasNext() && !reader.isFull()) {
        const auto match = tags.next();
        reader.take(match.captured(1).toLower(), match.captured(0));
    }
    return std::move(reader).topics();
}

} // namespace shell::help
