// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The subclassing component: hands a tab strip's WM_SIZE and a list view's WM_NOTIFY (the header's divider
// about to be dragged) to a hook. Only an answer of a hook that takes its messages counts for the window.
// Must go before the hook does; the windows may go first. User-interface thread.

#include "platform/forms/ISubclass.h"

#include <QMetaObject>
#include <QPointer>

#include <cstdint>
#include <vector>

namespace forms {

class ListView;
class TabStrip;
struct HeaderNotification;

class Subclass {
public:
    explicit Subclass(ISubclass& hook) : m_hook(hook) {}
    ~Subclass();
    Subclass(const Subclass&) = delete;
    Subclass& operator=(const Subclass&) = delete;

    // WM_SIZE of the strip. Attaching twice is the same as once.
    void AttachMessage(TabStrip& strip);
    // WM_NOTIFY of the list.
    void AttachMessage(ListView& list);
    void DetachMessage(TabStrip& strip);
    void DetachMessage(ListView& list);

private:
    std::intptr_t notify(const ListView& list, const HeaderNotification& notification);
    void size(const TabStrip& strip);

    ISubclass& m_hook;
    std::vector<QPointer<ListView>> m_lists;
    std::vector<std::pair<QPointer<TabStrip>, QMetaObject::Connection>> m_strips;
};

} // namespace forms
