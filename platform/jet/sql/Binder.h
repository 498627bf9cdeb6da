// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// Ties the names of a statement to a table's columns and checks that what is compared can be compared, before
// any row is read. An unknown column is kProviderNoValue (the provider takes it for a parameter without a
// value), values of different kinds are kProviderMismatch. The definition must outlive what was bound.

#include "platform/jet/sql/Expression.h"
#include "platform/jet/sql/ValueComparison.h"

#include <string_view>

namespace jet::sql {

class Binder {
public:
    Binder(const TableDefinition& definition, std::string_view tableName)
        : m_definition(definition), m_tableName(tableName) {}

    void bind(ColumnName& name) const;
    // Answers what kind of value the expression has.
    ValueClass bind(Expression& expression) const;
    // The same for an expression that is to be true or false.
    void bindCondition(Expression& condition) const;

private:
    ValueClass bindOperation(Operation& operation) const;

    const TableDefinition& m_definition;
    std::string_view m_tableName;
};

} // namespace jet::sql
