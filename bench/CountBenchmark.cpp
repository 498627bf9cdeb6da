// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// One poll of one mailbox: open, count, close. The same files for both sides.
#include "bench/BenchFiles.h"
#include "bench/IoCount.h"
#include "bench/LibmdbTable.h"
#include "bench/OurTable.h"

#include <benchmark/benchmark.h>

#include <stdexcept>

namespace {

void expectRows(std::int64_t found, std::int64_t expected) {
    if (found != expected)
        throw std::runtime_error("counted " + std::to_string(found) + " rows instead of " +
                                 std::to_string(expected));
}

void setIo(benchmark::State& state, const bench::IoCount& io) {
    state.counters["bytes"] = static_cast<double>(io.bytesRead);
    state.counters["calls"] = static_cast<double>(io.readCalls);
}

void countOurs(benchmark::State& state) {
    const std::int64_t rows = state.range(0);
    bench::OurTable table(bench::folder(), bench::shortRowsFile(rows));
    expectRows(table.count(), rows); // the first poll learns where the table is
    for (auto _ : state)
        benchmark::DoNotOptimize(table.count());
    setIo(state, bench::ioOf([&] { expectRows(table.count(), rows); }));
}

void countFirstOurs(benchmark::State& state) {
    const std::int64_t rows = state.range(0);
    const auto poll = [&] { return bench::OurTable(bench::folder(), bench::shortRowsFile(rows)).count(); };
    for (auto _ : state)
        benchmark::DoNotOptimize(poll());
    setIo(state, bench::ioOf([&] { expectRows(poll(), rows); }));
}

void countLibmdb(benchmark::State& state) {
    const std::int64_t rows = state.range(0);
    const std::string path = bench::folder() + "/" + bench::shortRowsFile(rows);
    const auto poll = [&] {
        return static_cast<std::int64_t>(bench::LibmdbTable(path, "CallLog").rowCount());
    };
    for (auto _ : state)
        benchmark::DoNotOptimize(poll());
    setIo(state, bench::ioOf([&] { expectRows(poll(), rows); }));
}

BENCHMARK(countOurs)->Arg(bench::kFewRows)->Arg(bench::kManyRows)->Unit(benchmark::kMicrosecond);
BENCHMARK(countFirstOurs)->Arg(bench::kFewRows)->Arg(bench::kManyRows)->Unit(benchmark::kMicrosecond);
BENCHMARK(countLibmdb)->Arg(bench::kFewRows)->Arg(bench::kManyRows)->Unit(benchmark::kMicrosecond);

} // namespace
