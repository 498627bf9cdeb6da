// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/shell/NotifyIconRecord.h"

#include "platform/shell/AnsiText.h"

#include <algorithm>
#include <cstring>
#include <string_view>

namespace shell {
namespace {

std::u16string decoded(std::string_view text) {
    return fromAnsi(text);
}

std::u16string decoded(std::u16string_view text) {
    return std::u16string(text);
}

template <typename Character, std::size_t Capacity>
std::u16string textOf(const std::array<Character, Capacity>& field, std::size_t capacity = Capacity) {
    const auto end = field.begin() + static_cast<std::ptrdiff_t>(capacity);
    const auto length = std::find(field.begin(), end, Character{}) - field.begin();
    return decoded(std::basic_string_view<Character>(field.data(), static_cast<std::size_t>(length)));
}

template <typename Data>
NotifyIconRecord takenApart(const Data& data, bool isVersion2) {
    NotifyIconRecord record;
    record.window = data.hWnd;
    record.id = data.uID;
    record.version = isVersion2 ? data.uVersion : 0;
    if ((data.uFlags & kNifMessage) != 0)
        record.callbackMessage = data.uCallbackMessage;
    if ((data.uFlags & kNifIcon) != 0)
        record.icon = data.hIcon;
    if ((data.uFlags & kNifTip) != 0)
        record.tip = textOf(data.szTip, isVersion2 ? kTipCapacity : kTipCapacityVersion1);
    if (isVersion2 && (data.uFlags & kNifInfo) != 0)
        record.balloon = NotifyIconRecord::Balloon{textOf(data.szInfo), textOf(data.szInfoTitle),
                                                   data.uTimeout, data.dwInfoFlags};
    return record;
}

template <typename Data>
std::optional<NotifyIconRecord> read(std::span<const std::byte> bytes, std::uint32_t version1Size) {
    Data data;
    if (bytes.size() < sizeof data.cbSize)
        return std::nullopt;
    std::memcpy(&data.cbSize, bytes.data(), sizeof data.cbSize);
    const std::uint32_t size = data.cbSize;
    if ((size != version1Size && size != sizeof(Data)) || bytes.size() < size)
        return std::nullopt;
    std::memcpy(&data, bytes.data(), size);
    return takenApart(data, size == sizeof(Data));
}

} // namespace

std::optional<NotifyIconRecord> readNotifyIconA(std::span<const std::byte> record) {
    return read<NOTIFYICONDATAA>(record, kSizeVersion1A);
}

std::optional<NotifyIconRecord> readNotifyIconW(std::span<const std::byte> record) {
    return read<NOTIFYICONDATAW>(record, kSizeVersion1W);
}

} // namespace shell
