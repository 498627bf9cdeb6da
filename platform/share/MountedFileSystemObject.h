// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The file-system object over folders of this machine for a thread that must not hang: disks are asked
// directly, a mount that a server or a program answers for by way of MountCalls. A mount that does not answer
// is as unreachable as a server that is switched off: false, or error 76. The waiter must outlive it, and it
// must outlive the files it opens. One thread at a time.

#include "platform/share/FileSystemObject.h"
#include "platform/share/MountCalls.h"
#include "platform/share/ShareResolver.h"
#include "platform/share/UncPath.h"

#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace share {

class MountedFileSystemObject final : public FileSystemObject {
public:
    MountedFileSystemObject(ShareResolver resolver, Waiter& waiter, MountDeadlines deadlines = {})
        : m_resolver(std::move(resolver)), m_calls(waiter, deadlines) {}

    bool FileExists(std::string_view path) override;
    bool FolderExists(std::string_view path) override;
    std::vector<std::string> SubFolders(std::string_view path) override;
    void DeleteFile(std::string_view pattern, bool force) override;
    std::unique_ptr<File> openFile(std::string_view path, OpenMode mode) override;

private:
    // What another thread needs to know of a path.
    struct Place {
        ShareResolver resolver;
        std::optional<SlowMount> mount; // nothing: a disk of this machine
    };

    Place placeOf(const UncPath& path) const;
    template <typename Result, typename Question>
    Result ask(const Place& place, Question question);
    template <typename Result, typename Question>
    Result askMount(const Place& place, MountCalls::Requests requests, Question question);
    template <typename Question>
    bool exists(std::string_view path, Question question);

    ShareResolver m_resolver;
    MountCalls m_calls;
};

} // namespace share
