// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/HeldInput.h"

#include "platform/shell/EmbeddedIcon.h"

#include <QApplication>
#include <QMouseEvent>
#include <QWidget>
#include <QWindow>

#include <algorithm>
#include <utility>

namespace app {
namespace {

// Input comes to windows first, which hand it to their widgets; shortcuts come to whom they belong.
bool isInput(const QObject& receiver, const QEvent& event) {
    switch (event.type()) {
    case QEvent::Shortcut:
    case QEvent::InputMethod:
        return true;
    case QEvent::MouseMove:
        return receiver.isWindowType() && static_cast<const QMouseEvent&>(event).buttons() != Qt::NoButton;
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
    case QEvent::Wheel:
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
    case QEvent::ContextMenu:
    case QEvent::TouchBegin:
    case QEvent::TouchUpdate:
    case QEvent::TouchEnd:
    case QEvent::TouchCancel:
        return receiver.isWindowType();
    default:
        return false;
    }
}

bool isNotificationIcon(const QObject& receiver) {
    const QWidgetList windows = QApplication::topLevelWidgets();
    return std::ranges::any_of(windows, [&receiver](const QWidget* window) {
        return window->windowHandle() == &receiver && shell::isEmbeddedIcon(*window);
    });
}

// A dialog that came up meanwhile keeps everything from the other windows.
bool isBlocked(QObject& receiver) {
    const QWindow* modal = QGuiApplication::modalWindow();
    const auto* widget = qobject_cast<QWidget*>(&receiver);
    return modal != nullptr && &receiver != modal &&
           (widget == nullptr || widget->window()->windowHandle() != modal);
}

} // namespace

void HeldInput::hold() {
    m_before.clear();
    for (QWindow* window : QGuiApplication::topLevelWindows())
        if (window->isVisible())
            m_before.emplace_back(window);
    QCoreApplication::instance()->installEventFilter(this);
    m_isLongWait = true;
    showCursor();
}

void HeldInput::stopHolding() {
    QCoreApplication::instance()->removeEventFilter(this);
}

void HeldInput::waitIsOver() {
    m_isLongWait = false;
    showCursor();
}

// Not by way of the event queue: others there may begin a wait, in which it would arrive.
void HeldInput::handOutNext() {
    const Held held = std::move(m_held.front());
    m_held.pop_front();
    if (held.receiver && !isBlocked(*held.receiver))
        QCoreApplication::sendEvent(held.receiver, held.event.get());
}

void HeldInput::showCursor() {
    const bool isBusy = m_isLongWait && !isNewDialogUp();
    if (std::exchange(m_isCursorBusy, isBusy) == isBusy)
        return;
    if (isBusy)
        QGuiApplication::setOverrideCursor(Qt::BusyCursor);
    else
        QGuiApplication::restoreOverrideCursor();
}

// The wait does not end before it is answered. A dialog from before, which the end of another one leaves in
// front, has to wait as its program does.
bool HeldInput::isNewDialogUp() const {
    const QWindow* modal = QGuiApplication::modalWindow();
    return modal != nullptr && std::ranges::find(m_before, modal, &QPointer<QWindow>::data) == m_before.end();
}

bool HeldInput::eventFilter(QObject* receiver, QEvent* event) {
    // A dialog that comes is not a modal window yet, and one that goes may still be.
    if (event->type() == QEvent::Show || event->type() == QEvent::Hide)
        QMetaObject::invokeMethod(this, &HeldInput::showCursor, Qt::QueuedConnection);
    if (!isInput(*receiver, *event) || QApplication::activePopupWidget() != nullptr ||
        isNotificationIcon(*receiver) || (isNewDialogUp() && !isBlocked(*receiver)))
        return false;
    m_held.push_back({receiver, std::unique_ptr<QEvent>(event->clone())});
    return true;
}

} // namespace app
