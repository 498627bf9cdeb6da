// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// A password in memory of its own: left out of core files, kept out of the swap file where the system allows
// it, and overwritten at the end. Moves, never copies, so that there is one place to overwrite. Cut at
// kMaximumBytes, which no server takes. Any thread, one at a time.

#include <cstddef>
#include <string_view>

namespace share::smb {

class Secret {
public:
    static constexpr std::size_t kMaximumBytes = 1024;

    Secret() = default;
    explicit Secret(std::string_view text);
    Secret(const Secret&) = delete;
    Secret& operator=(const Secret&) = delete;
    Secret(Secret&& other) noexcept;
    Secret& operator=(Secret&& other) noexcept;
    ~Secret();

    // Valid as long as this object holds it.
    std::string_view view() const noexcept { return {m_text, m_size}; }
    Secret clone() const { return Secret(view()); }

private:
    char* m_text = nullptr;
    std::size_t m_size = 0;
};

// Where a password also lies in memory that is not ours to overwrite, as a toolkit's: from now on this
// process leaves no core file and lets no other program of the user look into it.
void keepMemoryPrivate() noexcept;

// Overwrites memory in a way that no optimiser takes out.
void wipe(void* memory, std::size_t size) noexcept;

} // namespace share::smb
