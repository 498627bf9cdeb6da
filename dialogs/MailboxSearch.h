// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// Searches a server for its mailboxes while the window lives on: a thread of its own looks, and from time to
// time the user-interface thread sees how far it has come. One search at a time; a search that nobody waits
// for any more ends after the request that it is at. A thread that hangs in a folder of this machine is left
// behind, so it owns all it touches; one that talks to a server is waited for at the end, which is quick.
// Made by the program, used from the user-interface thread.

#include "dialogs/FoundMailboxes.h"
#include "platform/share/FileSystemObject.h"

#include <QObject>
#include <QTimer>

#include <chrono>
#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace dialogs {

// A share as the thread of one search sees it.
struct SearchedShare {
    std::unique_ptr<share::FileSystemObject> files;
    // Cancels its waits for a server, from any thread. Null for a folder of this machine: nothing ends a call
    // that hangs, and the thread needs nothing that goes with the program.
    std::function<void()> endWaits;
};

class MailboxSearch final : public QObject {
    Q_OBJECT
public:
    // For the folder of the mailboxes' folders.
    using OpenShare = std::function<SearchedShare(const std::string& folder)>;
    struct Listener {
        std::function<void(int read, int total)> progressed;
        std::function<void(const FoundMailboxes& found)> done;
        // While it says no, what was found is kept.
        std::function<bool()> isReady = [] { return true; };
    };

    // A search that is over so soon needs no second visit.
    static constexpr std::chrono::milliseconds kAtOnce{50};
    static constexpr std::chrono::milliseconds kGlance{50};

    explicit MailboxSearch(OpenShare openShare);
    ~MailboxSearch() override;

    // `qmPath` is the root of the server's share. `listener.done` is called once, when the listener is ready,
    // before this returns or later from the event loop; not at all after cancel() or another begin(). Error 7
    // without a thread.
    void begin(const std::string& qmPath, Listener listener);
    bool isSearching() const noexcept { return m_search != nullptr; }
    // Nobody is told anything any more.
    void cancel() noexcept;
    // The program ends; no search begins any more.
    void end() noexcept;

private:
    struct Search;
    struct Asker; // a thread that talks to a server
    static void run(const std::shared_ptr<Search>& search, const SearchedShare& share,
                    const std::string& qmPath);
    void start(const std::string& qmPath, const std::shared_ptr<Search>& search);
    void glance();
    void joinDone();

    OpenShare m_openShare;
    QTimer m_glances;
    std::shared_ptr<Search> m_search; // null when nobody waits for one
    Listener m_listener;
    std::vector<Asker> m_askers;
    bool m_isEnded = false;
};

} // namespace dialogs
