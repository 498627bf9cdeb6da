// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/share/MountedFileSystemObject.h"

#include "platform/basic/RuntimeError.h"
#include "platform/share/LocalFileSystemObject.h"
#include "platform/share/MountedFile.h"

#include <functional>
#include <utility>

namespace share {

MountedFileSystemObject::Place MountedFileSystemObject::placeOf(const UncPath& path) const {
    ShareResolver settled = m_resolver.settledFor(path);
    const Route route = settled.resolve(path);
    std::optional<std::string> mountPoint = settled.slowMountOf(route);
    return {std::move(settled), std::move(mountPoint)};
}

// A full folder takes its time; the question before it finds out sooner that nobody answers.
template <typename Result, typename Question>
Result MountedFileSystemObject::ask(const Place& place, Question question) {
    const std::function<Result()> work = [resolver = place.resolver, question] {
        LocalFileSystemObject folders(resolver);
        return question(folders);
    };
    if (!place.mountPoint)
        return work();
    m_calls.reach(*place.mountPoint);
    return m_calls.run(*place.mountPoint, MountCalls::Requests::Many, work);
}

// Settings that cannot be read say nothing about the file; only what comes after them counts as missing.
template <typename Question>
bool MountedFileSystemObject::exists(std::string_view path, Question question) {
    std::optional<UncPath> name;
    try {
        name = UncPath::parse(path);
    } catch (const basic::RuntimeError&) {
        return false;
    }
    const Place place = placeOf(*name);
    try {
        return ask<bool>(place, question);
    } catch (const basic::RuntimeError&) {
        return false;
    }
}

bool MountedFileSystemObject::FileExists(std::string_view path) {
    return exists(path,
                  [name = std::string(path)](FileSystemObject& folders) { return folders.FileExists(name); });
}

bool MountedFileSystemObject::FolderExists(std::string_view path) {
    return exists(
        path, [name = std::string(path)](FileSystemObject& folders) { return folders.FolderExists(name); });
}

std::vector<std::string> MountedFileSystemObject::SubFolders(std::string_view path) {
    return ask<std::vector<std::string>>(
        placeOf(UncPath::parse(path)),
        [name = std::string(path)](FileSystemObject& folders) { return folders.SubFolders(name); });
}

void MountedFileSystemObject::DeleteFile(std::string_view pattern, bool force) {
    ask<void>(placeOf(UncPath::parsePattern(pattern)),
              [names = std::string(pattern), force](FileSystemObject& folders) {
                  folders.DeleteFile(names, force);
              });
}

std::unique_ptr<File> MountedFileSystemObject::openFile(std::string_view path, OpenMode mode) {
    const Place place = placeOf(UncPath::parse(path));
    if (!place.mountPoint)
        return LocalFileSystemObject(place.resolver).openFile(path, mode);
    auto file =
        ask<std::shared_ptr<File>>(place, [name = std::string(path), mode](FileSystemObject& folders) {
            return std::shared_ptr<File>(folders.openFile(name, mode));
        });
    return std::make_unique<MountedFile>(m_calls, *place.mountPoint, std::move(file));
}

} // namespace share
