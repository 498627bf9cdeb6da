// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/jet/sql/SelectRunner.h"

#include "platform/basic/RuntimeError.h"
#include "platform/jet/StatementPages.h"
#include "platform/jet/sql/FieldType.h"
#include "platform/jet/sql/TableRows.h"

#include <algorithm>
#include <limits>

namespace jet::sql {
namespace {

class SingleValue final : public RowSource {
public:
    SingleValue(ResultColumn column, std::int32_t value) : RowSource({std::move(column)}), m_value(value) {}

    std::size_t rowCount() const override { return 1; }
    basic::Variant value(std::size_t, std::size_t) override { return m_value; }

private:
    std::int32_t m_value;
};

bool isCount(const Select& select) {
    const auto counts = std::ranges::count_if(
        select.items, [](const SelectItem& item) { return std::holds_alternative<CountOfRows>(item); });
    if (counts != 0 && (select.items.size() != 1 || !select.order.empty()))
        throw basic::RuntimeError(basic::kProviderSyntax, "COUNT(*) goes with no other column and no order");
    return counts != 0;
}

std::unique_ptr<RowSource> countResult(const Select& select, std::size_t count) {
    if (count > static_cast<std::size_t>(std::numeric_limits<std::int32_t>::max()))
        throw basic::RuntimeError(basic::kProviderFailure,
                                  "table " + select.table + ": the row count is damaged");
    const std::string& alias = std::get<CountOfRows>(select.items.front()).alias;
    return std::make_unique<SingleValue>(
        ResultColumn{alias.empty() ? "Expr1000" : alias, fieldtype::kInteger},
        static_cast<std::int32_t>(count));
}

std::unique_ptr<RowSource> rowsOf(Database& database, const std::shared_ptr<Select>& select,
                                  CatalogHint& hint) {
    auto rows = std::make_unique<TableRows>(select, database.definition(select->table, &hint));
    rows->read(database.pages());
    if (isCount(*select))
        return countResult(*select, rows->rowCount());
    return rows;
}

} // namespace

std::unique_ptr<RowSource> SelectRunner::run(Select select) {
    const bool isPlainCount = isCount(select) && select.condition == nullptr;
    const auto shared = std::make_shared<Select>(std::move(select));
    return m_engine.readDatabase(m_path, [&](Database& database) -> std::unique_ptr<RowSource> {
        CatalogHint& hint = m_engine.hint(m_path, shared->table);
        if (isPlainCount)
            return countResult(*shared, database.count(shared->table, &hint));
        return rowsOf(database, shared, hint);
    });
}

} // namespace jet::sql
