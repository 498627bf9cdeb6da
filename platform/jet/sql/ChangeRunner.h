// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// Executes INSERT and DELETE: has the database to itself for as long as that takes, and tells other programs
// afterwards. A DELETE takes all rows; with a condition it is refused. The engine must outlive it.

#include "platform/jet/Engine.h"
#include "platform/jet/sql/Statement.h"

#include <string>
#include <variant>

namespace jet::sql {

using Change = std::variant<Insert, Delete>;

class ChangeRunner {
public:
    ChangeRunner(Engine& engine, std::string path) : m_engine(engine), m_path(std::move(path)) {}

    // Throws what run() would throw for the statement as the database is now, and writes nothing. Whoever has
    // it to himself meanwhile is waited for as long as by run().
    void check(const Change& change);
    // kProviderSyntax for an unknown column of an INSERT, kProviderMismatch for a value that its column
    // cannot hold, kProviderIntegrity for a key that is there; what TableWriter, TableEmptier and
    // Engine::openAlone throw.
    void run(const Change& change);

private:
    Engine& m_engine;
    std::string m_path;
};

} // namespace jet::sql
