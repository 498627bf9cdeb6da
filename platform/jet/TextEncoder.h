// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// Text as the database stores it: UTF-16, or one byte a character where the column allows it and every
// character is Latin-1. Layout: docs/jet4-format.md, "Text".

#include "platform/jet/ByteBuilder.h"

#include <string>
#include <string_view>

namespace jet {

// RuntimeError 5 for bytes that are no UTF-8: nothing is stored that would read back as something else.
std::u16string toStoredUnits(std::string_view utf8);

// Plain UTF-16, as names in definitions are written.
Bytes encodeUtf16(std::u16string_view text);

// A field's bytes. A text that begins with U+FEFF is refused with RuntimeError 5: in a field its bytes are
// the mark of compressed text.
Bytes encodeText(std::u16string_view text, bool mayCompress);

} // namespace jet
