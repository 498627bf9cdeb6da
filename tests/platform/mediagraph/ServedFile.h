// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// Servers that exist in a test only, and readers of them.

#include "platform/mediagraph/MessageReader.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace mediagraph::testing {

inline constexpr WaitLimits kPatient{std::chrono::seconds{20}, std::chrono::seconds{20}};

// What a server has to offer for reading alone; what a read answers is each test's own.
class ServedFile : public share::File {
public:
    explicit ServedFile(std::uint64_t size) : m_size(size) {}
    const std::string& name() const override { return m_name; }
    std::uint64_t size() override { return m_size; }
    void write(std::uint64_t, std::span<const std::byte>) override {}
    void sync() override {}
    bool lock(std::uint64_t, std::uint64_t, share::LockKind) override { return true; }
    void unlock(std::uint64_t, std::uint64_t) override {}

private:
    std::uint64_t m_size;
    std::string m_name = "served";
};

// A server on which every path leads to such a file.
class Server final : public share::FileSystemObject {
public:
    using Open = std::function<std::unique_ptr<share::File>()>;

    explicit Server(Open open) : m_open(std::move(open)) {}
    bool FileExists(std::string_view) override { return true; }
    bool FolderExists(std::string_view) override { return true; }
    std::vector<std::string> SubFolders(std::string_view) override { return {}; }
    void DeleteFile(std::string_view, bool) override {}
    std::unique_ptr<share::File> openFile(std::string_view, share::OpenMode) override { return m_open(); }

private:
    Open m_open;
};

inline MessageReader readerOf(Server::Open open, Waiting& waiting, WaitLimits limits = kPatient) {
    return {[open = std::move(open)] { return std::make_unique<Server>(open); }, waiting, limits};
}

} // namespace mediagraph::testing
