// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "data/basRegistry.h"

#include "platform/basic/Conversion.h"
#include "platform/basic/RuntimeError.h"
#include "platform/forms/MessageBoxes.h"

#include <QString>

namespace data {
namespace {

using registry::Result;

// Whether the call found what it was asked for. Missing or not permitted is no error here; a failing file is.
bool wasFound(const Result& result) {
    if (result.code == registry::kFileNotFound || result.code == registry::kAccessDenied)
        return false;
    if (!result)
        throw basic::RuntimeError(basic::kPathFileAccess, result.description);
    return true;
}

void expectSuccess(const Result& result, std::string_view path) {
    if (result)
        return;
    const std::string context = "registry key " + std::string(path) + ": code " + std::to_string(result.code);
    throw basic::RuntimeError(basic::kPathFileAccess,
                              result.description.empty() ? context : result.description);
}

std::string textUpToNul(const registry::Bytes& data) {
    const std::string text(data.begin(), data.end());
    return text.substr(0, text.find('\0'));
}

RegistryValue converted(const registry::QueriedValue& value) {
    if (value.type == registry::kRegSz)
        return textUpToNul(value.data);
    const auto number = registry::dwordOf(value.data);
    if (value.type == registry::kRegDword && number)
        return static_cast<std::int32_t>(*number);
    throw basic::RuntimeError(basic::kTypeMismatch);
}

} // namespace

std::string asText(const RegistryValue& value) {
    if (const auto* const number = std::get_if<std::int32_t>(&value))
        return std::to_string(*number);
    const auto* const text = std::get_if<std::string>(&value);
    return text == nullptr ? std::string() : *text;
}

std::int32_t asNumber(const RegistryValue& value) {
    if (const auto* const text = std::get_if<std::string>(&value))
        return basic::CLng(*text);
    const auto* const number = std::get_if<std::int32_t>(&value);
    return number == nullptr ? 0 : *number;
}

RegistryValue basRegistry::readValue(registry::Root root, std::string_view path, std::string_view name) {
    registry::OpenKey key;
    registry::QueriedValue value;
    if (!wasFound(m_registry.RegOpenKey(root, path, key)) ||
        !wasFound(m_registry.RegQueryValueEx(key, name, value)))
        return {};
    return converted(value);
}

bool basRegistry::writeValue(registry::Root root, std::string_view path, std::string_view name,
                             std::string_view text) {
    registry::Bytes data(text.begin(), text.end());
    data.push_back(0);
    return write(root, path, {std::string(name), registry::kRegSz, std::move(data)});
}

bool basRegistry::writeValue(registry::Root root, std::string_view path, std::string_view name,
                             std::int32_t number) {
    return write(
        root, path,
        {std::string(name), registry::kRegDword, registry::dwordData(static_cast<std::uint32_t>(number))});
}

bool basRegistry::write(registry::Root root, std::string_view path, const registry::Value& value) {
    if (path.substr(0, 1) == "\\")
        path.remove_prefix(1);
    registry::OpenKey key;
    expectSuccess(m_registry.RegCreateKey(root, path, key), path);
    expectSuccess(m_registry.RegSetValueEx(key, value.name, value.type, value.data), path);
    return true;
}

std::vector<std::string> basRegistry::listSubkeys(registry::Root root, std::string_view path) {
    std::vector<std::string> names;
    registry::OpenKey key;
    if (wasFound(m_registry.RegOpenKeyEx(root, path, registry::kKeyEverySpecificRight, key))) {
        std::string name;
        for (std::uint32_t index = 0; m_registry.RegEnumKey(key, index, name); ++index)
            names.push_back(name);
    }
    if (names.empty())
        names.emplace_back();
    return names;
}

bool basRegistry::deleteKey(registry::Root root, std::string_view path) {
    registry::OpenKey key;
    const Result opened = m_registry.RegOpenKeyEx(root, path, registry::kKeyEverySpecificRight, key);
    if (!opened) {
        showFailure("Error Opening Registry Key Entry:", "Key/Path=", path, opened.code);
        return false;
    }
    const Result deleted = m_registry.RegDeleteKey(key, {});
    if (!deleted)
        showFailure("Error Deleting Registry Key Entry:", "Key=", path, deleted.code);
    return static_cast<bool>(deleted);
}

void basRegistry::showFailure(std::string_view text, std::string_view label, std::string_view path,
                              std::int32_t code) {
    std::string message(text);
    message.append("\r\n").append(label).append(path);
    message.append("\r\nDLL Returned=").append(std::to_string(code));
    m_boxes.show(QString::fromStdString(message), forms::kExclamation, QStringLiteral("ODBC Registry"));
}

} // namespace data
