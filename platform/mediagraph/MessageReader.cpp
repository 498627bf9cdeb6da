// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/mediagraph/MessageReader.h"

#include "platform/basic/RuntimeError.h"

#include <algorithm>
#include <span>
#include <string_view>

namespace mediagraph {
namespace {

using Bytes = std::vector<std::byte>;

// Small enough for progress to be seen on a slow line.
constexpr std::size_t kPiece = std::size_t{64} * 1024;

std::size_t sizeOf(share::File& file) {
    const std::uint64_t size = file.size();
    if (size > MessageReader::kMaximumSize)
        throw basic::RuntimeError(basic::kOutOfMemory,
                                  file.name() + ": the file is too large to be held in memory.");
    return static_cast<std::size_t>(size);
}

Bytes contentOf(share::File& file, Progress& progress) {
    Bytes bytes(sizeOf(file));
    std::size_t filled = 0;
    while (filled < bytes.size() && !progress.isAbandoned) {
        const auto rest = std::span(bytes).subspan(filled);
        const std::size_t got = file.read(filled, rest.first(std::min(kPiece, rest.size())));
        if (got == 0)
            break;
        filled += got;
        progress.steps = filled;
    }
    bytes.resize(filled);
    return bytes;
}

} // namespace

std::vector<std::byte> MessageReader::read(const std::string& path) {
    const std::function<Bytes(Progress&)> work = [newFiles = m_newFiles, path](Progress& progress) {
        const auto files = newFiles();
        const auto file = files->openFile(path, share::OpenMode::Read);
        return contentOf(*file, progress);
    };
    return m_aside.run(m_limits, path + ": the server does not answer. The message could not be read.", work);
}

} // namespace mediagraph
