// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// A compiled help file, read by chmlib from a copy in memory that nobody else can change. chmlib crashes on
// damaged files, so the bytes must be known to be whole (SealedFile); sizes are bounded all the same before
// memory is taken. One thread.

#include <QByteArray>
#include <QString>

#include <memory>
#include <optional>
#include <vector>

struct chmFile;

namespace shell::help {

class ChmFile {
public:
    static constexpr quint64 kLargestObject = 1 << 20;

    // Null when the bytes are no such file.
    static std::unique_ptr<ChmFile> open(const QByteArray& bytes);

    // Paths begin with "/" and compare without case, as in the format. Nothing when there is no such object,
    // it is larger than kLargestObject or cannot be decoded.
    std::optional<QByteArray> read(const QString& path) const;
    // The author's own files.
    std::vector<QString> paths() const;

private:
    struct Close {
        void operator()(chmFile* file) const;
    };

    explicit ChmFile(chmFile* file) : m_file(file) {}

    std::unique_ptr<chmFile, Close> m_file;
};

} // namespace shell::help
