// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/mediagraph/MessageReader.h"

#include "platform/share/LocalFileSystemObject.h"
#include "tests/platform/mediagraph/ErrorOf.h"
#include "tests/platform/mediagraph/ServedFile.h"
#include "tests/platform/share/FaultyFileSystem.h"
#include "tests/platform/share/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <filesystem>

namespace mediagraph::testing {
namespace {

constexpr const char* kMessage = R"(\\srv\Quillamar_0$\message.wav)";

// A share of this machine's folder; what is done to it happens through the plan.
struct ReadingWorld {
    share::testing::TemporaryFolder folder;
    share::testing::FaultPlan plan;
    SleepWaiting waiting;
    share::LocalFileSystemObject files{share::ShareResolver(
        [this](std::string_view) { return folder.path(); }, [] { return std::string(); })};

    MessageReader reader(WaitLimits limits = kPatient) {
        return {[this] { return std::make_unique<share::testing::FaultyFileSystem>(files, plan); }, waiting,
                limits};
    }
};

TEST(MessageReader, ReadsAWholeFileAndHasItClosedBeforeItReturns) {
    ReadingWorld world;
    const std::string content(200'000, 'w');
    world.folder.makeFile("message.wav", content);
    const auto bytes = world.reader().read(kMessage);
    EXPECT_EQ(bytes, std::vector<std::byte>(content.size(), std::byte{'w'}));
    EXPECT_EQ(world.plan.openFiles, 0);
}

TEST(MessageReader, EndsInAnErrorAtEveryCallThatFails) {
    ReadingWorld world;
    world.folder.makeFile("message.wav", std::string(200'000, 'w'));
    world.reader().read(kMessage);
    const int calls = world.plan.calls;
    ASSERT_GT(calls, 4);
    for (int call = 1; call <= calls; ++call) {
        world.plan = {.failAt = call};
        EXPECT_EQ(errorOf([&] { world.reader().read(kMessage); }), basic::kDeviceIoError) << call;
        EXPECT_EQ(world.plan.openFiles, 0);
    }
}

TEST(MessageReader, TakesWhatIsThereOfAFileThatBecameShorter) {
    ReadingWorld world;
    world.folder.makeFile("message.wav", std::string(1000, 'w'));
    world.plan.shortReadAt = 3; // open, size, read
    EXPECT_EQ(world.reader().read(kMessage).size(), 1000U);
    EXPECT_EQ(world.plan.reads, 2);
}

TEST(MessageReader, RefusesAFileBeyondItsLimit) {
    ReadingWorld world;
    world.folder.makeFile("message.wav", "");
    std::filesystem::resize_file(world.folder.path("message.wav"), MessageReader::kMaximumSize + 1);
    EXPECT_EQ(errorOf([&] { world.reader().read(kMessage); }), basic::kOutOfMemory);
}

TEST(MessageReader, NamesAFileThatIsNotThere) {
    ReadingWorld world;
    EXPECT_EQ(errorOf([&] { world.reader().read(kMessage); }), basic::kFileNotFound);
}

// Has less than it said when it was opened.
class ShrunkFile final : public ServedFile {
public:
    ShrunkFile() : ServedFile(1000) {}
    std::size_t read(std::uint64_t offset, std::span<std::byte>) override { return offset == 0 ? 600 : 0; }
};

TEST(MessageReader, AnswersNoMoreThanThereWasToRead) {
    SleepWaiting waiting;
    auto reader = readerOf([] { return std::make_unique<ShrunkFile>(); }, waiting);
    EXPECT_EQ(reader.read("m.wav").size(), 600U);
}

} // namespace
} // namespace mediagraph::testing
