// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// Executes a SELECT: counting without a condition reads the stored count, everything else takes the pages it
// needs into memory and checks each row it answers, so that nothing can fail for a torn row afterwards. The
// engine must outlive it.

#include "platform/jet/Engine.h"
#include "platform/jet/RowSource.h"
#include "platform/jet/sql/Statement.h"

#include <memory>
#include <string>

namespace jet::sql {

class SelectRunner {
public:
    SelectRunner(Engine& engine, std::string path) : m_engine(engine), m_path(std::move(path)) {}

    std::unique_ptr<RowSource> run(Select select);

private:
    Engine& m_engine;
    std::string m_path;
};

} // namespace jet::sql
