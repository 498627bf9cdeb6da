// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// A call log that others use as well, and a connection that changes it. Its pauses for others take no time;
// a test says what happens in them.

#include "platform/jet/ByteEditor.h"
#include "platform/jet/CommitWords.h"
#include "tests/platform/jet/FailureOf.h"
#include "tests/platform/jet/sql/SharedDatabase.h"
#include "tests/platform/share/ExpectError.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace jet::test {

inline constexpr std::string_view kDelete = "DELETE FROM CallLog";
inline constexpr std::string_view kInsert =
    "INSERT INTO CallLog (CallID, CallDate, CallerID, MessageLength) VALUES "
    "('N1', #5/6/2024 7:08#, '+4930', 12)";
inline constexpr int kCalls = 20;

class ChangeTest : public ::testing::Test {
protected:
    ChangeTest() { m_connection.Open(SharedDatabase::kConnection); }

    std::shared_ptr<Recordset> execute(std::string_view statement) { return m_connection.Execute(statement); }
    std::uint16_t word(std::size_t user) const {
        const auto file = share::LocalFile::open(m_database.place(), share::OpenMode::Read);
        return CommitWords::read(*file).words[user];
    }
    void setWord(std::size_t user, std::uint16_t word) const {
        FileImage image = m_database.bytes();
        ByteEditor(image).put16(format::commitWords::kOffset + 2 * user, word);
        m_database.setBytes(image);
    }
    std::unique_ptr<share::File> openLockFile(share::OpenMode mode) const {
        return share::LocalFile::open(m_database.lockFilePlace(), mode);
    }

    SharedDatabase m_database{callLogDatabase(kCalls)};
    int m_pauses = 0;
    std::function<void()> m_onPause = [] {};
    SharingWait m_wait{.tries = 5, .sleep = [this](std::chrono::milliseconds) {
                           ++m_pauses;
                           m_onPause();
                       }};
    Engine m_engine{m_database.files, [](int) {}, m_wait};
    Connection m_connection{m_engine};
};

} // namespace jet::test
