// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// A QMenu offered on D-Bus as com.canonical.dbusmenu, so that a panel shows its own copy of it. One flat
// level: item n of the menu has the id n + 1, 0 is the menu itself. Changes of the menu are announced once
// the event loop is reached. Every answer leaves before anything happens in the program: a chosen item
// triggers its action from the event loop, because it may open a dialog. Lives on its parent, the exported
// object, on the user-interface thread; the menu may die first.

#include "platform/shell/MenuOpening.h"
#include "platform/shell/StatusNotifierTypes.h"

#include <QDBusAbstractAdaptor>
#include <QMenu>
#include <QPointer>
#include <QTimer>

#include <functional>

namespace shell {

class MenuExport : public QDBusAbstractAdaptor {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "com.canonical.dbusmenu")
    Q_PROPERTY(uint Version READ version CONSTANT)
    Q_PROPERTY(QString Status READ status CONSTANT)
    Q_PROPERTY(QString TextDirection READ textDirection CONSTANT)
    Q_PROPERTY(QStringList IconThemePath READ iconThemePath CONSTANT)
public:
    MenuExport(QObject* parent, QMenu* menu, std::function<void()> opened);

    void setMenu(QMenu* menu);

    uint version() const { return 3; }
    QString status() const { return QStringLiteral("normal"); }
    QString textDirection() const;
    QStringList iconThemePath() const { return {}; }

    bool eventFilter(QObject* watched, QEvent* event) override;

public Q_SLOTS:
    uint GetLayout(int parentId, int recursionDepth, const QStringList& propertyNames,
                   shell::MenuLayout& layout);
    shell::MenuPropertiesList GetGroupProperties(const QList<int>& ids,
                                                 const QStringList& propertyNames) const;
    QDBusVariant GetProperty(int id, const QString& name) const;
    void Event(int id, const QString& eventId, const QDBusVariant& data, uint timestamp);
    QList<int> EventGroup(const shell::MenuEventList& events);
    bool AboutToShow(int id);
    QList<int> AboutToShowGroup(const QList<int>& ids, QList<int>& idErrors);

Q_SIGNALS:
    void ItemsPropertiesUpdated(const shell::MenuPropertiesList& updated,
                                const shell::MenuRemovedPropertiesList& removed);
    void LayoutUpdated(uint revision, int parent);
    void ItemActivationRequested(int id, uint timestamp);

private:
    QAction* actionOf(int id) const;
    QVariantMap propertiesOf(int id) const;
    void announce();

    QPointer<QMenu> m_menu;
    std::function<void()> m_opened;
    MenuOpening m_opening;
    QTimer m_announcement; // gathers the changes of one turn of the event loop
    uint m_revision = 1;
    uint m_fetchedRevision = 0;
};

} // namespace shell
