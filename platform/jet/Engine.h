// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The provider behind all connections of a program: opens database files through the file-system object,
// reads them in a consistent state although their server writes meanwhile, and remembers where a table was
// found, so that the next count costs a handful of page reads. Holds no file between two readings. The file
// system must outlive it, and it must outlive its connections. One thread at a time.

#include "platform/jet/CatalogHint.h"
#include "platform/jet/Database.h"
#include "platform/jet/ReadGuard.h"
#include "platform/jet/SharingWait.h"
#include "platform/jet/SoleAccess.h"
#include "platform/share/FileSystemObject.h"

#include <map>
#include <string>
#include <string_view>
#include <utility>

namespace jet {

class Engine {
public:
    // `pause` waits between two tries of a reading that a writer disturbed.
    // `sharing` says how long a change waits for others to leave, and a reading for a server to come back.
    explicit Engine(share::FileSystemObject& files, ReadPause pause = sleepBriefly, SharingWait sharing = {});
    Engine(const Engine&) = delete;
    Engine& operator=(const Engine&) = delete;

    // Opens the file and closes it again: an error when that fails, when it is no database, or when somebody
    // is said to be writing to it and does not end.
    void checkDatabase(std::string_view path);
    // The same for a change to come. Who else is in now is no error: the change will wait for him, and name
    // him if he does not leave.
    void checkDatabaseToChange(std::string_view path);

    // Opens the database, calls `read` with it and answers its result if nobody wrote meanwhile. Everything
    // that may come of a half-written page, errors and results, is tried again a bounded number of times;
    // the last try's error is believed. The database is closed on return. A path that is not found any more,
    // in this reading or right after checkDatabase(), is a server that starts anew: it is waited for.
    template <typename Read>
    auto readDatabase(std::string_view path, Read&& read);

    // The same as long as a change waits for others: for the look before it. kProviderFailure that names who
    // has the database alone when he does not leave in time.
    template <typename Read>
    auto readToChange(const std::string& path, Read&& read);

    // Opens the database for a change once nobody else is in it. kProviderFailure that names who is in when
    // that does not come true in time, and what SoleAccess throws.
    std::unique_ptr<SoleAccess> openAlone(const std::string& path);

    // What is remembered about a table, to be handed to Database; empty at first. Valid until the next call.
    CatalogHint& hint(std::string_view path, std::string_view table);

    share::FileSystemObject& files() noexcept { return m_files; }
    static void sleepBriefly(int attempt);

private:
    // Somebody who has the file to himself for a change is waited for, as a writer is.
    std::unique_ptr<share::File> openForReading(std::string_view path);
    // The same for a file that was there a moment ago.
    std::unique_ptr<share::File> openAgain(std::string_view path);

    share::FileSystemObject& m_files;
    ReadPause m_pause;
    SharingWait m_sharing;
    DatabaseUser m_self = DatabaseUser::ofThisMachine();
    std::map<std::string, CatalogHint, std::less<>> m_hints;
    std::string m_checked; // the path of a check that no reading followed yet
};

template <typename Read>
auto Engine::readDatabase(std::string_view path, Read&& read) {
    bool wasThere = std::exchange(m_checked, {}) == path;
    const auto open = [&] {
        return Database(std::exchange(wasThere, true) ? openAgain(path) : openForReading(path));
    };
    return readConsistently(m_pause, open, std::forward<Read>(read));
}

template <typename Read>
auto Engine::readToChange(const std::string& path, Read&& read) {
    int left = m_sharing.tries;
    const ReadPause pause = [&](int) {
        --left;
        m_sharing.sleep(SharingWait::randomPause());
    };
    const auto open = [&] { return Database(m_files.openFile(path, share::OpenMode::Read)); };
    for (;; pause(1)) {
        try {
            return readConsistently(pause, open, read);
        } catch (const DatabaseBusy&) {
            if (left <= 1)
                throw;
        } catch (const basic::RuntimeError& error) {
            if (error.number() != basic::kFileAlreadyOpen)
                throw;
            if (left <= 1)
                SoleAccess::failInUse(m_files, path);
        }
    }
}

} // namespace jet
