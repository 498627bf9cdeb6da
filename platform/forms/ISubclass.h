// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// What a window gives the subclassing component to get messages of its children before they do.

#include <cstdint>

namespace forms {

inline constexpr int kMsgAfterDefault = 0;
inline constexpr int kMsgBeforeDefault = 1;
inline constexpr int kMsgTaken = 2;

class ISubclass {
public:
    virtual ~ISubclass() = default;
    // Asked before each message: whether the handler takes it, or sees it before or after the window does.
    virtual int ISubclass_MsgResponse() = 0;
    // `hwnd` is handleOf() the window. For WM_SIZE lParam holds the new width in its low and the height in
    // its high 16 bits, in pixels; for WM_NOTIFY it is the address of a HeaderNotification.
    virtual std::intptr_t ISubclass_WindowProc(std::uintptr_t hwnd, std::uint32_t message,
                                               std::intptr_t wParam, std::intptr_t lParam) = 0;
};

} // namespace forms
