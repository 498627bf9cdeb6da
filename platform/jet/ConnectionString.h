// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// A provider's connection string taken apart: "key=value" pairs between semicolons, keys without case, values
// plain or in quotes. Only what this provider knows is taken: another provider is error 3706, an unknown key
// or value kProviderFailure.

#include <string>
#include <string_view>

namespace jet {

class ConnectionString {
public:
    static ConnectionString parse(std::string_view text);

    // Never empty.
    const std::string& dataSource() const noexcept { return m_dataSource; }

private:
    void take(std::string_view key, const std::string& value);

    std::string m_provider;
    std::string m_dataSource;
};

} // namespace jet
