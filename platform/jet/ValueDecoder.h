// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// Turns a row's stored fields into values. A type that is not known comes out as its raw bytes, so that one
// column never keeps a row from being read; a field of a known type that is too short is an error. The source
// must outlive the decoder. Layout: docs/jet4-format.md, "Rows".

#include "platform/basic/Variant.h"
#include "platform/jet/LongValueReader.h"
#include "platform/jet/RowView.h"

#include <string>

namespace jet {

class ValueDecoder {
public:
    explicit ValueDecoder(PageSource& source) : m_longValues(source) {}

    basic::Variant value(const RowView& row, const Column& column);
    // For text and memo columns: appends UTF-8 without making a value of it. False for a null.
    bool appendTextOf(std::string& to, const RowView& row, const Column& column);

    // Of all long values so far, as they are stored.
    std::uint64_t longValueBytesRead() const noexcept { return m_longValues.bytesRead(); }

private:
    LongValueReader m_longValues;
};

} // namespace jet
