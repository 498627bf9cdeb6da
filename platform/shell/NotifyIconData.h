// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The notification area's two record layouts, exactly as a 32-bit program lays them out, and the numbers that
// go with them. A caller sets cbSize to the version's size and passes the whole record; version 1 ends inside
// szTip, version 2 behind dwInfoFlags. The second name of uTimeout is uVersion: they share one place.
// Layout and numbers: docs/notification-area.md.

#include <array>
#include <cstddef>
#include <cstdint>

namespace shell {

using WindowHandle = std::uint32_t;
using IconHandle = std::uint32_t;

// Messages of Shell_NotifyIconA and Shell_NotifyIconW.
inline constexpr std::uint32_t kNimAdd = 0;
inline constexpr std::uint32_t kNimModify = 1;
inline constexpr std::uint32_t kNimDelete = 2;
inline constexpr std::uint32_t kNimSetVersion = 4;

// uFlags: which fields of the record are meant.
inline constexpr std::uint32_t kNifMessage = 1;
inline constexpr std::uint32_t kNifIcon = 2;
inline constexpr std::uint32_t kNifTip = 4;
inline constexpr std::uint32_t kNifInfo = 16;

inline constexpr std::uint32_t kNotifyIconVersion = 3;

// Codes that come back in the callback message's second parameter.
inline constexpr std::uint32_t kMouseMove = 512;
inline constexpr std::uint32_t kLeftButtonDown = 513;
inline constexpr std::uint32_t kLeftButtonUp = 514;
inline constexpr std::uint32_t kLeftDoubleClick = 515;
inline constexpr std::uint32_t kRightButtonDown = 516;
inline constexpr std::uint32_t kRightButtonUp = 517;
inline constexpr std::uint32_t kRightDoubleClick = 518;
inline constexpr std::uint32_t kBalloonShow = 1026;
inline constexpr std::uint32_t kBalloonHide = 1027;
inline constexpr std::uint32_t kBalloonTimeOut = 1028;
inline constexpr std::uint32_t kBalloonUserClick = 1029;

// Characters of the text fields, the NUL included.
inline constexpr std::size_t kTipCapacityVersion1 = 64;
inline constexpr std::size_t kTipCapacity = 128;
inline constexpr std::size_t kInfoCapacity = 256;
inline constexpr std::size_t kInfoTitleCapacity = 64;

// cbSize by layout and version.
inline constexpr std::uint32_t kSizeVersion1A = 88;
inline constexpr std::uint32_t kSizeVersion1W = 152;
inline constexpr std::uint32_t kSizeVersion2A = 488;
inline constexpr std::uint32_t kSizeVersion2W = 936;

template <typename Character>
struct NotifyIconData {
    std::uint32_t cbSize = 0;
    WindowHandle hWnd = 0;
    std::uint32_t uID = 0;
    std::uint32_t uFlags = 0;
    std::uint32_t uCallbackMessage = 0;
    IconHandle hIcon = 0;
    std::array<Character, kTipCapacity> szTip{};
    std::uint32_t dwState = 0;
    std::uint32_t dwStateMask = 0;
    std::array<Character, kInfoCapacity> szInfo{};
    union {
        std::uint32_t uTimeout = 0;
        std::uint32_t uVersion;
    };
    std::array<Character, kInfoTitleCapacity> szInfoTitle{};
    std::uint32_t dwInfoFlags = 0;
};

using NOTIFYICONDATAA = NotifyIconData<char>;
using NOTIFYICONDATAW = NotifyIconData<char16_t>;

static_assert(sizeof(NOTIFYICONDATAA) == kSizeVersion2A && sizeof(NOTIFYICONDATAW) == kSizeVersion2W);
static_assert(offsetof(NOTIFYICONDATAA, hWnd) == 4 && offsetof(NOTIFYICONDATAA, uID) == 8);
static_assert(offsetof(NOTIFYICONDATAA, uFlags) == 12 && offsetof(NOTIFYICONDATAA, uCallbackMessage) == 16);
static_assert(offsetof(NOTIFYICONDATAA, hIcon) == 20 && offsetof(NOTIFYICONDATAA, szTip) == 24);
static_assert(offsetof(NOTIFYICONDATAA, szTip) + kTipCapacityVersion1 * sizeof(char) == kSizeVersion1A);
static_assert(offsetof(NOTIFYICONDATAW, szTip) + kTipCapacityVersion1 * sizeof(char16_t) == kSizeVersion1W);
static_assert(offsetof(NOTIFYICONDATAA, dwState) == 152 && offsetof(NOTIFYICONDATAW, dwState) == 280);
static_assert(offsetof(NOTIFYICONDATAA, szInfo) == 160 && offsetof(NOTIFYICONDATAW, szInfo) == 288);
static_assert(offsetof(NOTIFYICONDATAA, uTimeout) == 416 && offsetof(NOTIFYICONDATAW, uTimeout) == 800);
static_assert(offsetof(NOTIFYICONDATAA, szInfoTitle) == 420 && offsetof(NOTIFYICONDATAW, szInfoTitle) == 804);
static_assert(offsetof(NOTIFYICONDATAA, dwInfoFlags) == 484 && offsetof(NOTIFYICONDATAW, dwInfoFlags) == 932);

} // namespace shell
