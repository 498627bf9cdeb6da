// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/jet/ReadGuard.h"

#include "tests/platform/basic/ErrorOf.h"
#include "tests/platform/jet/FailureOf.h"
#include "tests/platform/jet/Images.h"
#include "tests/platform/jet/MemoryFile.h"

#include <gmock/gmock.h>

namespace jet {
namespace {

using testing::HasSubstr;

class Opened {
public:
    explicit Opened(share::File& file) : m_file(file), m_words(CommitWords::read(file)) {}
    share::File& file() const { return m_file; }
    const CommitWords& commitWords() const { return m_words; }

private:
    share::File& m_file;
    CommitWords m_words;
};

class ReadConsistently : public testing::Test {
protected:
    void setWord(std::size_t index, unsigned value) {
        image.putU16(0, format::commitWords::kOffset + 2 * index, value);
        file.bytes = image.bytes;
    }
    template <typename Read>
    int run(Read read) {
        return run(read, [this](int attempt) { pauses.push_back(attempt); });
    }
    template <typename Read>
    int run(Read read, const ReadPause& pause) {
        return readConsistently(
            pause, [this] { return Opened(file); }, [&](const Opened&) { return read(); });
    }

    test::Image image = test::smallDatabase();
    test::MemoryFile file{image.bytes};
    std::vector<int> pauses;
    int calls = 0;
};

TEST_F(ReadConsistently, QuietDatabaseIsReadOnce) {
    EXPECT_EQ(run([this] { return ++calls; }), 1);
    EXPECT_TRUE(pauses.empty());
    EXPECT_EQ(file.reads.size(), 2U);
    EXPECT_EQ(file.reads[0], (std::pair<std::uint64_t, std::size_t>(0xE00, 512)));
}

TEST_F(ReadConsistently, ResultIsDroppedWhenAnyWordMovedMeanwhile) {
    for (const std::size_t word : {0U, 1U, 255U}) {
        calls = 0;
        const int result = run([&] {
            if (++calls == 1)
                setWord(word, 0x0234);
            return calls;
        });
        EXPECT_EQ(result, 2);
    }
    EXPECT_EQ(pauses.size(), 3U);
}

TEST_F(ReadConsistently, WaitsWhileSomebodyWrites) {
    setWord(4, 0);
    const int result = run([this] { return ++calls; }, [this](int) { setWord(4, 0x0105); });
    EXPECT_EQ(result, 1);
}

TEST_F(ReadConsistently, GivesUpWithAnErrorWhenWritingNeverEnds) {
    setWord(255, 0);
    EXPECT_THAT(test::failureOf([&] { run([this] { return ++calls; }); }), HasSubstr("is being written"));
    EXPECT_EQ(calls, 0);
    EXPECT_THAT(pauses, testing::ElementsAre(1, 2, 3, 4));
}

TEST_F(ReadConsistently, GivesUpWithAnErrorWhenEveryReadingIsOvertaken) {
    EXPECT_THAT(test::failureOf([&] {
                    run([this] {
                        setWord(1, static_cast<unsigned>(0x200 + ++calls));
                        return calls;
                    });
                }),
                HasSubstr("no consistent state"));
    EXPECT_EQ(calls, kMaxReadTries);
}

TEST_F(ReadConsistently, DamageIsBelievedOnlyAtTheLastTry) {
    EXPECT_EQ(run([this] {
                  if (++calls < kMaxReadTries)
                      throw basic::RuntimeError(basic::kProviderFailure, "torn");
                  return calls;
              }),
              kMaxReadTries);
    calls = 0;
    EXPECT_EQ(test::failureOf([&] {
                  run([this]() -> int {
                      ++calls;
                      throw basic::RuntimeError(basic::kProviderFailure, "torn");
                  });
              }),
              "torn");
    EXPECT_EQ(calls, kMaxReadTries);
}

TEST_F(ReadConsistently, OtherErrorsAreBelievedWhenNobodyWrote) {
    EXPECT_THROW(run([this]() -> int {
                     ++calls;
                     throw basic::RuntimeError(basic::kProviderNoTable);
                 }),
                 basic::RuntimeError);
    EXPECT_EQ(calls, 1);
    calls = 0;
    EXPECT_EQ(run([this] {
                  if (++calls == 1) {
                      setWord(9, 0x0300);
                      throw basic::RuntimeError(basic::kProviderNoTable);
                  }
                  return calls;
              }),
              2);
}

TEST_F(ReadConsistently, FileWithoutCommitWordsIsAnError) {
    file.bytes.resize(0xE10);
    EXPECT_THAT(test::failureOf([&] { CommitWords::read(file); }), HasSubstr("cut short"));
}

TEST_F(ReadConsistently, FileThatIsLostWithItsConnectionIsOpenedAnew) {
    EXPECT_EQ(run([this] {
                  if (++calls < kMaxReadTries)
                      throw share::ConnectionLost("gone");
                  return calls;
              }),
              kMaxReadTries);
    EXPECT_EQ(pauses.size(), kMaxReadTries - 1U);
}

TEST_F(ReadConsistently, ConnectionThatIsLostAtEveryTryIsToldAsAnErrorOfTheDevice) {
    EXPECT_EQ(basic::errorOf([this] {
                  run([this]() -> int {
                      ++calls;
                      throw share::ConnectionLost("gone");
                  });
              }),
              basic::kDeviceIoError);
    EXPECT_EQ(calls, kMaxReadTries);
}

} // namespace
} // namespace jet
