// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/share/smb/SmbFileSystemObject.h"

#include "platform/basic/RuntimeError.h"
#include "platform/share/FirstFailure.h"
#include "platform/share/FolderListing.h"
#include "platform/share/NamePattern.h"
#include "platform/share/smb/SmbFile.h"

#include <cerrno>
#include <optional>

namespace share::smb {
namespace {

// Nothing for a name that no path of ours can hold, whatever the server thinks of it.
std::optional<UncPath> childOf(const UncPath& folder, const std::string& name) {
    try {
        return folder.child(name);
    } catch (const basic::RuntimeError&) {
        return std::nullopt;
    }
}

// A missing folder is error 76, while the server has one word for everything that is missing.
[[noreturn]] void rethrowAsFolder(const basic::RuntimeError& error) {
    if (error.number() == basic::kFileNotFound)
        throw basic::RuntimeError(basic::kPathNotFound, error.description());
    throw error;
}

} // namespace

bool SmbFileSystemObject::FileExists(std::string_view path) {
    return exists(path, false);
}

bool SmbFileSystemObject::FolderExists(std::string_view path) {
    return exists(path, true);
}

bool SmbFileSystemObject::exists(std::string_view path, bool isFolder) {
    try {
        return ask(UncPath::parse(path), {.verb = Verb::Stat}, "find").isFolder == isFolder;
    } catch (const basic::RuntimeError&) {
        return false;
    }
}

std::vector<std::string> SmbFileSystemObject::SubFolders(std::string_view path) {
    const UncPath folder = UncPath::parse(path);
    std::vector<std::string> names;
    for (FolderEntry& entry : list(folder))
        if (entry.isFolder && childOf(folder, entry.name))
            names.push_back(std::move(entry.name));
    return names;
}

void SmbFileSystemObject::DeleteFile(std::string_view pattern, bool force) {
    tryEach(matching(UncPath::parsePattern(pattern)), [&](const UncPath& file) {
        ask(file, {.verb = Verb::Delete, .mode = static_cast<std::uint8_t>(force)}, "delete");
    });
}

std::vector<UncPath> SmbFileSystemObject::matching(const UncPath& pattern) {
    const UncPath folder = pattern.parent();
    const NamePattern names(pattern.components().back());
    std::vector<UncPath> found;
    for (const FolderEntry& entry : list(folder))
        if (!entry.isFolder && names.matches(entry.name))
            if (std::optional<UncPath> file = childOf(folder, entry.name))
                found.push_back(std::move(*file));
    if (found.empty())
        throw basic::errorFromErrno(ENOENT, "delete", pattern.text());
    return found;
}

std::unique_ptr<File> SmbFileSystemObject::openFile(std::string_view path, OpenMode mode) {
    const UncPath name = UncPath::parse(path);
    try {
        return SmbFile::open(m_servers.server(name.server()), m_waiter, name.text(), mode);
    } catch (const basic::RuntimeError& error) {
        const bool isFolderMissing =
            error.number() == basic::kFileNotFound &&
            (mode == OpenMode::Create || (!name.components().empty() && !FolderExists(name.parent().text())));
        if (!isFolderMissing)
            throw;
        rethrowAsFolder(error);
    }
}

// A whole folder may take half a minute; the question before finds out sooner that the server is not there.
std::vector<FolderEntry> SmbFileSystemObject::list(const UncPath& folder) {
    try {
        ask(folder, {.verb = Verb::Stat}, "list");
        const std::uint32_t number = m_servers.server(folder.server()).newHandle();
        Response page = ask(folder, {.verb = Verb::List, .handle = number}, "list");
        std::vector<FolderEntry> entries = decodeFolderPage(page.data);
        while (page.more) {
            page = ask(folder, {.verb = Verb::ListMore, .handle = number}, "list");
            const std::vector<FolderEntry> next = decodeFolderPage(page.data);
            entries.insert(entries.end(), next.begin(), next.end());
            if (next.empty() || entries.size() > FolderListing::kMaximumNames)
                throw basic::RuntimeError(basic::kPathFileAccess,
                                          "list: " + folder.text() + ": too many names");
        }
        return entries;
    } catch (const basic::RuntimeError& error) {
        rethrowAsFolder(error);
    }
}

Response SmbFileSystemObject::ask(const UncPath& path, Request request, std::string_view what) {
    request.path = path.text();
    return m_servers.server(path.server()).call(request, m_waiter, what);
}

} // namespace share::smb
