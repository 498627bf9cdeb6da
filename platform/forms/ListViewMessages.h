// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The window messages that list views are sent and send, with the numbers and records the platform documents
// for its common controls.

#include <cstdint>

namespace forms {

inline constexpr std::uint32_t LVM_SETITEMSTATE = 4139;
inline constexpr std::uint32_t LVM_GETITEMSTATE = 4140;
inline constexpr std::uint32_t LVM_SETEXTENDEDLISTVIEWSTYLE = 4150;
inline constexpr std::uint32_t LVM_GETEXTENDEDLISTVIEWSTYLE = 4151;

inline constexpr std::uint32_t LVS_EX_CHECKBOXES = 4;
inline constexpr std::uint32_t LVS_EX_FULLROWSELECT = 32;

// Item states. The state-image bits say which picture of the check box is drawn, 0 for none.
inline constexpr std::uint32_t LVIS_FOCUSED = 1;
inline constexpr std::uint32_t LVIS_SELECTED = 2;
inline constexpr std::uint32_t LVIS_CUT = 4;
inline constexpr std::uint32_t LVIS_STATEIMAGEMASK = 0xF000;
inline constexpr std::uint32_t kUncheckedState = 4096;
inline constexpr std::uint32_t kCheckedState = 8192;

// What lParam of LVM_SETITEMSTATE points at; only the masked bits change.
struct ListItemState {
    std::uint32_t state = 0;
    std::uint32_t stateMask = 0;
};

inline constexpr std::uint32_t WM_SIZE = 5;
inline constexpr std::uint32_t WM_NOTIFY = 78;
inline constexpr std::int32_t HDN_BEGINTRACKA = -306;
inline constexpr std::int32_t HDN_BEGINTRACKW = -326;

// What lParam of WM_NOTIFY points at when the user takes hold of a header's divider.
struct HeaderNotification {
    std::uint32_t hwndFrom = 0;
    std::uint32_t idFrom = 0;
    std::int32_t code = 0;
    std::int32_t item = 0;
    std::int32_t button = 0;
};
static_assert(sizeof(HeaderNotification) == 20);

} // namespace forms
