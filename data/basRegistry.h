// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The four registry operations under the settings: read, write, list and delete, each with a root and a path
// relative to it. Missing keys and values read as empty; a settings file that is damaged or cannot be read or
// written is error 75, and error 13 is a value of a type that is neither text nor number. User-interface
// thread, because deleting shows its own message boxes.

#include "platform/registry/Registry.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace forms {
class MessageBoxes;
}

namespace data {

// Empty, text in UTF-8, or a 32-bit number.
using RegistryValue = std::variant<std::monostate, std::string, std::int32_t>;

// The value as text: nothing for empty, a number in decimal.
std::string asText(const RegistryValue& value);
// The value as a number: 0 for empty; text must read as a number, or it is error 13.
std::int32_t asNumber(const RegistryValue& value);

// No trap (basRegistry): failures go to the procedure that asks, which reports them.
class basRegistry {
public:
    basRegistry(registry::Registry& registry, forms::MessageBoxes& boxes)
        : m_registry(registry), m_boxes(boxes) {}

    // Text is cut at its first NUL.
    RegistryValue readValue(registry::Root root, std::string_view path, std::string_view name);
    // Creates the key when it is missing; one leading backslash of the path is dropped. Text goes out as
    // REG_SZ, a number as REG_DWORD.
    bool writeValue(registry::Root root, std::string_view path, std::string_view name, std::string_view text);
    bool writeValue(registry::Root root, std::string_view path, std::string_view name, std::int32_t number);
    // The names of the sub-keys. Never without an element: no sub-key gives one empty name.
    std::vector<std::string> listSubkeys(registry::Root root, std::string_view path);
    // Shows a message box and answers false when the key cannot be opened or deleted.
    bool deleteKey(registry::Root root, std::string_view path);

private:
    bool write(registry::Root root, std::string_view path, const registry::Value& value);
    void showFailure(std::string_view text, std::string_view label, std::string_view path, std::int32_t code);

    registry::Registry& m_registry;
    forms::MessageBoxes& m_boxes;
};

} // namespace data
