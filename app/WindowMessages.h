// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The messages that the main window gets before its tab strip and its list do: the strip's new size lays the
// list out again, and the divider of the list's first column cannot be dragged. Failures of the hook are
// reported as frmMain's ISubclass_WindowProc, those of the layout are ignored. User-interface thread; the
// controls must outlive it.

#include "errors/ErrorHandler.h"
#include "platform/forms/ISubclass.h"
#include "platform/forms/ListView.h"
#include "platform/forms/Subclass.h"
#include "platform/forms/TabStrip.h"

namespace app {

class WindowMessages : public forms::ISubclass {
public:
    WindowMessages(errors::ErrorHandler& errorHandler, forms::ListView& list, forms::TabStrip& tabStrip);

    void attach();
    void detach();

    // Moves the list onto the strip's client area.
    void layOut() noexcept;

    int ISubclass_MsgResponse() override { return forms::kMsgTaken; }
    std::intptr_t ISubclass_WindowProc(std::uintptr_t hwnd, std::uint32_t message, std::intptr_t wParam,
                                       std::intptr_t lParam) override;

private:
    errors::ErrorHandler& m_errors;
    forms::ListView& m_list;
    forms::TabStrip& m_tabStrip;
    forms::Subclass m_subclass;
};

} // namespace app
