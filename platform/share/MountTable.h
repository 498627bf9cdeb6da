// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The mounted network shares of this machine, read from the text of /proc/self/mountinfo. A mount may begin
// below the share (//server/share/sub), and a bind mount may show a part of one. Lines that cannot be read
// are passed over. Format: proc(5), "/proc/pid/mountinfo".

#include <string>
#include <string_view>
#include <vector>

namespace share {

struct ShareMount {
    std::string server;
    std::string share;
    std::vector<std::string> below; // folders between the share and what is mounted
    std::string mountPoint;
};

class MountTable {
public:
    explicit MountTable(std::string_view mountInfo);

    // In the order of mounting.
    const std::vector<ShareMount>& shares() const noexcept { return m_shares; }

    // The table's text of this process; empty where it cannot be read.
    static std::string systemText();

private:
    std::vector<ShareMount> m_shares;
};

} // namespace share
