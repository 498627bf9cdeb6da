// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/platform/registry/RegistryFileTest.h"

namespace registry {
namespace {

namespace fs = std::filesystem;

TEST_F(RegistryFileTest, AMissingFileIsAnEmptyTree) {
    EXPECT_TRUE(m_file.tree().keys().empty());
}

TEST_F(RegistryFileTest, ReadsAgainOnlyWhenTheFileChanged) {
    put("[K]\n\"a\"=\"1\"\n");
    EXPECT_NE(m_file.tree().find("K"), nullptr);
    m_calls.names.clear();
    EXPECT_NE(m_file.tree().find("K"), nullptr);
    EXPECT_EQ(m_calls.names, std::vector<std::string>{"stat"});
    put("[Other]\n");
    EXPECT_NE(m_file.tree().find("Other"), nullptr);
    fs::remove(m_path);
    EXPECT_TRUE(m_file.tree().keys().empty());
}

TEST_F(RegistryFileTest, SeesAFileOfTheSameSizePutInItsPlace) {
    put("[K]\n\"a\"=\"1\"\n");
    m_file.tree();
    RegistryFolder::put(m_path + ".2", RegistryFolder::settings("[K]\n\"a\"=\"2\"\n"));
    fs::last_write_time(m_path + ".2", fs::last_write_time(m_path));
    fs::rename(m_path + ".2", m_path);
    EXPECT_EQ(m_file.tree().find("K")->findValue("a")->data, textData("2"));
}

TEST_F(RegistryFileTest, ADamagedFileStaysAnErrorUntilItIsMended) {
    put("[K]\n");
    m_file.tree();
    put("rubbish\n");
    EXPECT_THROW(m_file.tree(), StoreError);
    EXPECT_THROW(m_file.tree(), StoreError);
    put("[L]\n");
    EXPECT_NE(m_file.tree().find("L"), nullptr);
}

TEST_F(RegistryFileTest, ADamagedFileThatIsRemovedLeavesNoOldTreeBehind) {
    put("[K]\n");
    m_file.tree();
    put("rubbish\n");
    EXPECT_THROW(m_file.tree(), StoreError);
    fs::remove(m_path);
    EXPECT_TRUE(m_file.tree().keys().empty());
}

TEST_F(RegistryFileTest, ADamagedFileIsNotReplaced) {
    put("[K]\nrubbish\n");
    const std::string before = content();
    EXPECT_NE(failureOf(m_file, {setText("K", "a", "1")}).find("registry.reg: line 4"), std::string::npos);
    EXPECT_EQ(content(), before);
}

TEST_F(RegistryFileTest, MakesFoldersAndFileForTheirUserAlone) {
    RegistryFile deep(m_calls, {(m_folder.folder() / "a" / "b" / "registry.reg").string()});
    deep.change({setText("K", "a", "1")});
    EXPECT_EQ(modeOf(m_folder.folder() / "a"), 0700U);
    EXPECT_EQ(modeOf(m_folder.folder() / "a" / "b"), 0700U);
    EXPECT_EQ(modeOf(m_folder.folder() / "a" / "b" / "registry.reg"), 0600U);
}

TEST_F(RegistryFileTest, KeepsTheFilesMode) {
    put("[K]\n");
    ::chmod(m_path.c_str(), 0640);
    m_file.change({setText("K", "a", "1")});
    EXPECT_EQ(modeOf(m_path), 0640U);
}

TEST_F(RegistryFileTest, WritesThroughSymbolicLinksAndLeavesThem) {
    const fs::path target = m_folder.folder() / "dotfiles" / "settings.reg";
    RegistryFolder::put(target, RegistryFolder::settings("[K]\n\"a\"=\"1\"\n"));
    fs::create_directories(fs::path(m_path).parent_path());
    fs::create_symlink("../dotfiles/link.reg", m_path);
    fs::create_symlink(target, m_folder.folder() / "dotfiles" / "link.reg");
    m_file.change({setText("K", "b", "2")});
    EXPECT_TRUE(fs::is_symlink(m_path));
    EXPECT_FALSE(fs::is_symlink(target));
    EXPECT_EQ(textAt("K", "a"), "1");
    EXPECT_EQ(textAt("K", "b"), "2");
    EXPECT_NE(RegistryFolder::content(target).find("\"b\"=\"2\""), std::string::npos);
}

TEST_F(RegistryFileTest, WritesThroughALinkToNoFileYet) {
    fs::create_directories(fs::path(m_path).parent_path());
    fs::create_symlink("later.reg", m_path);
    m_file.change({setText("K", "a", "1")});
    EXPECT_TRUE(fs::is_symlink(m_path));
    EXPECT_EQ(textAt("K", "a"), "1");
}

TEST_F(RegistryFileTest, LinksInACircleAreAnError) {
    fs::create_directories(fs::path(m_path).parent_path());
    fs::create_symlink(m_path, m_path + ".x");
    fs::create_symlink(m_path + ".x", m_path);
    EXPECT_NE(failureOf(m_file, {setText("K", "a", "1")}).find("cannot follow"), std::string::npos);
}

TEST_F(RegistryFileTest, AFolderOrPipeInItsPlaceIsAnErrorNotAWait) {
    fs::create_directories(m_path);
    EXPECT_THROW(m_file.tree(), StoreError);
    fs::remove(m_path);
    ASSERT_EQ(::mkfifo(m_path.c_str(), 0600), 0);
    EXPECT_THROW(m_file.tree(), StoreError);
}

TEST_F(RegistryFileTest, BringsTheContentToTheDiskBeforeTheNameAndThenTheName) {
    put("[K]\n");
    m_calls.names.clear();
    m_file.change({setText("K", "a", "1")});
    std::string steps;
    for (const std::string& name : m_calls.names)
        if (name == "write" || name == "fsync" || name == "rename" || name == "flock")
            steps += name + " ";
    EXPECT_EQ(steps, "flock write fsync rename fsync ");
}

TEST_F(RegistryFileTest, ReadsAndWritesThatCarryOneByteEachAreEnough) {
    put("[K]\n\"a\"=\"1\"\n");
    m_calls.most = 1;
    m_file.change({setText("K", "b", "2")});
    EXPECT_EQ(content(), RegistryFolder::settings("[K]\n\"a\"=\"1\"\n\"b\"=\"2\"\n"));
}

TEST_F(RegistryFileTest, TakesTheFirstFileThatExists) {
    const std::string second = m_folder.machineFile();
    RegistryFile file(m_calls, {m_path, second});
    EXPECT_TRUE(file.tree().keys().empty());
    RegistryFolder::put(second, RegistryFolder::settings("[Second]\n"));
    EXPECT_NE(file.tree().find("Second"), nullptr);
    put("[First]\n");
    EXPECT_NE(file.tree().find("First"), nullptr);
}

TEST_F(RegistryFileTest, WithoutAnyFolderNothingIsReadOrSaved) {
    RegistryFile file(m_calls, {});
    EXPECT_THROW(file.tree(), StoreError);
    EXPECT_NE(failureOf(file, {setText("K", "a", "1")}).find("no folder for the settings"),
              std::string::npos);
    EXPECT_FALSE(file.isWritable());
}

TEST_F(RegistryFileTest, SettingsTooBigToBeReadAgainAreNotWritten) {
    put("[K]\n");
    const std::string before = content();
    const Value big{"big", kRegBinary, Bytes(6U * 1024 * 1024, 7)};
    EXPECT_NE(failureOf(m_file, {{Operation::Kind::SetValue, "K", big}}), "no failure");
    EXPECT_EQ(content(), before);
}

} // namespace
} // namespace registry
