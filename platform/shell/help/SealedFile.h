// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// Files that end in their own checksum, as the build leaves the help file (cmake/SealFile.cmake): what is cut
// or changed is known before a decoder sees it. The last line is "sealed sha256:", the checksum of everything
// before it as 64 lower-case hexadecimal digits, and a line feed.

#include <QByteArray>
#include <QString>

#include <optional>

namespace shell::help {

// The content without the seal. Nothing when the file cannot be read, is longer than `limit` bytes or does
// not fit its seal.
std::optional<QByteArray> readSealedFile(const QString& path, qint64 limit);

} // namespace shell::help
