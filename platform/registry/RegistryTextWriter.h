// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// Writes a key tree in the text format "Windows Registry Editor Version 5.00": UTF-8 without byte-order mark,
// lines ending in LF, so that it reads and edits like every other settings file here. What the reader makes
// of it is the same tree. Text with line ends, NULs or lone surrogates in it goes out as bytes, everything
// else as the platform's own editor would write it.

#include "platform/registry/Key.h"

#include <string>

namespace registry {

class RegistryTextWriter {
public:
    std::string write(const Key& root);

private:
    void writeKeys(const Key& parent);
    void writeKey(const Key& key);
    void writeValue(const Value& value);
    void writeQuoted(std::string_view text);
    void writeHex(const Bytes& data, std::size_t column);

    std::string m_text;
    std::string m_path; // of the key being written
};

} // namespace registry
