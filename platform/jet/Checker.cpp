// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/jet/Checker.h"

#include "platform/jet/Catalog.h"
#include "platform/jet/PageLedger.h"
#include "platform/jet/TableChecker.h"
#include "platform/jet/UsageMap.h"

namespace jet {

CheckReport Checker::run() {
    CheckReport report;
    const UsageMap free =
        UsageMap::read(m_source, {format::usageMap::kGlobalPage, format::usageMap::kGlobalRow}, "free pages");
    PageLedger ledger(m_source, free);
    ledger.enter(0, "the header");
    ledger.enterShared(format::usageMap::kGlobalPage);
    for (const PageNumber page : free.bitmapPages())
        ledger.enter(page, "the map of free pages");
    const Catalog catalog(m_source);
    TableChecker checker(m_source, ledger, report);
    for (const CatalogEntry& table : catalog.tables())
        checker.check(table.definitionPage(), table.name);
    report.usedPages = ledger.usedPages();
    return report;
}

} // namespace jet
