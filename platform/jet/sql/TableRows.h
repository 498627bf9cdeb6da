// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The rows that a SELECT answers from one table: where each lies, in the order asked for, and the pages to
// decode them from. Values are decoded when asked for. Owns everything it needs once read() is through.

#include "platform/jet/LongValueReader.h"
#include "platform/jet/RowSource.h"
#include "platform/jet/StatementPages.h"
#include "platform/jet/TableScan.h"
#include "platform/jet/ValueDecoder.h"
#include "platform/jet/sql/Evaluator.h"
#include "platform/jet/sql/RowOrder.h"
#include "platform/jet/sql/Statement.h"

#include <memory>
#include <optional>
#include <vector>

namespace jet::sql {

class TableRows final : public RowSource {
public:
    // Binds the statement to the definition.
    TableRows(std::shared_ptr<Select> select, TableDefinition definition);

    // Takes the pages into memory, chooses, checks and orders the rows.
    void read(PageReader& reader);

    std::size_t rowCount() const override { return m_rows.size(); }
    basic::Variant value(std::size_t row, std::size_t column) override;

private:
    struct Source { // of one result column: one of the two
        const Column* column = nullptr;
        const Expression* expression = nullptr;
    };

    // What decodes rows, once there are pages.
    struct Access {
        Access(std::unique_ptr<StatementPages> heldPages, const TableDefinition& definition,
               std::string_view tableName);

        std::unique_ptr<StatementPages> pages;
        TableScan scan;
        ValueDecoder decoder;
        Evaluator evaluator;
        LongValueReader longValues;
    };

    void bind();
    void addItem(const SelectItem& item, std::vector<ResultColumn>& columns);
    void countLongValue(const Column& column);
    void need(const Column& column);
    std::vector<PageNumber> pagesToRead(PageReader& reader) const;
    bool readByIndex(PageReader& reader);
    bool takeRows(const std::vector<RowPointer>& candidates);
    void readAll(PageReader& reader);
    void takeRow(RowPointer where, RowOrder& order);
    void checkRow(const RowView& row);
    void refuseSharedLongValues(const RowView& row) const;
    void goTo(std::size_t row);

    std::shared_ptr<Select> m_select;
    TableDefinition m_definition;
    std::vector<Source> m_sources;
    std::vector<const Column*> m_needed;    // columns whose values can be asked for
    std::uint64_t m_longValuesToChoose = 0; // how many of each row its choice and order may look at
    std::optional<Access> m_access;
    std::vector<RowPointer> m_rows;
    std::optional<std::size_t> m_currentRow; // where the scan stands
};

} // namespace jet::sql
