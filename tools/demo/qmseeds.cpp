// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
// Writes the databases of fuzz/corpus/JetReader: qmseeds FOLDER.

#include "tools/demo/SeedDatabases.h"

#include <exception>
#include <iostream>

int main(int argc, char** argv) {
    if (argc != 2) {
        std::cerr << "Usage: qmseeds FOLDER\n";
        return 2;
    }
    try {
        demo::writeSeedDatabases(argv[1]);
        return 0;
    } catch (const std::exception& error) {
        std::cerr << "qmseeds: " << error.what() << "\n";
        return 1;
    }
}
