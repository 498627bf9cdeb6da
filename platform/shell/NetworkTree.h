// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The computers of the network as a sorted tree that fills while it is looked at; where shares are wanted, a
// computer's are asked for when it is opened, again each time that failed. The computer picked stays picked
// while others arrive. Names that no network path can hold are passed over, one computer that is found in
// several ways is one item. User-interface thread.

#include "platform/shell/FolderBrowser.h"
#include "platform/shell/NetworkTexts.h"

#include <QHash>
#include <QTreeWidget>

#include <optional>

namespace shell {

class NetworkTree : public QTreeWidget {
    Q_OBJECT
public:
    static constexpr int kMostComputers = 2000;

    NetworkTree(const NetworkTexts& texts, bool withShares, QWidget* parent);

    void addComputer(const QString& name, const QString& remark);
    void setShares(const QString& computer, const QStringList& shares);
    void setNoShares(const QString& computer);

    int computerCount() const { return topLevelItemCount(); }
    // The item that the user picked.
    std::optional<ItemIdList> picked() const;

Q_SIGNALS:
    void sharesWanted(const QString& computer);

private:
    void expandedItem(QTreeWidgetItem* item);
    void putLine(QTreeWidgetItem& computer, const QString& text);

    const NetworkTexts& m_texts;
    bool m_withShares;
    QHash<QString, QTreeWidgetItem*> m_computers; // by the first part of the name, in lower case
    QHash<QString, QTreeWidgetItem*> m_byName;
};

} // namespace shell
