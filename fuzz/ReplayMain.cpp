// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
// Runs a fuzz target over files without libFuzzer: every file named, and every file of every folder named. A
// target says "wrong" by ending the process, so reaching the end is the success. No file at all is a failure,
// because it would test nothing.

#include <cstdint>
#include <cstdio>
#include <exception>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

namespace {

bool replay(const std::filesystem::path& path) {
    std::ifstream file(path, std::ios::binary);
    const std::string bytes{std::istreambuf_iterator<char>(file), {}};
    if (!file) {
        std::fprintf(stderr, "cannot read %s\n", path.c_str());
        return false;
    }
    std::printf("%s (%zu bytes)\n", path.c_str(), bytes.size());
    std::fflush(stdout); // the name must be seen when the target ends the process
    LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(bytes.data()), bytes.size());
    return true;
}

int replayAll(int count, char** paths) {
    int replayed = 0;
    for (int i = 1; i < count; ++i) {
        if (!std::filesystem::is_directory(paths[i])) {
            if (!replay(paths[i]))
                return 1;
            ++replayed;
            continue;
        }
        for (const auto& entry : std::filesystem::recursive_directory_iterator(paths[i])) {
            if (!entry.is_regular_file())
                continue;
            if (!replay(entry.path()))
                return 1;
            ++replayed;
        }
    }
    std::printf("%d files replayed\n", replayed);
    return replayed > 0 ? 0 : 1;
}

} // namespace

int main(int argc, char** argv) {
    try {
        return replayAll(argc, argv);
    } catch (const std::exception& error) {
        std::fprintf(stderr, "%s\n", error.what());
        return 1;
    }
}
