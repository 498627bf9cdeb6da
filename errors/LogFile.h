// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// A text file open for appending; the destructor closes it. Each text goes to its end in one piece, whoever
// else appends at the same time, and is on the disk when append() returns. Readable by its owner only, for
// descriptions can name callers. Failures are RuntimeErrors that name the file.

#include <string>
#include <string_view>
#include <utility>

namespace errors {

class LogFile {
public:
    // Created if absent. Only a regular file will do: a pipe under that name would block the program, a link
    // could lead anywhere.
    explicit LogFile(std::string path);
    LogFile(LogFile&& other) noexcept
        : m_path(std::move(other.m_path)), m_descriptor(std::exchange(other.m_descriptor, -1)) {}
    LogFile& operator=(LogFile&&) = delete;
    ~LogFile();

    void append(std::string_view text);

private:
    std::string m_path;
    int m_descriptor = -1;
};

} // namespace errors
