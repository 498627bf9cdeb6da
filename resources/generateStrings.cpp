// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// Runs while the program is built: generateStrings strings.tsv StringEntries.inc turns the table's source
// into the lines of a C++ array, so that the program needs no file at run time.

#include "platform/basic/RuntimeError.h"
#include "resources/StringSource.h"

#include <fstream>
#include <iostream>
#include <sstream>

namespace {

std::string readFile(const char* path) {
    std::ifstream in(path, std::ios::binary);
    std::ostringstream text;
    text << in.rdbuf();
    if (!in || text.str().empty())
        throw basic::RuntimeError(basic::kFileNotFound, std::string("cannot read ") + path);
    return text.str();
}

std::string literal(std::string_view text) {
    std::string quoted = "\"";
    for (const char character : text) {
        if (character == '\n') {
            quoted += "\\n";
            continue;
        }
        if (character == '"' || character == '\\')
            quoted += '\\';
        quoted += character;
    }
    return quoted + '"';
}

void writeFile(const char* path, const std::vector<resources::SourceString>& entries) {
    std::ofstream out(path, std::ios::binary);
    for (const resources::SourceString& entry : entries)
        out << "StringEntry{" << entry.id << ", " << literal(entry.english) << ", " << literal(entry.german)
            << "},\n";
    out.close();
    if (!out)
        throw basic::RuntimeError(basic::kPathFileAccess, std::string("cannot write ") + path);
}

} // namespace

int main(int argc, char** argv) {
    if (argc != 3) {
        std::cerr << "usage: generateStrings strings.tsv StringEntries.inc\n";
        return 2;
    }
    try {
        writeFile(argv[2], resources::parseStrings(readFile(argv[1])));
        return 0;
    } catch (const basic::RuntimeError& error) {
        std::cerr << error.description() << '\n';
        return 1;
    }
}
