// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "data/FillListView2.h"

#include "data/CallLog.h"
#include "errors/Procedure.h"
#include "platform/basic/VariantText.h"
#include "resources/Icons.h"
#include "resources/StringTable.h"

#include <optional>

namespace data {
namespace {

// One call of FillListView2: what its rows have in common.
class Filling {
public:
    Filling(errors::Procedure& proc, forms::ListView& list, jet::Recordset& records,
            const std::vector<ColumnDescription>& columns, const basic::DateTimeFormat& format)
        : m_proc(proc), m_list(list), m_records(records), m_columns(columns), m_format(format) {}

    void addHeaders() {
        for (const ColumnDescription& column : m_columns)
            m_proc.step([&] { m_list.ColumnHeaders().Add(column.Caption, column.Width, column.Alignment); });
    }

    // False when the row could not be added: the rest of the record is skipped with it.
    bool addRow() {
        std::optional<forms::ListItem> item;
        m_proc.step([&] {
            const basic::Variant& callID = m_records.Field(kCallID);
            const std::string key =
                "K" + (basic::isNull(callID) ? std::string() : basic::toText(callID, m_format));
            item = m_list.ListItems().Add(key, text(0));
        });
        if (!item)
            return false;
        for (std::size_t column = 1; column < m_columns.size(); ++column)
            m_proc.step([&] { item->SetSubItems(static_cast<int>(column), text(column)); });
        m_proc.step([&] {
            item->SetSmallIcon(hasMessage() ? resources::kCallWithMessage : resources::kCallWithoutMessage);
        });
        return true;
    }

private:
    std::string text(std::size_t column) const {
        const std::string& name = m_columns[column].FieldName;
        if (name.empty())
            return {};
        const basic::Variant& value = m_records.Field(name);
        if (basic::isNull(value))
            return {};
        if (const bool* flag = std::get_if<bool>(&value))
            return *flag ? resources::LoadLocalString(10, "Yes") : resources::LoadLocalString(11, "No");
        return basic::toText(value, m_format);
    }

    // A length that is Null does not equal 0.
    bool hasMessage() const {
        const basic::Variant& length = m_records.Field(kMessageLength);
        return basic::isNull(length) || basic::toText(length, m_format) != "0";
    }

    errors::Procedure& m_proc;
    forms::ListView& m_list;
    jet::Recordset& m_records;
    const std::vector<ColumnDescription>& m_columns;
    const basic::DateTimeFormat& m_format;
};

} // namespace

bool FillListView2::operator()(forms::ListView& list, jet::Recordset& records,
                               const std::vector<ColumnDescription>& columns, bool showHeaders,
                               std::string_view /*selectedKey*/) const {
    errors::Procedure proc{m_errors, "basCommon", "FillListView2"};
    Filling filling{proc, list, records, columns, m_format};
    proc.step([&] { list.SetHideColumnHeaders(!showHeaders); });
    proc.step([&] { list.ListItems().Clear(); });
    proc.step([&] { list.ColumnHeaders().Clear(); });
    filling.addHeaders();
    if (proc.value(false, [&] { return records.RecordCount() >= 1; }))
        proc.step([&] { records.MoveFirst(); });
    const auto atEnd = [&] { return records.RecordCount() == 0 || records.eof(); };
    bool exhausted = proc.value(false, atEnd);
    while (proc.running() && !exhausted) {
        filling.addRow();
        if (!proc.step([&] { records.MoveNext(); }))
            break;
        exhausted = proc.value(false, atEnd);
    }
    return exhausted;
}

} // namespace data
