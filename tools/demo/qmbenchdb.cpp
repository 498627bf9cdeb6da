// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
// Makes a database of a given number of rows to measure with.

#include "platform/share/LocalFile.h"
#include "tools/demo/BenchDatabase.h"

#include <charconv>
#include <iostream>
#include <string>
#include <vector>

namespace {

constexpr const char* kUsage =
    "Usage: qmbenchdb FILE ROWS [--short|--calls]\n"
    "\n"
    "Makes the new database FILE with ROWS rows in its table CallLog: short ones with a\n"
    "primary key only (--short), or whole calls (--calls).\n"
    "\n"
    "Exit status: 0 done, 1 failed, 2 command line not understood.\n";

bool parseRows(const std::string& text, std::uint32_t& rows) {
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), rows);
    return error == std::errc{} && end == text.data() + text.size();
}

} // namespace

int main(int argc, char** argv) {
    const std::vector<std::string> arguments(argv + 1, argv + argc);
    if (arguments.size() == 1 && arguments[0] == "--help") {
        std::cout << kUsage;
        return 0;
    }
    std::uint32_t rows = 0;
    const bool isCalls = arguments.size() == 3 && arguments[2] == "--calls";
    const bool isKnown =
        arguments.size() == 2 || isCalls || (arguments.size() == 3 && arguments[2] == "--short");
    if (!isKnown || !parseRows(arguments[1], rows)) {
        std::cerr << kUsage;
        return 2;
    }
    try {
        const auto file = share::LocalFile::open(arguments[0], share::OpenMode::Create);
        demo::fillBenchDatabase(*file, rows, isCalls ? demo::BenchRows::Calls : demo::BenchRows::Short);
        return 0;
    } catch (const std::exception& error) {
        std::cerr << "qmbenchdb: " << error.what() << "\n";
        return 1;
    }
}
