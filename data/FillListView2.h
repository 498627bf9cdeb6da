// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// Fills a list view from a record set, a row a record. Part of basCommon: failures are reported under the
// module "basCommon", procedure "FillListView2". User-interface thread.

#include "errors/ErrorHandler.h"
#include "platform/basic/DateTimeFormat.h"
#include "platform/basic/Twips.h"
#include "platform/forms/ListView.h"
#include "platform/jet/Recordset.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace data {

struct ColumnDescription {
    std::string Caption;
    std::string FieldName; // empty: the column is filled with empty texts
    basic::Twips Width;
    std::int32_t Alignment = 0; // 0 left, 1 right, 2 centre
};

class FillListView2 {
public:
    FillListView2(errors::ErrorHandler& errorHandler, const basic::DateTimeFormat& format)
        : m_errors(errorHandler), m_format(format) {}

    // True when the record set is exhausted or empty. Each row's key is "K" and its CallID; its small icon
    // tells whether its MessageLength is 0. `selectedKey` is not used: a refilled list has no selection.
    bool operator()(forms::ListView& list, jet::Recordset& records,
                    const std::vector<ColumnDescription>& columns, bool showHeaders,
                    std::string_view selectedKey = {}) const;

private:
    errors::ErrorHandler& m_errors;
    const basic::DateTimeFormat& m_format;
};

} // namespace data
