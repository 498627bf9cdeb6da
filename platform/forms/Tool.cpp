// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/forms/Tool.h"

#include "platform/basic/RuntimeError.h"
#include "platform/forms/Text.h"

#include <QAction>
#include <QIcon>
#include <QWidget>

namespace forms {

Tool::Tool(std::string_view name, std::string_view caption, bool inToolbar, QObject* parent)
    : QObject(parent), m_name(name), m_caption(caption), m_inToolbar(inToolbar), m_action(new QAction(this)) {
    setObjectName(toQString(name));
    m_action->setObjectName(toQString(name));
    m_action->setSeparator(name == kSeparatorName);
    m_action->setMenuRole(QAction::NoRole);
    m_action->setAutoRepeat(false); // a key that is held is one click
    connect(m_action, &QAction::triggered, this, [this] {
        renewAction();
        Q_EMIT clicked();
    });
    renewAction();
}

Tool::~Tool() = default;

void Tool::SetCaption(std::string_view caption) {
    m_caption = caption;
    renewAction();
}

void Tool::SetToolTipText(std::string_view text) {
    m_toolTipText = text;
    renewAction();
}

void Tool::SetDescription(std::string_view text) {
    m_description = text;
    renewAction();
}

void Tool::SetEnabled(bool enabled) {
    m_enabled = enabled;
    m_action->setEnabled(enabled);
}

void Tool::SetChecked(bool pressed) {
    m_checked = pressed;
    renewAction();
}

void Tool::SetPicture(const QIcon& picture) {
    m_action->setIcon(picture);
    renewAction();
}

void Tool::SetShortcuts(const QList<QKeySequence>& keys, QWidget* within) {
    m_action->setShortcuts(keys);
    m_action->setShortcutContext(within == nullptr ? Qt::WindowShortcut : Qt::WidgetWithChildrenShortcut);
    if (within != nullptr)
        within->addAction(m_action);
}

void Tool::SetAccessibleName(const QString& name) {
    m_accessibleName = name;
    renewAction();
}

void Tool::SetSubBand(std::string_view bandName) {
    m_subBand = bandName;
    Q_EMIT subBandChanged();
}

void Tool::SetCustom(QWidget* widget) {
    if (widget != nullptr && !m_inToolbar)
        throw basic::RuntimeError(basic::kInvalidProcedureCall);
    QWidget* former = m_custom;
    m_custom = widget;
    Q_EMIT customChanged(former);
}

// A toolbar button with a picture has no text to be seen, but the toolkit would show the caption as its tool
// tip; there the tool tip or the accessible name stands for it. A tool is checkable only while it is pressed,
// so that the others get no box in a menu and a click presses none.
void Tool::renewAction() {
    const bool pictureOnly = m_inToolbar && !m_action->icon().isNull();
    const QString tip = toQString(m_toolTipText);
    const QString spoken = m_accessibleName.isEmpty() ? tip : m_accessibleName;
    m_action->setText(pictureOnly ? QString(spoken).replace(u'&', QStringLiteral("&&"))
                                  : toQString(m_caption));
    m_action->setToolTip(tip);
    m_action->setStatusTip(toQString(m_description));
    m_action->setCheckable(m_checked);
    m_action->setChecked(m_checked);
}

} // namespace forms
