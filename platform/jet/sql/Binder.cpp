// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/jet/sql/Binder.h"

#include "platform/basic/RuntimeError.h"
#include "platform/jet/NameComparison.h"

namespace jet::sql {

void Binder::bind(ColumnName& name) const {
    const bool isOurs = name.table.empty() || equalNames(name.table, m_tableName);
    name.column = isOurs ? m_definition.findColumn(name.name) : nullptr;
    if (name.column == nullptr)
        throw basic::RuntimeError(basic::kProviderNoValue,
                                  "No value given for one or more required parameters: " + name.name +
                                      " is no column of " + std::string(m_tableName));
}

ValueClass Binder::bind(Expression& expression) const {
    if (const auto* literal = std::get_if<Literal>(&expression.node))
        return classOf(literal->value);
    if (auto* name = std::get_if<ColumnName>(&expression.node)) {
        bind(*name);
        return classOf(*name->column);
    }
    if (auto* negation = std::get_if<Negation>(&expression.node)) {
        bindCondition(*negation->operand);
        return ValueClass::Number;
    }
    if (auto* test = std::get_if<NullTest>(&expression.node)) {
        bind(*test->operand);
        return ValueClass::Number;
    }
    return bindOperation(std::get<Operation>(expression.node));
}

ValueClass Binder::bindOperation(Operation& operation) const {
    if (operation.kind == Operator::And || operation.kind == Operator::Or) {
        bindCondition(*operation.left);
        bindCondition(*operation.right);
        return ValueClass::Number;
    }
    const ValueClass left = bind(*operation.left);
    const ValueClass right = bind(*operation.right);
    if (operation.kind == Operator::Concatenate)
        return ValueClass::Text;
    if (!areComparable(left, right))
        throw basic::RuntimeError(basic::kProviderMismatch);
    return ValueClass::Number;
}

void Binder::bindCondition(Expression& condition) const {
    if (!areComparable(bind(condition), ValueClass::Number))
        throw basic::RuntimeError(basic::kProviderMismatch);
}

} // namespace jet::sql
