// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/WindowMessages.h"

#include "errors/ErrorsIgnored.h"
#include "errors/Procedure.h"
#include "platform/basic/Twips.h"
#include "platform/forms/Coordinates.h"
#include "platform/forms/ListViewMessages.h"

namespace app {
namespace {

// The list covers the tab page, its border hidden under the strip's frame: what is beyond the strip's edges
// is clipped.
constexpr basic::Twips kToTheLeft{30};
constexpr basic::Twips kWider{45};
constexpr basic::Twips kLower{15};

basic::Twips plus(basic::Twips a, basic::Twips b) {
    return {a.value + b.value};
}
basic::Twips minus(basic::Twips a, basic::Twips b) {
    return {a.value - b.value};
}

} // namespace

WindowMessages::WindowMessages(errors::ErrorHandler& errorHandler, forms::ListView& list,
                               forms::TabStrip& tabStrip)
    : m_errors(errorHandler), m_list(list), m_tabStrip(tabStrip), m_subclass(*this) {}

void WindowMessages::attach() {
    m_subclass.AttachMessage(m_tabStrip);
    m_subclass.AttachMessage(m_list);
}

void WindowMessages::detach() {
    m_subclass.DetachMessage(m_tabStrip);
    m_subclass.DetachMessage(m_list);
}

// No trap (frmMain, Form_Resize): lays out with all errors ignored.
void WindowMessages::layOut() noexcept {
    errors::withErrorsIgnored([&] {
        m_list.setGeometry(
            forms::toPixels(minus(m_tabStrip.ClientLeft(), kToTheLeft), plus(m_tabStrip.ClientTop(), kLower),
                            plus(m_tabStrip.ClientWidth(), kWider), m_tabStrip.ClientHeight()));
    });
}

std::intptr_t WindowMessages::ISubclass_WindowProc(std::uintptr_t /*hwnd*/, std::uint32_t message,
                                                   std::intptr_t /*wParam*/, std::intptr_t lParam) {
    errors::Procedure proc{m_errors, "frmMain", "ISubclass_WindowProc"};
    if (message == forms::WM_SIZE)
        proc.step([&] { layOut(); });
    if (message != forms::WM_NOTIFY)
        return 0;
    return proc.value<std::intptr_t>(0, [&] {
        const auto& notification = *reinterpret_cast<const forms::HeaderNotification*>(lParam);
        const bool begins =
            notification.code == forms::HDN_BEGINTRACKA || notification.code == forms::HDN_BEGINTRACKW;
        return begins && notification.item == 0 ? 1 : 0;
    });
}

} // namespace app
