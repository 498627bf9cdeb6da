// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// A notification area that keeps every call with the record's bytes.

#include "platform/shell/NotificationArea.h"

#include <cstring>
#include <string>
#include <vector>

namespace tray {

struct ShellCall {
    char layout = ' '; // 'A' or 'W'
    std::uint32_t message = 0;
    std::vector<std::byte> record;

    std::uint32_t number(std::size_t offset) const {
        std::uint32_t value = 0;
        std::memcpy(&value, record.data() + offset, sizeof value);
        return value;
    }
    std::uint32_t size() const { return number(0); }
    std::uint32_t flags() const { return number(12); }
    // Characters from an offset on, NULs and all.
    std::u16string text(std::size_t offset, std::size_t length) const {
        const std::size_t width = layout == 'A' ? 1 : 2;
        std::u16string result;
        for (std::size_t i = 0; i < length; ++i) {
            const std::byte* at = record.data() + offset + i * width;
            const auto low = std::to_integer<unsigned>(at[0]);
            result += static_cast<char16_t>(width == 1 ? low : low | std::to_integer<unsigned>(at[1]) << 8);
        }
        return result;
    }
};

class RecordingArea : public shell::NotificationArea {
public:
    bool Shell_NotifyIconA(std::uint32_t message, std::span<const std::byte> record) override {
        return keep('A', message, record);
    }
    bool Shell_NotifyIconW(std::uint32_t message, std::span<const std::byte> record) override {
        return keep('W', message, record);
    }
    void setMenu(shell::WindowHandle, QMenu* menu) override { m_menu = menu; }
    void trackPopupMenu(shell::WindowHandle window) override { m_tracked.push_back(window); }

    const std::vector<ShellCall>& calls() const { return m_calls; }
    const ShellCall& last() const { return m_calls.back(); }
    QMenu* menu() const { return m_menu; }
    const std::vector<shell::WindowHandle>& tracked() const { return m_tracked; }
    void answer(bool result) { m_answer = result; }

private:
    bool keep(char layout, std::uint32_t message, std::span<const std::byte> record) {
        m_calls.push_back({layout, message, {record.begin(), record.end()}});
        return m_answer;
    }

    std::vector<ShellCall> m_calls;
    std::vector<shell::WindowHandle> m_tracked;
    QMenu* m_menu = nullptr;
    bool m_answer = true;
};

} // namespace tray
