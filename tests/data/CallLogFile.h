// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// A mailbox's call log as the server keeps it, made by our own writer: created empty, then appended to.

#include "platform/basic/Variant.h"

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>

namespace tests {

struct Call {
    std::string callID;
    std::optional<std::string> callerName = "Anna Berg";
    std::optional<std::int32_t> messageLength = 12;
    std::optional<std::string> callerID = "+4930123456";
    std::optional<double> date = 45000.5;
    std::optional<basic::Variant> details = std::nullopt; // "details of <ID>" when not given
};

class CallLogFile {
public:
    explicit CallLogFile(std::filesystem::path file) : m_file(std::move(file)) {}

    // An empty log in place of whatever was there.
    void create() const;
    void append(const Call& call) const;
    // The table in which the mailbox describes itself, to be called once at most.
    void describe(const std::string& name, const std::optional<std::string>& description) const;
    // The table without its row.
    void describeNothing() const;
    // Calls named C1, C2 … going on after those that this object appended before.
    void append(int count);

    const std::filesystem::path& path() const { return m_file; }

private:
    std::filesystem::path m_file;
    int m_last = 0;
};

} // namespace tests
