// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/forms/Subclass.h"

#include "platform/forms/ListView.h"
#include "platform/forms/TabStrip.h"
#include "platform/forms/WindowHandle.h"

#include <algorithm>

namespace forms {

Subclass::~Subclass() {
    for (const auto& [strip, connection] : m_strips)
        QObject::disconnect(connection);
    for (const QPointer<ListView>& list : m_lists) {
        if (list)
            list->setNotificationHook({});
    }
}

void Subclass::AttachMessage(TabStrip& strip) {
    DetachMessage(strip);
    m_strips.emplace_back(
        &strip, QObject::connect(&strip, &TabStrip::resized, &strip, [this, &strip] { size(strip); }));
}

void Subclass::AttachMessage(ListView& list) {
    DetachMessage(list);
    m_lists.emplace_back(&list);
    list.setNotificationHook([this, &list](const HeaderNotification& n) { return notify(list, n); });
}

void Subclass::DetachMessage(TabStrip& strip) {
    const auto same = [&](const auto& attached) { return attached.first == &strip; };
    for (const auto& attached : m_strips) {
        if (same(attached))
            QObject::disconnect(attached.second);
    }
    std::erase_if(m_strips, same);
}

void Subclass::DetachMessage(ListView& list) {
    if (std::erase_if(m_lists, [&](const QPointer<ListView>& attached) { return attached == &list; }) > 0)
        list.setNotificationHook({});
}

std::intptr_t Subclass::notify(const ListView& list, const HeaderNotification& notification) {
    const int response = m_hook.ISubclass_MsgResponse();
    const std::intptr_t answer = m_hook.ISubclass_WindowProc(handleOf(list), WM_NOTIFY, notification.idFrom,
                                                             reinterpret_cast<std::intptr_t>(&notification));
    return response == kMsgTaken ? answer : 0;
}

void Subclass::size(const TabStrip& strip) {
    m_hook.ISubclass_MsgResponse();
    m_hook.ISubclass_WindowProc(handleOf(strip), WM_SIZE, 0,
                                (strip.height() << 16) | (strip.width() & 0xFFFF));
}

} // namespace forms
