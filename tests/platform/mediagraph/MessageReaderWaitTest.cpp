// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
// How long a message is waited for, and what the caller does meanwhile.

#include "tests/platform/mediagraph/ErrorOf.h"
#include "tests/platform/mediagraph/ServedFile.h"

#include <gtest/gtest.h>

#include <condition_variable>
#include <mutex>
#include <semaphore>

namespace mediagraph::testing {
namespace {

using std::chrono::milliseconds;

// A file whose reading waits for a gate that the test opens.
struct Gate {
    std::mutex mutex;
    std::condition_variable changed;
    bool isOpen = false;
    int reads = 0;
    int left = 0;

    void open() {
        const std::lock_guard lock(mutex);
        isOpen = true;
        changed.notify_all();
    }
    void pass() {
        std::unique_lock lock(mutex);
        ++reads;
        changed.wait(lock, [this] { return isOpen; });
    }
    void leave() {
        const std::lock_guard lock(mutex);
        ++left;
        changed.notify_all();
    }
    void awaitLeaving() {
        std::unique_lock lock(mutex);
        changed.wait(lock, [this] { return left > 0; });
    }
};

constexpr std::uint64_t kSeveralPieces = 1'000'000;

class GatedFile final : public ServedFile {
public:
    explicit GatedFile(std::shared_ptr<Gate> gate) : ServedFile(kSeveralPieces), m_gate(std::move(gate)) {}
    ~GatedFile() override { m_gate->leave(); }
    std::size_t read(std::uint64_t, std::span<std::byte> into) override {
        m_gate->pass();
        return into.size();
    }

private:
    std::shared_ptr<Gate> m_gate;
};

MessageReader gatedReader(const std::shared_ptr<Gate>& gate, Waiting& waiting, WaitLimits limits) {
    return readerOf([gate] { return std::make_unique<GatedFile>(gate); }, waiting, limits);
}

class CountingWait final : public Waiting {
public:
    int passes = 0;
    bool pass(milliseconds time) override {
        ++passes;
        return SleepWaiting().pass(time);
    }
};

// The server has more time than a machine at a standstill takes away: the caller lives on at least once.
TEST(MessageReader, GivesUpOnAServerThatStopsAnswering) {
    const auto gate = std::make_shared<Gate>();
    CountingWait waiting;
    auto reader = gatedReader(gate, waiting, {std::chrono::seconds{1}, std::chrono::minutes{10}});
    EXPECT_EQ(errorTextOf([&] { reader.read("m.wav"); }),
              "m.wav: the server does not answer. The message could not be read.");
    EXPECT_GT(waiting.passes, 0);
    gate->open();
    gate->awaitLeaving();                              // the thread that was left behind closes its file
    EXPECT_LE(gate->reads, 1) << "read on for nobody"; // none, where the thread came late
}

TEST(MessageReader, GivesUpWhenItTakesTooLongAltogether) {
    const auto gate = std::make_shared<Gate>();
    SleepWaiting waiting;
    auto reader = gatedReader(gate, waiting, {std::chrono::hours{1}, milliseconds{50}});
    EXPECT_EQ(errorOf([&] { reader.read("m.wav"); }), basic::kDeviceIoError);
    gate->open();
    gate->awaitLeaving();
}

// Lets the window live: the gate opens only because waiting does something meanwhile.
class OpeningWait final : public Waiting {
public:
    explicit OpeningWait(std::shared_ptr<Gate> gate) : m_gate(std::move(gate)) {}
    bool pass(milliseconds) override {
        m_gate->open();
        return true;
    }

private:
    std::shared_ptr<Gate> m_gate;
};

// The program ends while it waits.
class EndedWait final : public Waiting {
public:
    int passes = 0;
    bool pass(milliseconds) override { return ++passes < 3; }
};

TEST(MessageReader, WaitsNoLongerWhenTheProgramEnds) {
    const auto gate = std::make_shared<Gate>();
    EndedWait waiting;
    auto reader = gatedReader(gate, waiting, {std::chrono::hours{1}, std::chrono::hours{1}});
    EXPECT_EQ(errorOf([&] { reader.read("m.wav"); }), basic::kDeviceIoError);
    EXPECT_EQ(waiting.passes, 3);
    gate->open();
    gate->awaitLeaving();
}

// A server on a slow line: each piece comes after some turns of the wait, all of them after the time that a
// server may take without an answer.
using Turns = std::counting_semaphore<>;

class SlowWait final : public Waiting {
public:
    explicit SlowWait(std::shared_ptr<Turns> turns) : m_turns(std::move(turns)) {}
    bool pass(milliseconds time) override {
        if (++m_passes % 15 == 0)
            m_turns->release();
        return SleepWaiting().pass(time);
    }

private:
    std::shared_ptr<Turns> m_turns;
    int m_passes = 0;
};

class SlowFile final : public ServedFile {
public:
    explicit SlowFile(std::shared_ptr<Turns> turns) : ServedFile(kSeveralPieces), m_turns(std::move(turns)) {}
    std::size_t read(std::uint64_t, std::span<std::byte> into) override {
        m_turns->acquire();
        return into.size();
    }

private:
    std::shared_ptr<Turns> m_turns;
};

TEST(MessageReader, StaysWithAServerThatIsSlowButGoesOn) {
    const auto turns = std::make_shared<Turns>(0);
    SlowWait waiting(turns);
    auto reader = readerOf([turns] { return std::make_unique<SlowFile>(turns); }, waiting,
                           {std::chrono::seconds{2}, std::chrono::minutes{10}});
    EXPECT_EQ(reader.read("m.wav").size(), kSeveralPieces);
}

TEST(MessageReader, LetsTheCallerLiveOnWhileItReads) {
    const auto gate = std::make_shared<Gate>();
    OpeningWait waiting(gate);
    auto reader = gatedReader(gate, waiting, kPatient);
    EXPECT_EQ(reader.read("m.wav").size(), kSeveralPieces);
}

} // namespace
} // namespace mediagraph::testing
