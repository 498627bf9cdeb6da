// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// qmbench [Google Benchmark's options] FOLDER
#include "bench/BenchFiles.h"

#include <benchmark/benchmark.h>

#include <filesystem>
#include <iostream>

namespace {

std::string theFolder; // NOLINT: the benchmarks' functions take no argument of ours

} // namespace

namespace bench {

const std::string& folder() {
    return theFolder;
}

std::string shortRowsFile(std::int64_t rows) {
    return "short-" + std::to_string(rows) + ".mdb";
}

std::string callsFile() {
    return "calls-" + std::to_string(kCallRows) + ".mdb";
}

} // namespace bench

int main(int argc, char** argv) {
    benchmark::Initialize(&argc, argv);
    if (argc != 2) {
        std::cerr << "Usage: qmbench [--benchmark_...] FOLDER\n";
        return 2;
    }
    theFolder = std::filesystem::absolute(argv[1]).string(); // a share is mapped to nothing else
    try {
        benchmark::RunSpecifiedBenchmarks();
    } catch (const std::exception& error) {
        std::cerr << "qmbench: " << error.what() << "\n";
        return 1;
    }
    return 0;
}
