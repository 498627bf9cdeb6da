// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The mounted network shares of this machine, which of its folders another machine or a program answers for,
// and what their locks are worth, read from the text of /proc/self/mountinfo. A mount may begin below the
// share (//server/share/sub), and a bind mount may show a part of one. Lines that cannot be read are passed
// over. Format: proc(5), "/proc/pid/mountinfo".

#include <sys/types.h>

#include <functional>
#include <optional>
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

// A mount that a server or a program answers for: any call there takes as long as they do.
struct SlowMount {
    std::string id; // no other mount has it as long as a call into this one lasts
    std::string mountPoint;
};

// Where the text comes from; asked for each question, because mounts come and go.
using MountInfo = std::function<std::string()>;

class MountTable {
public:
    explicit MountTable(std::string_view mountInfo);

    // In the order of mounting.
    const std::vector<ShareMount>& shares() const noexcept { return m_shares; }

    // The one that `path` lies on; nothing for the disks of this machine. `path` is absolute and compared
    // without case, as names below a mapped folder are; symbolic links in it are not followed.
    std::optional<SlowMount> slowMountOf(std::string_view path) const;

    // False for the files of a mount whose locks hold among the programs of this machine only, and of one
    // that shows what it remembers in place of what the server has by now. They cannot be told by trying.
    bool locksAreShared(dev_t device) const;

    // The table's text of this process; empty where it cannot be read.
    static std::string systemText();

private:
    struct Mount {
        SlowMount mount;
        bool isSlow = false;
    };

    std::vector<ShareMount> m_shares;
    std::vector<Mount> m_mounts; // all, in their order
    std::vector<dev_t> m_withoutLocks;
};

} // namespace share
