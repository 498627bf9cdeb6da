// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/shell/help/HelpBrowser.h"

#include <QImage>

#include <algorithm>

namespace shell::help {
namespace {

constexpr qreal kMargin = 16;

// The toolkit looks for a picture in the file system when it is given none.
QImage noPicture() {
    QImage image(1, 1, QImage::Format_ARGB32);
    image.fill(Qt::transparent);
    return image;
}

bool isForOtherPrograms(const QUrl& address) {
    static const QStringList schemes{QStringLiteral("http"), QStringLiteral("https"),
                                     QStringLiteral("mailto")};
    return schemes.contains(address.scheme());
}

} // namespace

HelpBrowser::HelpBrowser(QWidget* parent) : QTextBrowser(parent) {
    setOpenLinks(false);
    document()->setDocumentMargin(kMargin);
    connect(this, &QTextBrowser::anchorClicked, this, &HelpBrowser::follow);
    connect(this, &QTextBrowser::sourceChanged, this, [this] {
        setExtraSelections({});
        setAccessibleName(documentTitle());
    });
}

void HelpBrowser::setBook(std::shared_ptr<const HelpBook> book) {
    m_book = std::move(book);
    setSource(QUrl());
    clearHistory();
}

void HelpBrowser::showPage(const QUrl& address) {
    if (m_book && m_book->has(address))
        setSource(address, QTextDocument::HtmlResource);
}

QVariant HelpBrowser::loadResource(int type, const QUrl& name) {
    const auto bytes = m_book ? m_book->read(source().resolved(name)) : std::nullopt;
    if (type == QTextDocument::ImageResource)
        return bytes ? QVariant(*bytes) : QVariant(noPicture());
    return bytes ? QVariant(QString::fromUtf8(*bytes)) : QVariant();
}

void HelpBrowser::follow(const QUrl& link) {
    const QUrl address = source().resolved(link);
    if (HelpBook::isInside(address))
        showPage(address);
    else if (isForOtherPrograms(address))
        Q_EMIT outsideWanted(address);
}

void HelpBrowser::mark(const QStringList& words) {
    QList<QTextEdit::ExtraSelection> places;
    for (const QString& word : words)
        places += placesOf(word);
    setExtraSelections(places);
    const auto first = std::min_element(places.begin(), places.end(), [](const auto& a, const auto& b) {
        return a.cursor.selectionStart() < b.cursor.selectionStart();
    });
    if (first == places.end())
        return;
    QTextCursor cursor = first->cursor;
    cursor.setPosition(cursor.selectionStart());
    setTextCursor(cursor);
    ensureCursorVisible();
}

QList<QTextEdit::ExtraSelection> HelpBrowser::placesOf(const QString& word) const {
    QList<QTextEdit::ExtraSelection> places;
    QTextCharFormat format;
    format.setBackground(palette().highlight());
    format.setForeground(palette().highlightedText());
    for (QTextCursor at = document()->find(word); !at.isNull(); at = document()->find(word, at))
        places.push_back({at, format});
    return places;
}

} // namespace shell::help
