// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// Reads the text format "Windows Registry Editor Version 5.00" into a key tree, as importing it into an empty
// registry would: later lines win, `[-key]` and `"name"=-` take away what came before. Comments are not kept.
// What cannot be read is a StoreError with file and line; memory and time are bounded by Limits.h. Format:
// docs/registry-format.md.

#include "platform/registry/Key.h"
#include "platform/registry/TextCursor.h"

#include <string_view>

namespace registry {

class RegistryTextReader {
public:
    // `text` is decoded (decodeText) and must outlive the reader; `source` names the file in errors.
    RegistryTextReader(std::string_view text, std::string_view source) : m_cursor(text, source) {}

    // The whole text, once. A text of nothing is an empty tree.
    Key read();

private:
    void readHeader();
    void readLine();
    void readKey();
    void readValue();
    void readData(Value& value);
    void readHexData(Bytes& data);
    void continueHexLine();
    Key& enter(std::string_view path);

    TextCursor m_cursor;
    Key m_root;
    Key* m_current = nullptr; // the key that value lines belong to
    std::size_t m_keyCount = 0;
    std::size_t m_valueCount = 0;
};

// Bytes of a file as a tree: decodeText() and the reader in one.
Key readRegistryText(std::string_view bytes, std::string_view source);

} // namespace registry
