// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/jet/Recordset.h"

#include "platform/basic/RuntimeError.h"
#include "platform/jet/NameComparison.h"

#include <algorithm>

namespace jet {

void Recordset::Close() {
    rows();
    m_rows.reset();
    m_current = 0;
}

std::int32_t Recordset::RecordCount() const {
    rows();
    return -1;
}

void Recordset::MoveFirst() {
    if (rows().rowCount() == 0)
        throw basic::RuntimeError(basic::kNoCurrentRecord);
    m_current = 0;
}

void Recordset::MoveNext() {
    if (eof())
        throw basic::RuntimeError(basic::kNoCurrentRecord);
    ++m_current;
}

basic::Variant Recordset::Field(std::size_t index) const {
    column(index);
    if (eof())
        throw basic::RuntimeError(basic::kNoCurrentRecord);
    return m_rows->value(m_current, index);
}

RowSource& Recordset::rows() const {
    if (!m_rows)
        throw basic::RuntimeError(basic::kObjectClosed);
    return *m_rows;
}

const ResultColumn& Recordset::column(std::size_t index) const {
    const std::vector<ResultColumn>& all = rows().columns();
    if (index >= all.size())
        throw basic::RuntimeError(basic::kItemNotInCollection);
    return all[index];
}

std::size_t Recordset::indexOf(std::string_view name) const {
    const std::vector<ResultColumn>& all = rows().columns();
    // Nearly every caller writes the name as it is, and folding case costs more than decoding most fields.
    auto found = std::ranges::find(all, name, &ResultColumn::name);
    if (found == all.end())
        found = std::ranges::find_if(all, [name](const ResultColumn& c) { return equalNames(c.name, name); });
    if (found == all.end())
        throw basic::RuntimeError(basic::kItemNotInCollection,
                                  "Item cannot be found in the collection: " + std::string(name));
    return static_cast<std::size_t>(found - all.begin());
}

} // namespace jet
