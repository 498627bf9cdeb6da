// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// Reads a whole database and holds everything in it against the rules: the map of free pages, then every
// table of the catalog with its maps, rows, long values and indexes, and that no page serves two purposes or
// is marked free while in use. The first inconsistency is thrown as RuntimeError kProviderFailure that names
// it. For tests and tools; takes as long as reading the file several times. The source must outlive it.

#include "platform/jet/CheckReport.h"
#include "platform/jet/PageSource.h"

namespace jet {

class Checker {
public:
    explicit Checker(PageSource& source) : m_source(source) {}

    CheckReport run();

private:
    PageSource& m_source;
};

} // namespace jet
