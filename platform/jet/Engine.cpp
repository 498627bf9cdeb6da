// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/jet/Engine.h"

#include "platform/basic/TextCompare.h"

#include <chrono>
#include <thread>
#include <utility>

namespace jet {
namespace {

constexpr std::size_t kMaximumHints = 512;              // mailboxes polled by one client stay far below
constexpr std::chrono::milliseconds kShortestPause{10}; // all of them together stay unnoticed

} // namespace

Engine::Engine(share::FileSystemObject& files, ReadPause pause, SharingWait sharing)
    : m_files(files), m_pause(std::move(pause)), m_sharing(std::move(sharing)) {}

std::unique_ptr<share::File> Engine::openForReading(std::string_view path) {
    for (int attempt = 1;; ++attempt) {
        try {
            return m_files.openFile(path, share::OpenMode::Read);
        } catch (const basic::RuntimeError& error) {
            if (error.number() != basic::kFileAlreadyOpen || attempt == kMaxReadTries)
                throw;
        }
        m_pause(attempt);
    }
}

std::unique_ptr<share::File> Engine::openAgain(std::string_view path) {
    for (int left = m_sharing.tries;; --left) {
        try {
            return openForReading(path);
        } catch (const basic::RuntimeError& error) {
            if (error.number() != basic::kPathNotFound || left <= 1)
                throw;
        }
        m_sharing.sleep(SharingWait::randomPause());
    }
}

// The header is one read and nothing else is looked at, so there is nothing to compare the words with.
void Engine::checkDatabase(std::string_view path) {
    for (int attempt = 1;; ++attempt) {
        try {
            const auto file = attempt == 1 ? openForReading(path) : openAgain(path);
            if (!DatabaseHeader::read(*file).commitWords.isWriting()) {
                m_checked = path;
                return;
            }
            if (attempt == kMaxReadTries)
                throw DatabaseBusy(*file);
        } catch (const share::ConnectionLost&) {
            if (attempt == kMaxReadTries)
                throw;
        }
        m_pause(attempt);
    }
}

void Engine::checkDatabaseToChange(std::string_view path) {
    try {
        DatabaseHeader::read(*m_files.openFile(path, share::OpenMode::Read));
    } catch (const basic::RuntimeError& error) {
        if (error.number() != basic::kFileAlreadyOpen)
            throw;
    }
}

std::unique_ptr<SoleAccess> Engine::openAlone(const std::string& path) {
    for (int left = m_sharing.tries;; --left) {
        if (auto access = SoleAccess::tryOpen(m_files, path, m_self))
            return access;
        if (left <= 1)
            SoleAccess::failInUse(m_files, path);
        m_sharing.sleep(SharingWait::randomPause());
    }
}

CatalogHint& Engine::hint(std::string_view path, std::string_view table) {
    std::string key = basic::foldCase(path) + '\n' + basic::foldCase(table);
    if (m_hints.size() >= kMaximumHints && !m_hints.contains(key))
        m_hints.clear();
    return m_hints[std::move(key)];
}

void Engine::sleepBriefly(int attempt) {
    std::this_thread::sleep_for(attempt * kShortestPause);
}

} // namespace jet
