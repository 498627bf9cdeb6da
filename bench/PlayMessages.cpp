// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// qmbenchplay FILE PLAYS: plays the file at the desktop's default device as often as told, one play after the
// other. For each play one line: the moment it was asked for on the machine's monotonic clock in seconds, and
// the resident memory after it in KiB.
#include "platform/mediagraph/SoundSystem.h"
#include "platform/mediagraph/Waiting.h"
#include "platform/share/LocalFileSystemObject.h"

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <memory>
#include <stdexcept>
#include <string>
#include <thread>

namespace {

using mediagraph::EventCode;

std::shared_ptr<mediagraph::IFilterInfo> added(mediagraph::FilgraphManager& graph, std::int32_t index) {
    return graph.RegFilterCollection()->Item(index)->Filter();
}

EventCode endOf(mediagraph::FilgraphManager& graph) {
    for (;;) {
        try {
            return graph.WaitForCompletion(std::chrono::milliseconds{100});
        } catch (const basic::RuntimeError& error) {
            if (error.number() != basic::kMediaStillRunning)
                throw;
            graph.CurrentPosition(); // tells a failure
        }
    }
}

double now() {
    return std::chrono::duration<double>(std::chrono::steady_clock::now().time_since_epoch()).count();
}

long residentKiB() {
    std::ifstream statm("/proc/self/statm");
    long pages = 0;
    statm >> pages >> pages;
    return pages * 4;
}

void play(mediagraph::MediaGraphs& graphs, const std::string& name) {
    const double asked = now(); // what the user feels: reading and decoding count
    const auto graph = graphs.newFilgraphManager();
    const auto source = added(*graph, 0);
    source->SetFilename(name);
    source->Pins().Item(0)->Connect(*added(*graph, 1)->Pins().Item(0));
    graph->Run();
    if (endOf(*graph) != EventCode::Complete)
        throw std::runtime_error("did not play to the end");
    graph->Stop();
    std::printf("%.6f %ld\n", asked, residentKiB());
}

int run(const std::filesystem::path& file, int plays) {
    const std::string folder = file.parent_path();
    const auto newFiles = [folder] {
        return std::make_unique<share::LocalFileSystemObject>(share::ShareResolver(
            [folder](std::string_view) { return folder; }, [] { return std::string(); }));
    };
    mediagraph::SleepWaiting waiting;
    mediagraph::SoundSystem sound(newFiles, waiting);
    for (int i = 0; i < plays; ++i)
        play(sound.graphs(), R"(\\srv\Quillamar_0$\)" + file.filename().string());
    return 0;
}

} // namespace

int main(int argc, char** argv) {
    if (argc != 3) {
        std::fprintf(stderr, "qmbenchplay FILE PLAYS\n");
        return 2;
    }
    try {
        return run(argv[1], std::atoi(argv[2]));
    } catch (const basic::RuntimeError& error) {
        std::fprintf(stderr, "%d: %s\n", error.number(), error.what());
    } catch (const std::exception& error) {
        std::fprintf(stderr, "%s\n", error.what());
    }
    return 1;
}
