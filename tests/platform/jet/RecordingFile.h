// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// A file in memory that notes every write and sync, for building the states in which a crash can leave it.

#include "platform/share/File.h"

#include <string>
#include <vector>

namespace jet::test {

using FileImage = std::vector<std::byte>;

struct RecordedWrite {
    std::uint64_t offset = 0;
    std::vector<std::byte> bytes;
};

// Writes between two syncs: a disk may carry them out in any order.
using WriteGroup = std::vector<RecordedWrite>;

class RecordingFile final : public share::File {
public:
    explicit RecordingFile(FileImage content) : image(std::move(content)) {}

    const std::string& name() const override { return m_name; }
    std::uint64_t size() override { return image.size(); }
    std::size_t read(std::uint64_t offset, std::span<std::byte> into) override;
    void write(std::uint64_t offset, std::span<const std::byte> from) override;
    void sync() override;
    bool lock(std::uint64_t, std::uint64_t, share::LockKind) override { return true; }
    void unlock(std::uint64_t, std::uint64_t) override {}

    FileImage image;
    std::vector<WriteGroup> groups{{}}; // the last one is not synchronised

private:
    std::string m_name = "recorded.mdb";
};

// What `image` is after a write; a write beyond the end fills the gap with zeros.
void apply(FileImage& image, std::uint64_t offset, std::span<const std::byte> bytes);

} // namespace jet::test
