// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// One value of a registry key as text, read the way the about box does: with full access rights and into a
// buffer of fixed size. User-interface thread.

#include "platform/registry/Registry.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace dialogs {

// Every right to a key. Asked for although the key is only read: a user who may not have them gets no value.
inline constexpr std::uint32_t kFullAccess = 0x2003F;
inline constexpr std::size_t kValueBuffer = 1024; // characters

// Answers false when the key cannot be opened so or has no such value. What does not fit into the buffer is
// cut; one NUL that ends what does is dropped. A number (REG_DWORD) becomes "&h" and the hexadecimal digits
// of its bytes, the last byte first and none with a leading zero; the NUL is dropped from these bytes as
// well, so that 1 reads "&h001". Any other type is as read.
bool GetKeyValue(registry::Registry& registry, registry::Root root, std::string_view keyName,
                 std::string_view valueName, std::string& value);

} // namespace dialogs
