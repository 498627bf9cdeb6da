// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// A whole call log: every column of every row as text.
#include "bench/BenchFiles.h"
#include "bench/LibmdbTable.h"
#include "bench/OurTable.h"

#include <benchmark/benchmark.h>

#include <stdexcept>

namespace {

void expectText(std::size_t bytes) {
    if (bytes < static_cast<std::size_t>(bench::kCallRows) * 10)
        throw std::runtime_error("read " + std::to_string(bytes) + " bytes of text only");
}

void readOurs(benchmark::State& state) {
    bench::OurTable table(bench::folder(), bench::callsFile());
    for (auto _ : state)
        expectText(table.readAll());
}

void listOurs(benchmark::State& state) {
    bench::OurTable table(bench::folder(), bench::callsFile());
    for (auto _ : state)
        expectText(table.readForList());
}

void readLibmdb(benchmark::State& state) {
    for (auto _ : state)
        expectText(bench::LibmdbTable(bench::folder() + "/" + bench::callsFile(), "CallLog").readAll());
}

BENCHMARK(readOurs)->Unit(benchmark::kMillisecond);
BENCHMARK(listOurs)->Unit(benchmark::kMillisecond);
BENCHMARK(readLibmdb)->Unit(benchmark::kMillisecond);

} // namespace
