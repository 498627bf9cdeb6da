// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/registry/RegistryTextWriter.h"

#include "platform/basic/Utf8.h"

#include <algorithm>
#include <optional>

namespace registry {
namespace {

constexpr std::size_t kLineLength = 80;
constexpr std::string_view kDigits = "0123456789abcdef";

std::string hexNumber(std::uint32_t number, std::size_t width) {
    std::string digits;
    for (; number != 0; number >>= 4U)
        digits.insert(digits.begin(), kDigits[number & 0xFU]);
    return std::string(width > digits.size() ? width - digits.size() : 0, '0') + digits;
}

bool isPlain(char c) noexcept {
    return static_cast<unsigned char>(c) >= 0x20 || c == '\t';
}

// The text of a value that quotation marks can carry without loss.
std::optional<std::string> quotableText(const Value& value) {
    if (value.type != kRegSz || value.data.size() < 2)
        return std::nullopt;
    std::string text = textOf(value.data);
    if (text.back() != '\0')
        return std::nullopt;
    text.pop_back();
    if (!std::all_of(text.begin(), text.end(), isPlain) || textData(text) != value.data)
        return std::nullopt;
    return text;
}

} // namespace

std::string RegistryTextWriter::write(const Key& root) {
    m_text = "Windows Registry Editor Version 5.00\n";
    m_path.clear();
    writeKeys(root);
    return std::move(m_text);
}

void RegistryTextWriter::writeKeys(const Key& parent) {
    for (const Key& key : parent.keys()) {
        const std::size_t length = m_path.size();
        if (length > 0)
            m_path.push_back('\\');
        m_path += key.name();
        writeKey(key);
        writeKeys(key);
        m_path.resize(length);
    }
}

// A key that only leads to others is implied by their paths; writing it as well would let deep trees grow
// with the square of their depth.
void RegistryTextWriter::writeKey(const Key& key) {
    if (key.values().empty() && !key.keys().empty())
        return;
    m_text.append("\n[").append(m_path).append("]\n");
    for (const Value& value : key.values())
        writeValue(value);
}

void RegistryTextWriter::writeValue(const Value& value) {
    const std::size_t lineBegin = m_text.size();
    if (value.name.empty())
        m_text.push_back('@');
    else
        writeQuoted(value.name);
    m_text.push_back('=');
    if (const std::optional<std::string> text = quotableText(value)) {
        writeQuoted(*text);
    } else if (const auto number = dwordOf(value.data); value.type == kRegDword && number) {
        m_text.append("dword:").append(hexNumber(*number, 8));
    } else {
        m_text += value.type == kRegBinary ? "hex:" : "hex(" + hexNumber(value.type, 1) + "):";
        writeHex(value.data, m_text.size() - lineBegin);
    }
    m_text.push_back('\n');
}

void RegistryTextWriter::writeQuoted(std::string_view text) {
    m_text.push_back('"');
    for (const char c : text) {
        if (c == '\\' || c == '"')
            m_text.push_back('\\');
        m_text.push_back(c);
    }
    m_text.push_back('"');
}

void RegistryTextWriter::writeHex(const Bytes& data, std::size_t column) {
    for (std::size_t i = 0; i < data.size(); ++i) {
        if (i > 0)
            m_text.push_back(',');
        column += 3;
        if (i > 0 && column > kLineLength - 3) {
            m_text += "\\\n  ";
            column = 5;
        }
        m_text.push_back(kDigits[data[i] >> 4U]);
        m_text.push_back(kDigits[data[i] & 0xFU]);
    }
}

} // namespace registry
