// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/demo/DemoMailbox.h"

#include "platform/basic/RuntimeError.h"
#include "platform/jet/CommitWordWriter.h"
#include "platform/jet/DatabaseBuilder.h"
#include "platform/jet/SoleUserLock.h"
#include "platform/jet/TableWriter.h"
#include "platform/share/LocalFile.h"
#include "tools/demo/CallLogTable.h"
#include "tools/demo/SpeechSynthesiser.h"
#include "tools/demo/WaveFile.h"

#include <array>
#include <chrono>
#include <filesystem>
#include <thread>

namespace demo {
namespace {

using basic::Variant;
using share::LocalFile;
using share::OpenMode;

std::unique_ptr<share::File> openLockFile(const std::string& database) {
    const std::string path = std::filesystem::path(database).replace_extension(".ldb").string();
    return LocalFile::open(path, std::filesystem::exists(path) ? OpenMode::ReadWrite : OpenMode::Create);
}

// Others are in for a moment only, to write as we do.
std::unique_ptr<jet::SoleUserLock> waitUntilAlone(share::File& lockFile) {
    constexpr int kTries = 100;
    constexpr std::chrono::milliseconds kPause{100};
    const jet::DatabaseUser self = jet::DatabaseUser::ofThisMachine();
    for (int left = kTries; left > 0; --left) {
        if (auto lock = jet::SoleUserLock::tryTake(lockFile, self))
            return lock;
        std::this_thread::sleep_for(kPause);
    }
    throw basic::RuntimeError(basic::kProviderFailure,
                              lockFile.name() + ": somebody else is in the database");
}

} // namespace

bool DemoMailbox::exists() const {
    return std::filesystem::exists(databasePath());
}

void DemoMailbox::create(std::string_view name, std::string_view description, const basic::Date& now) const {
    std::filesystem::create_directories(m_folder);
    const auto file = LocalFile::open(databasePath(), OpenMode::Create);
    jet::createDatabase(*file, now);
    jet::createTable(*file, callLogTable(), now);
    jet::createTable(*file, mailboxInfoTable(), now);
    jet::TableWriter info(*file, "MailboxInfo");
    info.insert(std::array<Variant, 3>{std::int32_t{1}, std::string(name), std::string(description)});
    info.flush();
}

void DemoMailbox::append(std::span<const Call> calls) const {
    for (const Call& call : calls)
        if (call.messageLength > 0)
            writeSound(call);
    const auto lockFile = openLockFile(databasePath());
    const auto alone = waitUntilAlone(*lockFile);
    const auto file = LocalFile::open(databasePath(), OpenMode::ReadWrite);
    jet::TableWriter log(*file, "CallLog");
    for (const Call& call : calls)
        log.insert(callLogRow(call));
    log.flush();
    jet::advanceCommitWord(*file, jet::SoleUserLock::kNumber);
}

void DemoMailbox::writeSound(const Call& call) const {
    std::uint32_t seed = 0; // the call's own voice, the same on every machine
    for (const char character : call.callId)
        seed = seed * 31 + static_cast<std::uint8_t>(character);
    const auto samples = synthesiseSpeech(static_cast<unsigned>(call.messageLength), seed);
    writeFile(soundPath(call), encodeWave(samples, seed % 2 == 0 ? SampleSize::Bits16 : SampleSize::Bits8));
}

} // namespace demo
