// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/shell/help/SealedFile.h"

#include "tests/platform/shell/help/HelpFiles.h"

namespace shell::help {
namespace {

class SealedFileTest : public HelpFiles {
protected:
    std::optional<QByteArray> read(const QByteArray& bytes, qint64 limit = 1000) const {
        return readSealedFile(write(QStringLiteral("sealed"), bytes), limit);
    }
};

TEST_F(SealedFileTest, ReadsTheContentWithoutItsSeal) {
    EXPECT_EQ(read(sealed("content")), QByteArray("content"));
    EXPECT_EQ(read(sealed("")), QByteArray());
}

TEST_F(SealedFileTest, RefusesAFileCutAtAnyByte) {
    const QByteArray whole = sealed("content");
    for (qsizetype length = 0; length < whole.size(); ++length)
        EXPECT_FALSE(read(whole.left(length))) << length;
}

TEST_F(SealedFileTest, RefusesAFileWithAnyBitChanged) {
    const QByteArray whole = sealed("content");
    for (qsizetype at = 0; at < whole.size() * 8; ++at) {
        QByteArray changed = whole;
        changed[at / 8] = static_cast<char>(changed[at / 8] ^ (1 << (at % 8)));
        EXPECT_FALSE(read(changed)) << at;
    }
}

TEST_F(SealedFileTest, RefusesAFileWithMoreBehindTheSeal) {
    EXPECT_FALSE(read(sealed("content") + '\n'));
}

TEST_F(SealedFileTest, RefusesAFileWithoutASeal) {
    EXPECT_FALSE(read(QByteArray(500, 'x')));
}

TEST_F(SealedFileTest, RefusesAFileThatIsLongerThanTheLimit) {
    const QByteArray whole = sealed("content");
    EXPECT_TRUE(read(whole, whole.size()));
    EXPECT_FALSE(read(whole, whole.size() - 1));
}

TEST_F(SealedFileTest, ReadsNoMoreThanTheLimitOfAFileWithoutEnd) {
    EXPECT_FALSE(readSealedFile(QStringLiteral("/dev/zero"), 100'000));
}

TEST_F(SealedFileTest, RefusesWhatIsNoFile) {
    EXPECT_FALSE(readSealedFile(m_folder.filePath(QStringLiteral("missing")), 1000));
    EXPECT_FALSE(readSealedFile(m_folder.path(), 1000));
}

} // namespace
} // namespace shell::help
