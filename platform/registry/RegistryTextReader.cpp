// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/registry/RegistryTextReader.h"

#include "platform/registry/KeyPath.h"
#include "platform/registry/Limits.h"
#include "platform/registry/ResultCodes.h"
#include "platform/registry/StoreError.h"
#include "platform/registry/TextDecoder.h"

namespace registry {
namespace {

constexpr std::string_view kHeader = "Windows Registry Editor Version 5.00";
constexpr std::string_view kOldHeader = "REGEDIT4";

} // namespace

Key RegistryTextReader::read() {
    if (m_cursor.atEnd())
        return std::move(m_root);
    readHeader();
    while (!m_cursor.atEnd())
        readLine();
    return std::move(m_root);
}

void RegistryTextReader::readHeader() {
    if (m_cursor.takeWord(kOldHeader))
        m_cursor.fail("this is the old REGEDIT4 format; export the keys as version 5.00");
    if (!m_cursor.takeWord(kHeader))
        m_cursor.fail("the first line must be \"" + std::string(kHeader) + "\"");
    m_cursor.expectLineEnd();
}

void RegistryTextReader::readLine() {
    m_cursor.skipBlanks();
    if (m_cursor.atLineEnd())
        m_cursor.skipLineEnd();
    else if (m_cursor.peek() == ';')
        m_cursor.expectLineEnd();
    else if (m_cursor.peek() == '[')
        readKey();
    else
        readValue();
}

// A key's name may itself contain brackets: it ends with the last one of the line.
void RegistryTextReader::readKey() {
    const TextCursor begin = m_cursor;
    std::string_view path = m_cursor.takeRestOfLine();
    const std::size_t close = path.rfind(']');
    if (close == std::string_view::npos)
        begin.fail("the closing bracket of the key is missing");
    const std::size_t after = path.find_first_not_of(" \t\r", close + 1);
    if (after != std::string_view::npos && path[after] != ';')
        begin.fail("unexpected text after the key");
    path = path.substr(1, close - 1);
    const bool isRemoval = !path.empty() && path.front() == '-';
    if (isRemoval)
        path.remove_prefix(1);
    if (!isStorableKeyPath(splitPath(path)))
        begin.fail("the key has an empty or too long name, control characters, or lies too deep");
    if (isRemoval)
        removePath(m_root, splitPath(path));
    m_current = isRemoval ? nullptr : &enter(path);
    m_cursor.skipLineEnd();
}

Key& RegistryTextReader::enter(std::string_view path) {
    Key* key = &m_root;
    for (const std::string_view name : splitPath(path)) {
        Key* const present = key->find(name);
        if (present == nullptr && ++m_keyCount > kMaxKeys)
            m_cursor.fail("too many keys");
        key = present != nullptr ? present : &key->obtain(name);
    }
    return *key;
}

void RegistryTextReader::readValue() {
    Value value;
    if (m_cursor.peek() == '"')
        value.name = m_cursor.takeQuoted();
    else if (!m_cursor.take('@'))
        m_cursor.fail("a key in brackets or a value was expected");
    if (m_current == nullptr)
        m_cursor.fail("the value belongs to no key");
    if (!isStorableValueName(value.name))
        m_cursor.fail("the value's name is too long");
    m_cursor.skipBlanks();
    if (!m_cursor.take('='))
        m_cursor.fail("\"=\" expected after the value's name");
    m_cursor.skipBlanks();
    if (m_cursor.take('-')) {
        m_current->removeValue(value.name);
    } else {
        readData(value);
        if (++m_valueCount > kMaxValues)
            m_cursor.fail("too many values");
        m_current->setValue(std::move(value));
    }
    m_cursor.expectLineEnd();
}

void RegistryTextReader::readData(Value& value) {
    if (m_cursor.peek() == '"') {
        value.type = kRegSz;
        value.data = textData(m_cursor.takeQuoted());
    } else if (m_cursor.takeWord("dword:")) {
        value.type = kRegDword;
        value.data = dwordData(m_cursor.takeHex(8));
    } else if (m_cursor.takeWord("hex(")) {
        value.type = m_cursor.takeHex(8);
        if (!m_cursor.takeWord("):"))
            m_cursor.fail("\"):\" expected after the type number");
        readHexData(value.data);
    } else if (m_cursor.takeWord("hex:")) {
        value.type = kRegBinary;
        readHexData(value.data);
    } else {
        m_cursor.fail("text in quotation marks, dword:, hex: or hex(type): expected");
    }
}

void RegistryTextReader::readHexData(Bytes& data) {
    continueHexLine();
    if (m_cursor.atLineEnd() || m_cursor.peek() == ';')
        return;
    for (;;) {
        data.push_back(static_cast<std::uint8_t>(m_cursor.takeHex(2)));
        m_cursor.skipBlanks();
        if (!m_cursor.take(','))
            return;
        continueHexLine();
    }
}

// Steps over a backslash that carries the bytes over to the next line.
void RegistryTextReader::continueHexLine() {
    m_cursor.skipBlanks();
    while (m_cursor.take('\\')) {
        m_cursor.skipBlanks();
        if (!m_cursor.atLineEnd() || m_cursor.atEnd())
            m_cursor.fail("a line was expected to follow the backslash");
        m_cursor.skipLineEnd();
        m_cursor.skipBlanks();
    }
}

Key readRegistryText(std::string_view bytes, std::string_view source) {
    if (bytes.size() > kMaxFileSize)
        throw StoreError(kCorrupt, std::string(source) + ": the file is too big");
    const std::string text = decodeText(bytes, source);
    return RegistryTextReader(text, source).read();
}

} // namespace registry
