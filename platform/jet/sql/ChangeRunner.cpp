// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/jet/sql/ChangeRunner.h"

#include "platform/basic/RuntimeError.h"
#include "platform/jet/CommitWordWriter.h"
#include "platform/jet/SoleAccess.h"
#include "platform/jet/TableEmptier.h"
#include "platform/jet/TableWriter.h"

#include <vector>

namespace jet::sql {
namespace {

[[noreturn]] void failInsert(const Insert& insert, const std::string& why) {
    throw basic::RuntimeError(basic::kProviderSyntax, "INSERT INTO " + insert.table + ": " + why);
}

// One value for each column of the table, Null where the statement names none.
std::vector<basic::Variant> rowOf(const Insert& insert, const TableDefinition& table) {
    std::vector<basic::Variant> row(table.columns.size());
    std::vector<bool> isNamed(row.size(), false);
    for (std::size_t i = 0; i < insert.columns.size(); ++i) {
        const Column* column = table.findColumn(insert.columns[i]);
        if (column == nullptr)
            failInsert(insert, "the table has no field " + insert.columns[i]);
        const auto place = static_cast<std::size_t>(column - table.columns.data());
        if (isNamed[place])
            failInsert(insert, "the field " + column->name + " is named twice");
        isNamed[place] = true;
        row[place] = insert.values[i];
    }
    return row;
}

// The provider has numbers of its own for values that a column does not take.
void insertRow(TableWriter& writer, const Insert& insert) {
    const std::vector<basic::Variant> row = rowOf(insert, writer.definition());
    try {
        writer.insert(row);
    } catch (const basic::RuntimeError& error) {
        if (error.number() == basic::kTypeMismatch)
            throw basic::RuntimeError(basic::kProviderMismatch, error.description());
        if (error.number() == basic::kOverflow)
            throw basic::RuntimeError(basic::kProviderFailure, error.description());
        throw;
    }
}

void refuseCondition(const Delete& deletion) {
    if (deletion.condition != nullptr)
        throw basic::RuntimeError(basic::kProviderFailure, "DELETE FROM " + deletion.table +
                                                               ": single rows cannot be deleted, only all");
}

struct Check {
    share::File& file;

    void operator()(const Insert& insert) const {
        TableWriter writer(file, insert.table);
        insertRow(writer, insert);
    }
    void operator()(const Delete& deletion) const {
        refuseCondition(deletion);
        const TableEmptier emptier(file, deletion.table);
    }
};

struct Run {
    SoleAccess& access;

    void operator()(const Insert& insert) const {
        TableWriter writer(access.file(), insert.table);
        insertRow(writer, insert);
        writer.flush();
        announce();
    }
    void operator()(const Delete& deletion) const {
        refuseCondition(deletion);
        TableEmptier emptier(access.file(), deletion.table);
        if (!emptier.isDone())
            emptier.run([this] { announce(); });
    }
    void announce() const { advanceCommitWord(access.file(), access.user()); }
};

} // namespace

void ChangeRunner::check(const Change& change) {
    m_engine.readToChange(m_path, [&](Database& database) {
        std::visit(Check{database.file()}, change);
        return true;
    });
}

void ChangeRunner::run(const Change& change) {
    const std::unique_ptr<SoleAccess> access = m_engine.openAlone(m_path);
    std::visit(Run{*access}, change);
}

} // namespace jet::sql
