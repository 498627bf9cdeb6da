// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/shell/help/HelpNavigation.h"

#include <QHeaderView>
#include <QKeyEvent>
#include <QLineEdit>
#include <QListWidget>
#include <QSignalBlocker>
#include <QStackedWidget>
#include <QTreeWidget>
#include <QTreeWidgetItemIterator>
#include <QVBoxLayout>

namespace shell::help {
namespace {

constexpr int kAddressRole = Qt::UserRole;
constexpr int kHintAlpha = 150; // of 255

QTreeWidgetItem* parentOf(const std::vector<QTreeWidgetItem*>& open, int level) {
    const auto deepest = static_cast<int>(open.size());
    return level > 0 && deepest > 0 ? open[static_cast<std::size_t>(std::min(level, deepest) - 1)] : nullptr;
}

} // namespace

HelpNavigation::HelpNavigation(const HelpTexts& texts, QWidget* parent)
    : QWidget(parent), m_nothingFound(texts.nothingFound), m_txtSearch(new QLineEdit(this)),
      m_pages(new QStackedWidget(this)), m_tvContents(new QTreeWidget), m_lsFound(new QListWidget) {
    build(texts);
    connect(m_txtSearch, &QLineEdit::textChanged, this, &HelpNavigation::search);
    connect(m_txtSearch, &QLineEdit::returnPressed, this, &HelpNavigation::chooseFound);
    connect(m_tvContents, &QTreeWidget::currentItemChanged, this,
            [this](const QTreeWidgetItem* item) { chooseTopic(item); });
    connect(m_tvContents, &QTreeWidget::itemClicked, this, &HelpNavigation::chooseTopic);
    connect(m_lsFound, &QListWidget::itemClicked, this, &HelpNavigation::chooseFound);
    connect(m_lsFound, &QListWidget::itemActivated, this, &HelpNavigation::chooseFound);
}

void HelpNavigation::build(const HelpTexts& texts) {
    m_txtSearch->setObjectName(QStringLiteral("txtSearch"));
    m_tvContents->setObjectName(QStringLiteral("tvContents"));
    m_lsFound->setObjectName(QStringLiteral("lsFound"));
    m_txtSearch->setPlaceholderText(texts.search);
    m_txtSearch->setAccessibleName(texts.search);
    m_txtSearch->setClearButtonEnabled(true);
    m_txtSearch->installEventFilter(this);
    m_tvContents->setHeaderHidden(true);
    m_tvContents->setAccessibleName(texts.contents);
    m_lsFound->setAccessibleName(texts.found);
    m_lsFound->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff); // a title that is too long is cut
    m_pages->addWidget(m_tvContents);
    m_pages->addWidget(m_lsFound);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(m_txtSearch);
    layout->addWidget(m_pages);
    colourHint();
}

// Where a desktop names its colours but none for hints, the toolkit keeps the one of a light theme.
void HelpNavigation::colourHint() {
    QColor hint = palette().color(QPalette::Text);
    hint.setAlpha(kHintAlpha);
    QPalette colours;
    colours.setColor(QPalette::PlaceholderText, hint);
    m_txtSearch->setPalette(colours);
}

void HelpNavigation::setBook(std::shared_ptr<const HelpBook> book) {
    m_book = std::move(book);
    m_search.reset();
    m_txtSearch->clear();
    fillContents();
}

void HelpNavigation::fillContents() {
    const QSignalBlocker quiet(m_tvContents);
    m_tvContents->clear();
    std::vector<QTreeWidgetItem*> open; // the last entry of each level
    for (const HelpTopic& topic : m_book->topics()) {
        QTreeWidgetItem* parent = parentOf(open, topic.level);
        auto* item = parent ? new QTreeWidgetItem(parent) : new QTreeWidgetItem(m_tvContents);
        item->setText(0, topic.title);
        item->setToolTip(0, topic.title);
        item->setData(0, kAddressRole, m_book->find(topic.page));
        open.resize(std::min(open.size(), static_cast<std::size_t>(topic.level)));
        open.push_back(item);
    }
    m_tvContents->expandAll();
}

void HelpNavigation::showAsCurrent(const QUrl& address) {
    const QSignalBlocker quiet(m_tvContents);
    for (QTreeWidgetItemIterator at(m_tvContents); *at != nullptr; ++at)
        if ((*at)->data(0, kAddressRole).toUrl() == address.adjusted(QUrl::RemoveFragment)) {
            m_tvContents->setCurrentItem(*at);
            return;
        }
}

void HelpNavigation::focusSearch() {
    m_txtSearch->setFocus(Qt::ShortcutFocusReason);
    m_txtSearch->selectAll();
}

void HelpNavigation::search(const QString& query) {
    m_lsFound->clear();
    m_pages->setCurrentWidget(query.isEmpty() ? static_cast<QWidget*>(m_tvContents) : m_lsFound);
    if (query.isEmpty() || !m_book)
        return;
    if (!m_search)
        m_search.emplace(*m_book);
    for (const std::size_t index : m_search->find(query)) {
        const HelpTopic& topic = m_book->topics()[index];
        auto* item = new QListWidgetItem(topic.title, m_lsFound);
        item->setToolTip(topic.title);
        item->setData(kAddressRole, m_book->find(topic.page));
    }
    if (m_lsFound->count() == 0)
        (new QListWidgetItem(m_nothingFound, m_lsFound))->setFlags(Qt::NoItemFlags);
    else
        m_lsFound->setCurrentRow(0);
}

void HelpNavigation::chooseTopic(const QTreeWidgetItem* item) {
    const QUrl address = item != nullptr ? item->data(0, kAddressRole).toUrl() : QUrl();
    if (address.isValid())
        Q_EMIT pageWanted(address, {});
}

void HelpNavigation::chooseFound() {
    const QListWidgetItem* item = m_lsFound->currentItem();
    const QUrl address = item != nullptr ? item->data(kAddressRole).toUrl() : QUrl();
    if (address.isValid())
        Q_EMIT pageWanted(address, HelpSearch::wordsOf(m_txtSearch->text()));
}

void HelpNavigation::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::PaletteChange)
        colourHint();
}

// From the field the arrow key goes down into what it found.
bool HelpNavigation::eventFilter(QObject* watched, QEvent* event) {
    if (watched == m_txtSearch && event->type() == QEvent::KeyPress &&
        static_cast<QKeyEvent*>(event)->key() == Qt::Key_Down) {
        m_pages->currentWidget()->setFocus(Qt::TabFocusReason);
        return true;
    }
    return QWidget::eventFilter(watched, event);
}

} // namespace shell::help
