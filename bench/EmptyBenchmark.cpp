// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// Emptying a whole call log: what it writes, and how long the database is kept from others.
#include "bench/BenchFiles.h"
#include "bench/IoCount.h"
#include "bench/OurTable.h"
#include "bench/RowByRowDeletion.h"
#include "platform/share/LocalFile.h"

#include <benchmark/benchmark.h>

#include <filesystem>
#include <functional>
#include <stdexcept>

namespace {

constexpr const char* kScratch = "emptied.mdb";

void makeScratch() {
    std::filesystem::copy_file(bench::folder() + "/" + bench::callsFile(), bench::folder() + "/" + kScratch,
                               std::filesystem::copy_options::overwrite_existing);
}

// `empty` deletes all rows of the scratch file.
void measure(benchmark::State& state, const std::function<void()>& empty) {
    bench::IoCount io;
    for (auto _ : state) {
        state.PauseTiming();
        makeScratch();
        state.ResumeTiming();
        io = bench::ioOf(empty);
        if (bench::OurTable(bench::folder(), kScratch).count() != 0)
            throw std::runtime_error("rows were left");
    }
    state.counters["bytes"] = static_cast<double>(io.bytesWritten);
    state.counters["calls"] = static_cast<double>(io.writeCalls);
}

void emptyOurs(benchmark::State& state) {
    measure(state, [] { bench::OurTable(bench::folder(), kScratch).deleteAll(); });
}

void emptyRowByRow(benchmark::State& state) {
    measure(state, [] {
        const auto file =
            share::LocalFile::open(bench::folder() + "/" + kScratch, share::OpenMode::ReadWrite);
        bench::deleteRowByRow(*file, "CallLog");
    });
}

BENCHMARK(emptyOurs)->Unit(benchmark::kMillisecond);
BENCHMARK(emptyRowByRow)->Unit(benchmark::kMillisecond);

} // namespace
