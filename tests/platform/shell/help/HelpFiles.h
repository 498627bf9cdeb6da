// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// Help files made for a test by the compiler that makes the real one.

#include <QByteArray>
#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <map>

namespace shell::help {

using Pages = std::map<QString, QByteArray>; // by their names in the file

class HelpFiles : public testing::Test {
protected:
    QString write(const QString& name, const QByteArray& bytes) const {
        const QString path = m_folder.filePath(name);
        QDir().mkpath(QFileInfo(path).path());
        QFile file(path);
        EXPECT_TRUE(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size());
        return path;
    }

    static QByteArray sealed(const QByteArray& content) {
        return content +
               "sealed sha256:" + QCryptographicHash::hash(content, QCryptographicHash::Sha256).toHex() +
               '\n';
    }

    // The compiled file's bytes, without a seal.
    QByteArray compile(const Pages& pages) const {
        QByteArray project =
            "[OPTIONS]\nCompiled file=made.chm\nDefault topic=Client_Welcome.htm\n\n[FILES]\n";
        for (const auto& [name, bytes] : pages) {
            write(QStringLiteral("made/") + name, bytes);
            project += name.toUtf8() + '\n';
        }
        write(QStringLiteral("made/made.hhp"), project);
        QProcess compiler;
        compiler.setWorkingDirectory(m_folder.filePath(QStringLiteral("made")));
        compiler.start(QStringLiteral(QM_CHMCMD),
                       {QStringLiteral("--no-html-scan"), QStringLiteral("made.hhp")});
        EXPECT_TRUE(compiler.waitForFinished() && compiler.exitCode() == 0) << compiler.readAll().constData();
        QFile made(m_folder.filePath(QStringLiteral("made/made.chm")));
        EXPECT_TRUE(made.open(QIODevice::ReadOnly));
        return made.readAll();
    }

    QString helpFile(const Pages& pages) const {
        return write(QStringLiteral("help.chm"), sealed(compile(pages)));
    }

    static QByteArray page(const QByteArray& title, const QByteArray& body = {}) {
        return "<html><head><meta charset=\"utf-8\"><title>" + title + "</title></head><body><h1>" + title +
               "</h1>" + body + "</body></html>";
    }

    static QByteArray entry(const QByteArray& title, const QByteArray& name) {
        return "<LI><OBJECT type=\"text/sitemap\"><param name=\"Name\" value=\"" + title +
               "\"><param name=\"Local\" value=\"" + name + "\"></OBJECT></LI>\n";
    }

    QTemporaryDir m_folder;
};

} // namespace shell::help
