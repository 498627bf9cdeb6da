// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// A notification record taken apart. Reading believes nothing: the size must be one of the layout's two and
// covered by the bytes, a text ends at its first NUL or at its field's end, and a field whose flag is not set
// (or which lies behind the version's end) stays empty. Plain functions, any thread.

#include "platform/shell/NotifyIconData.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>

namespace shell {

struct NotifyIconRecord {
    struct Balloon {
        std::u16string text;
        std::u16string title;
        std::uint32_t timeoutMilliseconds = 0;
        std::uint32_t iconFlags = 0;
    };

    WindowHandle window = 0;
    std::uint32_t id = 0;
    std::optional<std::uint32_t> callbackMessage;
    std::optional<IconHandle> icon;
    std::optional<std::u16string> tip;
    std::optional<Balloon> balloon;
    std::uint32_t version = 0; // uVersion, 0 in a version-1 record
};

// Nothing when the record is not well-formed. The narrow layout's texts are in the ANSI code page.
std::optional<NotifyIconRecord> readNotifyIconA(std::span<const std::byte> record);
std::optional<NotifyIconRecord> readNotifyIconW(std::span<const std::byte> record);

} // namespace shell
