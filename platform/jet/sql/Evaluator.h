// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// Computes a bound expression for one row. & takes Null for empty text; a comparison with Null is Null, and
// so is whatever depends on it; a condition holds only when it is true. The decoder must outlive the
// evaluator.

#include "platform/jet/ValueDecoder.h"
#include "platform/jet/sql/Expression.h"

namespace jet::sql {

class Evaluator {
public:
    explicit Evaluator(ValueDecoder& decoder) : m_decoder(decoder) {}

    basic::Variant value(const Expression& expression, const RowView& row);
    bool holds(const Expression& condition, const RowView& row);

private:
    basic::Variant value(const Operation& operation, const RowView& row);
    basic::Variant logical(const Operation& operation, const RowView& row);
    void appendText(std::string& text, const Expression& expression, const RowView& row);

    ValueDecoder& m_decoder;
};

} // namespace jet::sql
