// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/share/ShareResolver.h"

#include <gmock/gmock.h>

namespace share {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

ShareResolver::Mapping mappingOf(std::string_view server, std::string folder) {
    return [server, folder](std::string_view asked) {
        return asked == server ? std::optional<std::string>(folder) : std::nullopt;
    };
}

MountInfo mountsOf(std::string text) {
    return [text] { return text; };
}

const UncPath kDatabase = UncPath::parse(R"(\\srv\Quillamar_0$\MBX\7\qmLog.mdb)");

TEST(ShareResolver, MappedFolderStandsForTheCallLogShare) {
    const Route route = ShareResolver(mappingOf("srv", "/data/qm"), {}).resolve(kDatabase);
    EXPECT_EQ(route.way, Way::Folder);
    EXPECT_EQ(route.folder, "/data/qm");
    EXPECT_THAT(route.components, ElementsAre("MBX", "7", "qmLog.mdb"));
}

TEST(ShareResolver, MappingComesBeforeAMount) {
    const ShareResolver resolver(mappingOf("srv", "/data/qm"),
                                 mountsOf("1 2 0:1 / /mnt rw - cifs //srv/Quillamar_0$ rw\n"));
    EXPECT_EQ(resolver.resolve(kDatabase).folder, "/data/qm");
}

TEST(ShareResolver, MappingIsOnlyForTheCallLogShare) {
    const ShareResolver resolver(mappingOf("srv", "/data/qm"), {});
    EXPECT_EQ(resolver.resolve(UncPath("srv", "C$")).way, Way::Server);
    EXPECT_EQ(resolver.resolve(UncPath("srv", "QUILLAMAR_0$")).way, Way::Folder);
    EXPECT_EQ(resolver.resolve(UncPath("other", "Quillamar_0$")).way, Way::Server);
}

TEST(ShareResolver, RelativeMappingIsNoMapping) {
    EXPECT_EQ(ShareResolver(mappingOf("srv", "data"), {}).resolve(kDatabase).way, Way::Server);
    EXPECT_EQ(ShareResolver(mappingOf("srv", ""), {}).resolve(kDatabase).way, Way::Server);
}

TEST(ShareResolver, MountedShareIsFoundWithoutCase) {
    const ShareResolver resolver({}, mountsOf("1 2 0:1 / /mnt/q rw - cifs //SRV/quillamar_0$ rw\n"));
    const Route route = resolver.resolve(kDatabase);
    EXPECT_EQ(route.way, Way::Folder);
    EXPECT_EQ(route.folder, "/mnt/q");
    EXPECT_THAT(route.components, ElementsAre("MBX", "7", "qmLog.mdb"));
}

TEST(ShareResolver, MountBelowTheShareTakesItsPartOfThePath) {
    const ShareResolver resolver({}, mountsOf("1 2 0:1 / /mnt/q rw - cifs //srv/Quillamar_0$/mbx rw\n"));
    EXPECT_THAT(resolver.resolve(kDatabase).components, ElementsAre("7", "qmLog.mdb"));
    EXPECT_EQ(resolver.resolve(UncPath("srv", "Quillamar_0$")).way, Way::Server);
    EXPECT_EQ(resolver.resolve(UncPath("srv", "Quillamar_0$").child("other")).way, Way::Server);
}

TEST(ShareResolver, DeepestAndThenLatestMountWins) {
    const ShareResolver resolver({}, mountsOf("1 2 0:1 / /deep rw - cifs //srv/Quillamar_0$/MBX rw\n"
                                              "1 2 0:1 / /old rw - cifs //srv/Quillamar_0$ rw\n"
                                              "1 2 0:1 / /new rw - cifs //srv/Quillamar_0$ rw\n"));
    EXPECT_EQ(resolver.resolve(kDatabase).folder, "/deep");
    EXPECT_EQ(resolver.resolve(UncPath("srv", "Quillamar_0$")).folder, "/new");
}

TEST(ShareResolver, WithoutMappingOrMountTheServerItselfAnswers) {
    const Route route = ShareResolver({}, {}).resolve(kDatabase);
    EXPECT_EQ(route.way, Way::Server);
    EXPECT_THAT(route.folder, IsEmpty());
    EXPECT_THAT(route.components, ElementsAre("MBX", "7", "qmLog.mdb"));
}

std::string slowMountOf(const ShareResolver& resolver) {
    const std::optional<SlowMount> mount = resolver.slowMountOf(resolver.resolve(kDatabase));
    return mount ? mount->mountPoint : "none";
}

TEST(ShareResolver, KnowsTheMountThatAMappedFolderLiesOn) {
    const MountInfo mounts = mountsOf("22 1 8:1 / / rw - ext4 /dev/sda1 rw\n"
                                      "41 22 0:40 / /mnt/nas rw - nfs4 nas:/q rw\n"
                                      "42 22 0:41 / /data/part/MBX rw - nfs4 nas:/p rw\n");
    const auto mountOf = [&](const char* folder) {
        return slowMountOf(ShareResolver(mappingOf("srv", folder), mounts));
    };
    EXPECT_EQ(mountOf("/mnt/nas/log"), "/mnt/nas");
    EXPECT_EQ(mountOf("/data/part"), "/data/part/MBX");
    EXPECT_EQ(mountOf("/data/qm"), "none");
    EXPECT_EQ(mountOf("smb://srv"), "none");
}

TEST(ShareResolver, WithoutATableNoMountIsKnown) {
    EXPECT_EQ(slowMountOf(ShareResolver(mappingOf("srv", "/mnt/nas"), {})), "none");
}

TEST(ShareResolver, ASettledOneKeepsWhatTheMappingSaid) {
    std::optional<std::string> folder = "/data/qm";
    const ShareResolver resolver([&](std::string_view) { return folder; },
                                 mountsOf("1 2 0:1 / /mnt rw - cifs //srv/Quillamar_0$ rw\n"));
    const ShareResolver settled = resolver.settledFor(kDatabase);
    folder.reset();
    EXPECT_EQ(settled.resolve(kDatabase).folder, "/data/qm");
    EXPECT_EQ(resolver.settledFor(kDatabase).resolve(kDatabase).folder, "/mnt");
}

} // namespace
} // namespace share
