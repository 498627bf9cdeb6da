// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// Reads one table completely and holds it against the rules: definition, usage maps, page headers, every row
// and value, long values against their maps, indexes against rows. Enters all its pages into the ledger. The
// first breach is thrown as RuntimeError kProviderFailure; counts and remarks go into the report.

#include "platform/jet/CheckReport.h"
#include "platform/jet/DataPage.h"
#include "platform/jet/PageLedger.h"
#include "platform/jet/RowView.h"
#include "platform/jet/TableDefinition.h"

#include <string>
#include <vector>

namespace jet {

class TableChecker {
public:
    TableChecker(PageSource& source, PageLedger& ledger, CheckReport& report)
        : m_source(source), m_ledger(ledger), m_report(report) {}

    void check(PageNumber definitionPage, const std::string& name);

private:
    UsageMap enterMap(RowPointer where);
    void enterPages(const UsageMap& map, std::string_view use);
    void checkDataPages(const UsageMap& owned);
    void checkDataPage(PageNumber number);
    void checkRows();
    void checkLongValues(const Column& column);
    void checkLongValuePages(const Column& column, const std::vector<PageNumber>& visited);
    void checkIndexes();
    Place placeOf(PageNumber page) const noexcept { return {m_source.name(), m_name, page}; }

    PageSource& m_source;
    PageLedger& m_ledger;
    CheckReport& m_report;
    std::string m_name;
    TableDefinition m_table;
    std::vector<RowPointer> m_rows;
    std::size_t m_pointers = 0;
    std::size_t m_relocated = 0;
};

} // namespace jet
