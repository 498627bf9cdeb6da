// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/platform/share/FaultyFileSystem.h"

#include "platform/basic/RuntimeError.h"

namespace share::testing {
namespace {

bool isDue(const FaultPlan& plan) {
    return plan.failAt > 0 && (plan.failsFromThere ? plan.calls >= plan.failAt : plan.calls == plan.failAt);
}

void count(FaultPlan& plan, std::string_view what) {
    ++plan.calls;
    if (isDue(plan))
        throw basic::RuntimeError(plan.error, std::string(what) + ": made to fail");
}

class FaultyFile final : public File {
public:
    FaultyFile(std::unique_ptr<File> behind, FaultPlan& plan) : m_behind(std::move(behind)), m_plan(plan) {
        ++m_plan.openFiles;
    }
    ~FaultyFile() override { --m_plan.openFiles; }

    const std::string& name() const override { return m_behind->name(); }
    bool excludesOthers() const override { return m_behind->excludesOthers(); }
    std::uint64_t size() override {
        count(m_plan, "size");
        return m_behind->size();
    }
    std::size_t read(std::uint64_t offset, std::span<std::byte> into) override {
        ++m_plan.reads;
        count(m_plan, "read");
        if (m_plan.calls == m_plan.shortReadAt)
            return m_behind->read(offset, into.first(into.size() / 2));
        return m_behind->read(offset, into);
    }
    void write(std::uint64_t offset, std::span<const std::byte> from) override {
        try {
            count(m_plan, "write");
        } catch (const basic::RuntimeError&) {
            if (m_plan.writesHalf)
                m_behind->write(offset, from.first(from.size() / 2));
            throw;
        }
        m_behind->write(offset, from);
    }
    void sync() override {
        count(m_plan, "sync");
        m_behind->sync();
    }
    bool lock(std::uint64_t offset, std::uint64_t length, LockKind kind) override {
        count(m_plan, "lock");
        return m_behind->lock(offset, length, kind);
    }
    void unlock(std::uint64_t offset, std::uint64_t length) override {
        count(m_plan, "unlock");
        m_behind->unlock(offset, length);
    }

private:
    std::unique_ptr<File> m_behind;
    FaultPlan& m_plan;
};

} // namespace

std::unique_ptr<File> faultyFile(std::unique_ptr<File> behind, FaultPlan& plan) {
    return std::make_unique<FaultyFile>(std::move(behind), plan);
}

bool FaultyFileSystem::FileExists(std::string_view path) {
    ++m_plan.calls; // never throws: a failure is a missing file
    return !isDue(m_plan) && m_behind.FileExists(path);
}

bool FaultyFileSystem::FolderExists(std::string_view path) {
    ++m_plan.calls;
    return !isDue(m_plan) && m_behind.FolderExists(path);
}

std::vector<std::string> FaultyFileSystem::SubFolders(std::string_view path) {
    count(m_plan, "list");
    return m_behind.SubFolders(path);
}

void FaultyFileSystem::DeleteFile(std::string_view pattern, bool force) {
    count(m_plan, "delete");
    m_behind.DeleteFile(pattern, force);
}

std::unique_ptr<File> FaultyFileSystem::openFile(std::string_view path, OpenMode mode) {
    count(m_plan, "open");
    return faultyFile(m_behind.openFile(path, mode), m_plan);
}

} // namespace share::testing
