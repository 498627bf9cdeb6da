// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// Proves that nobody wrote to a database while it was read: the commit words are the same before and after,
// and none says that its owner is writing. Costs 512 bytes each time. The file must outlive the guard.
// See docs/jet4-format.md, "Counting while the server writes".

#include "platform/basic/RuntimeError.h"
#include "platform/jet/CommitWords.h"
#include "platform/share/File.h"

#include <functional>

namespace jet {

class ReadGuard {
public:
    explicit ReadGuard(share::File& file) : ReadGuard(file, CommitWords::read(file)) {}
    // With words that were read already, such as the header's.
    ReadGuard(share::File& file, const CommitWords& before) : m_file(file), m_before(before) {}

    // Somebody is in the middle of writing: reading makes no sense now.
    bool isBlocked() const noexcept { return m_before.isWriting(); }
    // Reads the words again. False when what was read since the guard was made may be torn.
    bool holds() const { return !isBlocked() && CommitWords::read(m_file) == m_before; }

private:
    share::File& m_file;
    CommitWords m_before;
};

inline constexpr int kMaxReadTries = 5;

// Waits between two tries; hands in the number of the try that went wrong, from 1.
using ReadPause = std::function<void(int attempt)>;

[[noreturn]] void failBusy(const share::File& file);

// Calls `read` until it ran through while nobody wrote, and answers its result. Damage that it reports may
// be a half-written page, so it is tried again as well and believed only at the last try. Any other error is
// believed as soon as nobody wrote meanwhile.
template <typename Read>
auto readConsistently(share::File& file, const ReadPause& pause, Read&& read) {
    for (int attempt = 1;; ++attempt) {
        const bool isLast = attempt == kMaxReadTries;
        const ReadGuard guard(file);
        if (!guard.isBlocked()) {
            try {
                auto result = read();
                if (guard.holds())
                    return result;
            } catch (const basic::RuntimeError& error) {
                if (isLast || (error.number() != basic::kProviderFailure && guard.holds()))
                    throw;
            }
        }
        if (isLast)
            failBusy(file);
        pause(attempt);
    }
}

} // namespace jet
