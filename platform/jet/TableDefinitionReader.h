// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// Reads a table's definition from its chain of pages. The chain is bounded and must not meet itself; every
// count in the definition is held against the bytes that are there. The source must outlive the reader.
// Layout: docs/jet4-format.md, "Table definition".

#include "platform/jet/ByteView.h"
#include "platform/jet/PageSource.h"
#include "platform/jet/TableDefinition.h"

namespace jet {

class TableDefinitionReader {
public:
    explicit TableDefinitionReader(PageSource& source) : m_source(source) {}

    // `table` serves error texts only.
    TableDefinition read(PageNumber page, std::string_view table);

private:
    void readChain(PageNumber page, std::string_view table);
    void readFixedPart(const ByteView& view);
    void readColumns(const ByteView& view);
    void readRealIndexes(const ByteView& view);
    void readLogicalIndexes(const ByteView& view);
    void readLongValueMaps(const ByteView& view);
    std::string readName(const ByteView& view);

    PageSource& m_source;
    TableDefinition m_table;
    std::size_t m_at = 0; // the next part's offset
    std::size_t m_columnCount = 0;
    std::size_t m_realIndexCount = 0;
    std::size_t m_logicalIndexCount = 0;
};

} // namespace jet
