// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/shell/MenuExport.h"

#include <QAction>
#include <QDBusVariant>
#include <QEvent>
#include <QGuiApplication>

#include <utility>

namespace shell {
namespace {

// The protocol marks the access key with an underscore and doubles a real one.
QString exportedLabel(const QString& text) {
    QString label;
    for (qsizetype i = 0; i < text.size(); ++i) {
        const QChar character = text.at(i);
        if (character == u'_')
            label += u"__";
        else if (character != u'&')
            label += character;
        else if (i + 1 < text.size() && text.at(i + 1) == u'&')
            label += text.at(++i);
        else if (i + 1 < text.size())
            label += u'_';
    }
    return label;
}

QVariantMap onlyNamed(const QVariantMap& properties, const QStringList& names) {
    if (names.isEmpty())
        return properties;
    QVariantMap chosen;
    for (const QString& name : names)
        if (const auto found = properties.find(name); found != properties.end())
            chosen.insert(name, *found);
    return chosen;
}

} // namespace

MenuExport::MenuExport(QObject* parent, QMenu* menu, std::function<void()> opened)
    : QDBusAbstractAdaptor(parent), m_opened(std::move(opened)) {
    m_announcement.setSingleShot(true);
    m_announcement.setInterval(0);
    connect(&m_announcement, &QTimer::timeout, this, &MenuExport::announce);
    setMenu(menu);
}

void MenuExport::setMenu(QMenu* menu) {
    if (m_menu)
        m_menu->removeEventFilter(this);
    m_menu = menu;
    if (m_menu)
        m_menu->installEventFilter(this);
    m_announcement.start();
}

QString MenuExport::textDirection() const {
    return QGuiApplication::isRightToLeft() ? QStringLiteral("rtl") : QStringLiteral("ltr");
}

bool MenuExport::eventFilter(QObject* watched, QEvent* event) {
    const auto type = event->type();
    if (type == QEvent::ActionAdded || type == QEvent::ActionChanged || type == QEvent::ActionRemoved)
        m_announcement.start();
    return QDBusAbstractAdaptor::eventFilter(watched, event);
}

void MenuExport::announce() {
    Q_EMIT LayoutUpdated(++m_revision, 0);
}

QAction* MenuExport::actionOf(int id) const {
    return m_menu ? m_menu->actions().value(id - 1) : nullptr;
}

// Properties at their defaults (enabled, visible, type standard) are left out, as the protocol asks.
QVariantMap MenuExport::propertiesOf(int id) const {
    if (id == 0)
        return {{QStringLiteral("children-display"), QStringLiteral("submenu")}};
    const QAction* action = actionOf(id);
    if (!action)
        return {};
    QVariantMap properties;
    if (action->isSeparator())
        properties.insert(QStringLiteral("type"), QStringLiteral("separator"));
    else
        properties.insert(QStringLiteral("label"), exportedLabel(action->text()));
    if (!action->isEnabled())
        properties.insert(QStringLiteral("enabled"), false);
    if (!action->isVisible())
        properties.insert(QStringLiteral("visible"), false);
    return properties;
}

uint MenuExport::GetLayout(int parentId, int recursionDepth, const QStringList& propertyNames,
                           shell::MenuLayout& layout) {
    layout = {parentId, onlyNamed(propertiesOf(parentId), propertyNames), {}};
    const auto count =
        parentId == 0 && recursionDepth != 0 && m_menu ? static_cast<int>(m_menu->actions().size()) : 0;
    for (int id = 1; id <= count; ++id)
        layout.children.append({id, onlyNamed(propertiesOf(id), propertyNames), {}});
    m_fetchedRevision = m_revision;
    return m_revision;
}

shell::MenuPropertiesList MenuExport::GetGroupProperties(const QList<int>& ids,
                                                         const QStringList& propertyNames) const {
    QList<int> wanted = ids;
    for (int id = 1; ids.isEmpty() && actionOf(id); ++id)
        wanted.append(id);
    MenuPropertiesList list;
    for (const int id : wanted)
        if (id == 0 || actionOf(id))
            list.append({id, onlyNamed(propertiesOf(id), propertyNames)});
    return list;
}

QDBusVariant MenuExport::GetProperty(int id, const QString& name) const {
    return QDBusVariant(propertiesOf(id).value(name, QString()));
}

void MenuExport::Event(int id, const QString& eventId, const QDBusVariant&, uint) {
    if (eventId == u"clicked") {
        if (QAction* action = actionOf(id))
            QMetaObject::invokeMethod(action, &QAction::trigger, Qt::QueuedConnection);
    } else if (id == 0 && eventId == u"opened") {
        if (m_opening.opened())
            m_opened();
    } else if (id == 0 && eventId == u"closed") {
        m_opening.closed();
    }
}

QList<int> MenuExport::EventGroup(const shell::MenuEventList& events) {
    QList<int> unknown;
    for (const MenuEvent& event : events) {
        if (event.id != 0 && !actionOf(event.id))
            unknown.append(event.id);
        else
            Event(event.id, event.kind, event.data, event.timestamp);
    }
    return unknown;
}

bool MenuExport::AboutToShow(int id) {
    if (id == 0 && m_opening.aboutToShow())
        m_opened();
    return m_fetchedRevision != m_revision || m_announcement.isActive();
}

QList<int> MenuExport::AboutToShowGroup(const QList<int>& ids, QList<int>& idErrors) {
    QList<int> needUpdate;
    for (const int id : ids) {
        if (id != 0 && !actionOf(id))
            idErrors.append(id);
        else if (AboutToShow(id))
            needUpdate.append(id);
    }
    return needUpdate;
}

} // namespace shell
