// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// Inserts rows into one table of a database. insert() checks a row whole before it changes anything, and
// changes memory only; flush() writes, in an order that lets whoever reads meanwhile see the old rows or the
// old and new ones (WriteCache), the row count last, and synchronises; the last autonumber goes first of all,
// so that none is handed out twice. Rows that were not flushed are lost
// with the writer. Insert many rows between two flushes where speed counts; some ten thousand are a good
// measure.
//
// Nobody else may write to the database between construction and the last flush: the caller takes the locks.
// After an error of the file, or of flush(), the writer refuses everything; the database then holds all old
// rows. The file must outlive the writer. One thread.

#include "platform/basic/Variant.h"
#include "platform/jet/IndexWriter.h"
#include "platform/jet/LongValueWriter.h"
#include "platform/jet/RowEncoder.h"

#include <map>
#include <string>
#include <string_view>

namespace jet {

class TableWriter {
public:
    // kProviderNoTable when there is no such table; kProviderFailure when the database is not one to write
    // to: encoded, being written, damaged, or the table depends on another one; also when an index and the
    // rows contradict each other.
    TableWriter(share::File& file, std::string_view table);
    TableWriter(share::File& file, PageNumber definitionPage, std::string_view table);

    const TableDefinition& definition() const noexcept { return m_table; }

    // One value for each of the definition's columns, in their order (by column number); Null in the
    // autonumber's place takes the next number. Answers the row's autonumber, 0 if the table has none.
    // Errors: 6 and 13 of values, kProviderIntegrity of indexes, kProviderFailure of a row or value too long;
    // nothing has changed after these.
    std::int32_t insert(std::span<const basic::Variant> values);
    void flush();

private:
    using Values = std::vector<basic::Variant>;
    Values prepare(std::span<const basic::Variant> values) const;
    std::vector<std::optional<KeyBytes>> makeKeys(const Values& values);
    std::vector<RowField> encodeFields(const Values& values) const;
    // Which long values stay in the row; throws when the row is too long either way.
    bool shortValuesStay(const std::vector<RowField>& fields) const;
    std::size_t variableBytes(const std::vector<RowField>& fields, bool shortStay) const;
    void placeLongValues(std::vector<RowField>& fields, bool shortStay);
    LongValueWriter& longValues(const Column& column);
    std::int32_t countRow(const Values& values);
    void storeAutonumber();
    void refuseHalfEmptied();
    void refuseBroken() const;

    WriteCache m_cache;
    TableDefinition m_table;
    std::string m_name;
    PageAllocator m_allocator;
    FreeSpace m_rows;
    RowEncoder m_encoder;
    std::vector<IndexWriter> m_indexes;
    std::map<std::uint16_t, LongValueWriter> m_longValues; // by column number, made when first needed
    const Column* m_autonumber = nullptr;
    std::uint32_t m_storedAutonumber; // in the file
    bool m_isBroken = false;
};

} // namespace jet
