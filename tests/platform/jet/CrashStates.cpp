// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/platform/jet/CrashStates.h"

#include <stdexcept>

namespace jet::test {
namespace {

constexpr std::size_t kMaxGroup = 10; // 1024 choices

class Enumeration {
public:
    Enumeration(FileImage before, const std::function<void(const CrashState&)>& visit)
        : m_base(std::move(before)), m_visit(visit) {
        m_visit({m_base, "nothing written"});
        ++m_counts.prefixes;
    }

    void add(const WriteGroup& group) {
        if (group.size() > kMaxGroup)
            throw std::logic_error("too many writes between two syncs to try every order");
        ++m_group;
        const std::size_t choices = std::size_t{1} << group.size();
        for (std::size_t choice = 1; choice < choices; ++choice)
            addChoice(group, choice);
        for (const RecordedWrite& write : group)
            apply(m_base, write.offset, write.bytes);
    }

    CrashCounts counts() const { return m_counts; }

private:
    void addChoice(const WriteGroup& group, std::size_t choice) {
        const std::string what = "group " + std::to_string(m_group) + ", writes " + std::to_string(choice);
        FileImage image = m_base;
        for (std::size_t i = 0; i < group.size(); ++i)
            if ((choice >> i & 1U) != 0)
                apply(image, group[i].offset, group[i].bytes);
        m_visit({image, what});
        const bool isPrefix = (choice & (choice + 1)) == 0; // the first ones without a gap
        ++(isPrefix ? m_counts.prefixes : m_counts.reorderings);
        for (std::size_t i = 0; i < group.size(); ++i)
            if ((choice >> i & 1U) != 0)
                addTorn(group, choice & ~(std::size_t{1} << i), i, what);
    }

    void addTorn(const WriteGroup& group, std::size_t whole, std::size_t torn, const std::string& what) {
        FileImage rest = m_base;
        for (std::size_t i = 0; i < group.size(); ++i)
            if ((whole >> i & 1U) != 0)
                apply(rest, group[i].offset, group[i].bytes);
        const RecordedWrite& write = group[torn];
        const std::span<const std::byte> bytes(write.bytes);
        for (std::size_t cut = kSector; cut < bytes.size(); cut += kSector) {
            for (const bool keepsStart : {true, false}) {
                FileImage image = rest;
                if (keepsStart)
                    apply(image, write.offset, bytes.first(cut));
                else
                    apply(image, write.offset + cut, bytes.subspan(cut));
                m_visit({image,
                         what + ", write " + std::to_string(torn) + " torn at " + std::to_string(cut) +
                             (keepsStart ? ", start new" : ", end new"),
                         &write});
                ++m_counts.torn;
            }
        }
    }

    FileImage m_base;
    const std::function<void(const CrashState&)>& m_visit;
    CrashCounts m_counts;
    std::size_t m_group = 0;
};

} // namespace

CrashCounts forEachCrashState(const FileImage& before, const std::vector<WriteGroup>& groups,
                              const std::function<void(const CrashState&)>& visit) {
    Enumeration enumeration(before, visit);
    for (const WriteGroup& group : groups)
        enumeration.add(group);
    return enumeration.counts();
}

} // namespace jet::test
