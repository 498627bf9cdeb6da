// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// Proves that nobody wrote to a database while it was read: the commit words are the same before and after,
// and none says that its owner is writing. Costs 512 bytes each time. The file must outlive the guard.
// See docs/jet4-format.md, "Counting while the server writes".

#include "platform/basic/RuntimeError.h"
#include "platform/jet/CommitWords.h"
#include "platform/share/ConnectionLost.h"
#include "platform/share/File.h"

#include <functional>
#include <optional>
#include <utility>

namespace jet {

class ReadGuard {
public:
    // With the words as they were read with the header.
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

// Nothing is wrong with the database; whoever can wait may try again.
class DatabaseBusy final : public basic::RuntimeError {
public:
    explicit DatabaseBusy(const share::File& file);
};

// One reading under the guard; nothing when what was read may be torn. Damage that `read` reports may be a
// half-written page, so it is believed only at the last try; any other error as soon as nobody wrote
// meanwhile.
template <typename Read>
auto readOnce(const ReadGuard& guard, bool isLast, Read&& read) -> std::optional<decltype(read())> {
    if (guard.isBlocked())
        return std::nullopt;
    try {
        auto result = read();
        if (guard.holds())
            return result;
    } catch (const basic::RuntimeError& error) {
        if (isLast || (error.number() != basic::kProviderFailure && guard.holds()))
            throw;
    }
    return std::nullopt;
}

// Opens and reads until a reading ran through while nobody wrote, and answers its result. What `open` gives
// is handed to `read` and has file() and commitWords(), as they were when it was opened; it is gone before
// each pause, so that nothing stays open meanwhile. A file that was lost with its connection is a try, too.
template <typename Open, typename Read>
auto readConsistently(const ReadPause& pause, Open&& open, Read&& read) {
    for (int attempt = 1;; ++attempt) {
        const bool isLast = attempt == kMaxReadTries;
        try {
            auto opened = open();
            const ReadGuard guard(opened.file(), opened.commitWords());
            if (auto result = readOnce(guard, isLast, [&] { return read(opened); }))
                return std::move(*result);
            if (isLast)
                throw DatabaseBusy(opened.file());
        } catch (const share::ConnectionLost&) {
            if (isLast)
                throw;
        }
        pause(attempt);
    }
}

} // namespace jet
