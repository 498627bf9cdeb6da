// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tray/TrayRecords.h"

#include "platform/shell/AnsiText.h"

#include <algorithm>
#include <string>
#include <string_view>

namespace tray {
namespace {

constexpr std::uint32_t kCallbackMessage = 0x200; // the mouse-move message, whose handler gets the codes

// A record's texts are cut so that a NUL always fits, the wide ones not between the halves of a character.
template <std::size_t Capacity>
void store(const QString& text, std::array<char, Capacity>& field, std::size_t capacity = Capacity) {
    const std::string ansi = shell::toAnsi(text.toStdU16String());
    field.fill('\0');
    std::copy_n(ansi.begin(), std::min(ansi.size(), capacity - 1), field.begin());
}

template <std::size_t Capacity>
void store(const QString& text, std::array<char16_t, Capacity>& field, std::size_t capacity = Capacity) {
    auto length = std::min(text.size(), static_cast<qsizetype>(capacity) - 1);
    if (length > 0 && length < text.size() && text.at(length - 1).isHighSurrogate())
        --length;
    field.fill(u'\0');
    std::copy_n(text.utf16(), length, field.begin());
}

std::uint32_t sizeOf(const shell::NOTIFYICONDATAA&, bool isVersion5Shell) {
    return isVersion5Shell ? shell::kSizeVersion2A : shell::kSizeVersion1A;
}

std::uint32_t sizeOf(const shell::NOTIFYICONDATAW&, bool isVersion5Shell) {
    return isVersion5Shell ? shell::kSizeVersion2W : shell::kSizeVersion1W;
}

} // namespace

PlatformVersion decodeGetVersion(std::uint32_t answer) noexcept {
    const std::uint32_t major = answer & 0xFF;
    const std::uint32_t minor = (answer >> 8) & 0xFF;
    const bool isNt = (answer & 0x80000000U) == 0;
    return {isNt, isNt ? major >= 5 : major == 4 && minor == 90};
}

void TrayRecords::fill(shell::WindowHandle window, shell::IconHandle icon, const QString& tip) {
    withRecord([&](auto& record) {
        record.hWnd = window;
        record.uID = icon;
        record.uCallbackMessage = kCallbackMessage;
        record.hIcon = icon;
        if (isVersion5Shell())
            record.uVersion = shell::kNotifyIconVersion;
    });
    setTip(tip);
}

void TrayRecords::call(std::uint32_t message) {
    withRecord([&](auto& record) { record.cbSize = sizeOf(record, isVersion5Shell()); });
    if (isWide())
        m_area.Shell_NotifyIconW(message, std::as_bytes(std::span(&m_wide, 1)));
    else
        m_area.Shell_NotifyIconA(message, std::as_bytes(std::span(&m_narrow, 1)));
}

void TrayRecords::call(std::uint32_t message, std::uint32_t flags) {
    withRecord([&](auto& record) { record.uFlags = flags; });
    call(message);
}

QString TrayRecords::narrowTip() const {
    const auto end = std::find(m_narrow.szTip.begin(), m_narrow.szTip.end(), '\0');
    const auto length = static_cast<std::size_t>(end - m_narrow.szTip.begin());
    return QString::fromStdU16String(shell::fromAnsi(std::string_view(m_narrow.szTip.data(), length)));
}

void TrayRecords::setTip(const QString& tip) {
    const std::size_t capacity = isVersion5Shell() ? shell::kTipCapacity : shell::kTipCapacityVersion1;
    withRecord([&](auto& record) { store(tip, record.szTip, capacity); });
}

shell::IconHandle TrayRecords::icon() const noexcept {
    return isWide() ? m_wide.hIcon : m_narrow.hIcon;
}

void TrayRecords::setIcon(shell::IconHandle icon) noexcept {
    withRecord([&](auto& record) { record.hIcon = icon; });
}

void TrayRecords::setBalloon(const QString& message, const QString& title, std::uint32_t timeout,
                             std::uint32_t iconFlags) {
    withRecord([&](auto& record) {
        store(message, record.szInfo);
        store(title, record.szInfoTitle);
        record.uTimeout = timeout;
        record.dwInfoFlags = iconFlags;
    });
}

} // namespace tray
