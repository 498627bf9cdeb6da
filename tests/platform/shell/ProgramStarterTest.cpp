// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/shell/ProgramStarter.h"

#include "platform/basic/RuntimeError.h"
#include "platform/shell/ExternalProgram.h"

#include <QFile>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

#include <gtest/gtest.h>

namespace shell {
namespace {

class ProgramStarterTest : public ::testing::Test {
protected:
    // A program that leaves its arguments' number in a file.
    std::string program(const QString& name, bool isExecutable = true) const {
        QFile file(folder.filePath(name));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write("#!/bin/sh\nprintf %s $# > '" + mark().toUtf8() + "'\n");
        if (isExecutable)
            file.setPermissions(file.permissions() | QFile::ExeOwner);
        return file.fileName().toStdString();
    }
    QString mark() const { return folder.filePath(QStringLiteral("mark")); }
    QByteArray marked() const {
        QFile file(mark());
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
    std::int32_t errorOf(const std::string& path) {
        try {
            starter.start(path);
            return 0;
        } catch (const basic::RuntimeError& error) {
            return error.number();
        }
    }

    QTemporaryDir folder;
    ProgramStarter starter;
};

TEST_F(ProgramStarterTest, StartsTheFileWithoutArguments) {
    starter.start(program(QStringLiteral("info")));
    EXPECT_TRUE(QTest::qWaitFor([&] { return marked() == "0"; }));
}

TEST_F(ProgramStarterTest, ForgetsTheProgramWhenItHasEnded) {
    starter.start(program(QStringLiteral("info")));
    EXPECT_EQ(starter.children().size(), 1);
    EXPECT_TRUE(QTest::qWaitFor([&] { return starter.children().isEmpty(); }));
}

TEST_F(ProgramStarterTest, ANameIsNoCommandLine) {
    const std::string path = program(QStringLiteral("a b; $(x)"));
    EXPECT_EQ(errorOf(path + " argument"), basic::kFileNotFound);
    starter.start(path);
    EXPECT_TRUE(QTest::qWaitFor([&] { return marked() == "0"; }));
}

TEST_F(ProgramStarterTest, WhatIsNoFileOfThisSystemIsError53) {
    const std::string path = program(QStringLiteral("info"));
    for (const std::string& other : {std::string(), std::string("sh"), std::string("C:\\Windows\\info.exe"),
                                     std::string("\\\\srv01\\info.exe"), folder.path().toStdString(),
                                     path + "x", path + std::string("\0x", 2)})
        EXPECT_EQ(errorOf(other), basic::kFileNotFound) << other;
    EXPECT_TRUE(starter.children().isEmpty());
}

TEST_F(ProgramStarterTest, AFileThatCannotBeRunIsAnError) {
    EXPECT_EQ(errorOf(program(QStringLiteral("text"), false)), basic::kPermissionDenied);
    EXPECT_TRUE(starter.children().isEmpty());
}

} // namespace
} // namespace shell
