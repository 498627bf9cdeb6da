// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/shell/NetworkTree.h"

#include <QHeaderView>
#include <QStyle>

#include <algorithm>

namespace shell {
namespace {

constexpr int kLongestName = 253; // of a host
constexpr int kLongestRemark = 200;
constexpr int kIsShare = Qt::UserRole;      // of an item's first column
constexpr int kIsListed = Qt::UserRole + 1; // the shares are there or on their way

bool isNamed(const QString& name) {
    const QString forbidden = QStringLiteral("\\/:*?\"<>|");
    return !name.isEmpty() && name.size() <= kLongestName && name.trimmed() == name &&
           std::all_of(name.begin(), name.end(),
                       [&](QChar c) { return c.isPrint() && !forbidden.contains(c); });
}

// The computer NAS and the host nas.local are the same.
QString keyOf(const QString& name) {
    const bool isAddress =
        std::all_of(name.begin(), name.end(), [](QChar c) { return c.isDigit() || c == u'.'; });
    return (isAddress ? name : name.section(u'.', 0, 0)).toLower();
}

// Capital letters do not come first.
class NamedItem final : public QTreeWidgetItem {
public:
    using QTreeWidgetItem::QTreeWidgetItem;

    bool operator<(const QTreeWidgetItem& other) const override {
        return text(0).compare(other.text(0), Qt::CaseInsensitive) < 0;
    }
};

QString printable(QString text) {
    text.truncate(kLongestRemark);
    for (QChar& c : text)
        if (!c.isPrint())
            c = u' ';
    return text.simplified();
}

} // namespace

NetworkTree::NetworkTree(const NetworkTexts& texts, bool withShares, QWidget* parent)
    : QTreeWidget(parent), m_texts(texts), m_withShares(withShares) {
    setObjectName(QStringLiteral("tvNetwork"));
    setAccessibleName(texts.network);
    setColumnCount(2);
    setHeaderHidden(true);
    header()->setStretchLastSection(true);
    header()->setSectionResizeMode(0, QHeaderView::ResizeToContents);
    setRootIsDecorated(withShares);
    setUniformRowHeights(true);
    setSortingEnabled(true);
    sortByColumn(0, Qt::AscendingOrder);
    setExpandsOnDoubleClick(withShares);
    connect(this, &QTreeWidget::itemExpanded, this, &NetworkTree::expandedItem);
}

void NetworkTree::addComputer(const QString& name, const QString& remark) {
    QString host = name;
    if (host.endsWith(u'.'))
        host.chop(1);
    if (!isNamed(host) || computerCount() >= kMostComputers || m_computers.contains(keyOf(host)))
        return;
    const QString more = printable(remark);
    auto* item = new NamedItem({host, keyOf(more) == keyOf(host) ? QString() : more});
    item->setIcon(0, style()->standardIcon(QStyle::SP_ComputerIcon));
    addTopLevelItem(item);
    if (m_withShares)
        putLine(*item, m_texts.loadingShares);
    m_computers.insert(keyOf(host), item);
    m_byName.insert(host, item);
}

// The view does not stand it when items come or go while it opens one: the line that is there says it.
void NetworkTree::expandedItem(QTreeWidgetItem* item) {
    if (item->childCount() == 0 || item->data(0, kIsListed).toBool())
        return;
    item->setData(0, kIsListed, true);
    item->child(0)->setText(0, m_texts.loadingShares);
    Q_EMIT sharesWanted(item->text(0));
}

// In the place of the shares; cannot be picked.
void NetworkTree::putLine(QTreeWidgetItem& computer, const QString& text) {
    qDeleteAll(computer.takeChildren());
    auto* line = new QTreeWidgetItem(&computer, QStringList{text});
    line->setFlags(Qt::NoItemFlags);
    line->setFirstColumnSpanned(true);
}

void NetworkTree::setShares(const QString& computer, const QStringList& shares) {
    QTreeWidgetItem* item = m_byName.value(computer);
    if (item == nullptr)
        return;
    putLine(*item, m_texts.noShares);
    QList<QTreeWidgetItem*> items;
    for (const QString& share : shares) {
        if (!isNamed(share))
            continue;
        items.append(new NamedItem(QStringList{share}));
        items.back()->setData(0, kIsShare, true);
        items.back()->setIcon(0, style()->standardIcon(QStyle::SP_DirIcon));
    }
    if (items.isEmpty())
        return;
    qDeleteAll(item->takeChildren());
    item->addChildren(items);
    item->sortChildren(0, Qt::AscendingOrder);
}

void NetworkTree::setNoShares(const QString& computer) {
    QTreeWidgetItem* item = m_byName.value(computer);
    if (item == nullptr)
        return;
    putLine(*item, m_texts.sharesFailed);
    item->setData(0, kIsListed, false); // opened again, it is asked again
}

std::optional<ItemIdList> NetworkTree::picked() const {
    const QList<QTreeWidgetItem*> items = selectedItems();
    if (items.isEmpty())
        return std::nullopt;
    const QTreeWidgetItem* item = items.front();
    if (item->data(0, kIsShare).toBool())
        return ItemIdList{item->parent()->text(0).toStdString(), item->text(0).toStdString()};
    return ItemIdList{item->text(0).toStdString(), {}};
}

} // namespace shell
