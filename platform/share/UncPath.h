// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// A network name taken apart: \\server\share\folder\file. Every component has been checked, wherever it came
// from: none is empty, "." or "..", or holds a separator, a colon, a wildcard, a control character or
// anything else that a file name on the server cannot hold. So joining components with a separator never
// leaves the folder one began with. Failures are error 76 and say what is wrong.

#include <string>
#include <string_view>
#include <vector>

namespace share {

class UncPath {
public:
    // One trailing backslash is allowed. `wildcards` lets * and ? stand in the last component.
    static UncPath parse(std::string_view text) { return parsed(text, false); }
    static UncPath parsePattern(std::string_view text) { return parsed(text, true); }

    UncPath(std::string_view server, std::string_view share);

    const std::string& server() const noexcept { return m_server; }
    const std::string& share() const noexcept { return m_share; }
    // Below the share; empty for the share itself.
    const std::vector<std::string>& components() const noexcept { return m_components; }

    // The same path with one more component.
    UncPath child(std::string_view component) const;
    // The folder of the last component; error 76 for a share itself.
    UncPath parent() const;
    std::string text() const;

private:
    static UncPath parsed(std::string_view text, bool wildcards);

    std::string m_server;
    std::string m_share;
    std::vector<std::string> m_components;
};

} // namespace share
