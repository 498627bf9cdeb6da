// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/jet/TableWriter.h"

#include "platform/basic/RuntimeError.h"
#include "platform/jet/ByteEditor.h"
#include "platform/jet/Catalog.h"
#include "platform/jet/FieldEncoder.h"
#include "platform/jet/FieldValue.h"
#include "platform/jet/IndexPage.h"
#include "platform/jet/TableDefinitionReader.h"
#include "platform/jet/UsageMap.h"
#include "platform/jet/WritableDatabase.h"

#include <algorithm>

namespace jet {

using namespace format;

namespace {

void refuseDependent(const TableDefinition& table, std::string_view name) {
    for (const LogicalIndex& index : table.logicalIndexes)
        if (index.type == logicalIndex::kForeignKey && index.role == logicalIndex::kChild)
            throw basic::RuntimeError(basic::kProviderReadOnly,
                                      "Rows of table " + std::string(name) + " depend on another table");
}

PageNumber findTable(share::File& file, std::string_view table) {
    refuseUnwritable(file);
    WriteCache pages(file);
    return Catalog(pages).find(table).definitionPage();
}

const Column* findAutonumber(const TableDefinition& table) {
    const auto found = std::ranges::find_if(table.columns, &Column::isAutonumber);
    return found == table.columns.end() ? nullptr : &*found;
}

} // namespace

TableWriter::TableWriter(share::File& file, std::string_view table)
    : TableWriter(file, findTable(file, table), table) {}

TableWriter::TableWriter(share::File& file, PageNumber definitionPage, std::string_view table)
    : m_cache(file), m_table(TableDefinitionReader(m_cache).read(definitionPage, table)), m_name(table),
      m_allocator(m_cache),
      m_rows(m_cache, m_allocator, {m_table.ownedMap, m_table.freeMap}, definitionPage, WriteStage::Rows),
      m_encoder(m_table), m_autonumber(findAutonumber(m_table)), m_storedAutonumber(m_table.lastAutonumber) {
    refuseUnwritable(file);
    refuseDependent(m_table, table);
    refuseHalfEmptied();
    for (std::size_t i = 0; i < m_table.realIndexes.size(); ++i)
        m_indexes.emplace_back(m_cache, m_allocator, m_table, i);
}

// A torn switch of a delete leaves indexes that tell of other rows than the table has: rows could be refused
// for keys that are gone, or never be found. The next delete of all rows mends that.
void TableWriter::refuseHalfEmptied() {
    const bool isEmpty =
        m_table.rowCount == 0 && UsageMap::read(m_cache, m_table.ownedMap, m_name).pages().empty();
    for (const RealIndex& index : m_table.realIndexes) {
        PageBuffer buffer;
        const IndexPage root(m_cache.page(index.root, buffer), {m_cache.name(), m_name, index.root});
        if (isEmpty && !root.isEmptyLeaf())
            root.place().fail("the table is empty, but an index of it is not; deleting all rows mends it");
        if (m_table.rowCount != 0 && root.isEmptyLeaf() && !index.ignoresNulls())
            root.place().fail(
                "an index of the table is empty, but the table is not; deleting all rows mends it");
    }
}

std::int32_t TableWriter::insert(std::span<const basic::Variant> values) {
    refuseBroken();
    const Values row = prepare(values);
    const auto keys = makeKeys(row);
    std::vector<RowField> fields = encodeFields(row);
    const bool shortStay = shortValuesStay(fields);
    m_isBroken = true; // until everything below has come to its end
    placeLongValues(fields, shortStay);
    const RowPointer where = m_rows.store(m_encoder.encode(fields));
    for (std::size_t i = 0; i < m_indexes.size(); ++i)
        if (keys[i])
            m_indexes[i].insert(*keys[i], where);
    m_isBroken = false;
    return countRow(row);
}

TableWriter::Values TableWriter::prepare(std::span<const basic::Variant> values) const {
    if (values.size() != m_table.columns.size())
        throw basic::RuntimeError(basic::kInvalidProcedureCall,
                                  "Table " + m_name + " has " + std::to_string(m_table.columns.size()) +
                                      " columns, not " + std::to_string(values.size()));
    Values row;
    row.reserve(values.size());
    for (std::size_t i = 0; i < values.size(); ++i) {
        const Column& column = m_table.columns[i];
        row.push_back(toColumnValue(values[i], column));
        if (column.type == ColumnType::Boolean && basic::isNull(row.back()))
            row.back() = false; // a Boolean's bit is its value, there is no Null
        if (&column == m_autonumber && basic::isNull(row.back()))
            row.back() = static_cast<std::int32_t>(m_table.lastAutonumber + 1);
    }
    return row;
}

std::vector<std::optional<KeyBytes>> TableWriter::makeKeys(const Values& values) {
    std::vector<std::optional<KeyBytes>> keys;
    keys.reserve(m_indexes.size());
    for (IndexWriter& index : m_indexes)
        keys.push_back(index.keyOf(values));
    return keys;
}

std::vector<RowField> TableWriter::encodeFields(const Values& values) const {
    std::vector<RowField> fields(values.size());
    for (std::size_t i = 0; i < values.size(); ++i) {
        if (const bool* flag = std::get_if<bool>(&values[i]))
            fields[i].isTrue = *flag;
        else if (!basic::isNull(values[i]))
            fields[i].stored = encodeField(values[i], m_table.columns[i]);
    }
    return fields;
}

std::size_t TableWriter::variableBytes(const std::vector<RowField>& fields, bool shortStay) const {
    std::size_t bytes = 0;
    for (std::size_t i = 0; i < fields.size(); ++i) {
        const Column& column = m_table.columns[i];
        if (!fields[i].stored || column.isFixed())
            continue;
        const std::size_t size = fields[i].stored->size();
        bytes += column.isLongValue()
                     ? LongValueWriter::fieldSize(size, shortStay && LongValueWriter::isShort(size))
                     : size;
    }
    return bytes;
}

bool TableWriter::shortValuesStay(const std::vector<RowField>& fields) const {
    if (m_encoder.size(variableBytes(fields, true)) <= dataPage::kMaxRow)
        return true;
    const std::size_t size = m_encoder.size(variableBytes(fields, false));
    if (size > dataPage::kMaxRow)
        throw basic::RuntimeError(basic::kProviderFailure, "The record is too large for table " + m_name +
                                                               ": " + std::to_string(size) + " of " +
                                                               std::to_string(dataPage::kMaxRow) + " bytes");
    return false;
}

void TableWriter::placeLongValues(std::vector<RowField>& fields, bool shortStay) {
    for (std::size_t i = 0; i < fields.size(); ++i) {
        const Column& column = m_table.columns[i];
        if (!column.isLongValue() || !fields[i].stored)
            continue;
        Bytes& value = *fields[i].stored;
        const bool inRow = value.empty() || (shortStay && LongValueWriter::isShort(value.size()));
        value = inRow ? LongValueWriter::inRow(value) : longValues(column).store(value);
    }
}

LongValueWriter& TableWriter::longValues(const Column& column) {
    const auto known = m_longValues.find(column.number);
    if (known != m_longValues.end())
        return known->second;
    const auto maps = std::ranges::find(m_table.longValueMaps, column.number, &LongValueMaps::column);
    if (maps == m_table.longValueMaps.end() || maps->isBroken())
        throw basic::RuntimeError(basic::kProviderFailure, "Column " + column.name + " of table " + m_name +
                                                               " has no list of its pages");
    return m_longValues
        .try_emplace(column.number, m_cache, m_allocator, FreeSpace::Maps{maps->owned, maps->free})
        .first->second;
}

std::int32_t TableWriter::countRow(const Values& values) {
    ++m_table.rowCount;
    if (m_autonumber == nullptr)
        return 0;
    const auto number =
        std::get<std::int32_t>(values[static_cast<std::size_t>(m_autonumber - m_table.columns.data())]);
    if (number > static_cast<std::int32_t>(m_table.lastAutonumber))
        m_table.lastAutonumber = static_cast<std::uint32_t>(number);
    return number;
}

void TableWriter::flush() {
    refuseBroken();
    m_isBroken = true;
    for (IndexWriter& index : m_indexes)
        index.store();
    storeAutonumber();
    ByteEditor definition(m_cache.edit(m_table.page(), WriteStage::Definition));
    definition.put32(definition::kRowCount, m_table.rowCount);
    for (const IndexWriter& index : m_indexes)
        definition.put32(index.statisticsOffset() + definition::kUniqueEntries, index.uniqueEntries());
    m_cache.flush();
    m_isBroken = false;
}

// On the disk before any row that bears a new number: whatever of the rows is there after a crash, no number
// comes a second time.
void TableWriter::storeAutonumber() {
    if (m_table.lastAutonumber == m_storedAutonumber)
        return;
    ByteEditor(m_cache.edit(m_table.page(), WriteStage::Definition))
        .put32(definition::kLastAutonumber, m_table.lastAutonumber);
    m_cache.writeAhead(m_table.page());
    m_storedAutonumber = m_table.lastAutonumber;
}

void TableWriter::refuseBroken() const {
    if (m_isBroken)
        throw basic::RuntimeError(basic::kProviderFailure,
                                  m_cache.name() + ": an earlier write failed; the rows after it are lost");
}

} // namespace jet
