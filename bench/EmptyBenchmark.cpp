// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// Emptying a whole call log: what it writes, and how long the database is kept from others.
#include "bench/BenchFiles.h"
#include "bench/IoCount.h"
#include "bench/OurTable.h"

#include <benchmark/benchmark.h>

#include <filesystem>
#include <stdexcept>

namespace {

constexpr const char* kScratch = "emptied.mdb";

void makeScratch() {
    std::filesystem::copy_file(bench::folder() + "/" + bench::callsFile(), bench::folder() + "/" + kScratch,
                               std::filesystem::copy_options::overwrite_existing);
}

void emptyOurs(benchmark::State& state) {
    bench::OurTable table(bench::folder(), kScratch);
    bench::IoCount io;
    for (auto _ : state) {
        state.PauseTiming();
        makeScratch();
        state.ResumeTiming();
        io = bench::ioOf([&] { table.deleteAll(); });
        if (table.count() != 0)
            throw std::runtime_error("rows were left");
    }
    state.counters["bytes"] = static_cast<double>(io.bytesWritten);
    state.counters["calls"] = static_cast<double>(io.writeCalls);
}

BENCHMARK(emptyOurs)->Unit(benchmark::kMillisecond);

} // namespace
