// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/share/MountedFileSystemObject.h"

#include "platform/basic/RuntimeError.h"
#include "platform/share/FirstFailure.h"
#include "platform/share/LocalFileSystemObject.h"
#include "platform/share/MountedFile.h"

#include <utility>

namespace share {

MountedFileSystemObject::Place MountedFileSystemObject::placeOf(const UncPath& path) const {
    ShareResolver settled = m_resolver.settledFor(path);
    std::optional<SlowMount> mount = settled.slowMountOf(settled.resolve(path));
    return {std::move(settled), std::move(mount)};
}

// A full folder takes its time; the question before it finds out sooner that nobody answers.
template <typename Result, typename Question>
Result MountedFileSystemObject::ask(const Place& place, Question question) {
    if (!place.mount) {
        LocalFileSystemObject folders(place.resolver);
        return question(folders);
    }
    m_calls.reach(*place.mount);
    return askMount<Result>(place, MountCalls::Requests::Many, question);
}

// A path whose server is gone is one that cannot be reached.
template <typename Result, typename Question>
Result MountedFileSystemObject::askMount(const Place& place, MountCalls::Requests requests,
                                         Question question) {
    try {
        return m_calls.run<Result>(*place.mount, requests, [resolver = place.resolver, question] {
            LocalFileSystemObject folders(resolver);
            return question(folders);
        });
    } catch (const basic::RuntimeError& error) {
        if (error.number() != basic::kDeviceIoError)
            throw;
        throw basic::RuntimeError(basic::kPathNotFound, error.description());
    }
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
    return exists(path, [name = std::string(path)](LocalFileSystemObject& folders) {
        return folders.FileExists(name);
    });
}

bool MountedFileSystemObject::FolderExists(std::string_view path) {
    return exists(path, [name = std::string(path)](LocalFileSystemObject& folders) {
        return folders.FolderExists(name);
    });
}

std::vector<std::string> MountedFileSystemObject::SubFolders(std::string_view path) {
    return ask<std::vector<std::string>>(
        placeOf(UncPath::parse(path)),
        [name = std::string(path)](LocalFileSystemObject& folders) { return folders.SubFolders(name); });
}

// Each file has its own time: there may be thousands.
void MountedFileSystemObject::DeleteFile(std::string_view pattern, bool force) {
    const UncPath path = UncPath::parsePattern(pattern);
    const Place place = placeOf(path);
    if (!place.mount)
        return LocalFileSystemObject(place.resolver).DeleteFile(pattern, force);
    const auto names = ask<std::vector<std::string>>(
        place, [path](LocalFileSystemObject& folders) { return folders.MatchingFiles(path); });
    tryEach(names, [&](const std::string& name) {
        askMount<void>(place, MountCalls::Requests::Few, [path, name, force](LocalFileSystemObject& folders) {
            folders.DeleteMatch(path, name, force);
        });
    });
}

std::unique_ptr<File> MountedFileSystemObject::openFile(std::string_view path, OpenMode mode) {
    const Place place = placeOf(UncPath::parse(path));
    if (!place.mount)
        return LocalFileSystemObject(place.resolver).openFile(path, mode);
    auto file =
        ask<std::shared_ptr<File>>(place, [name = std::string(path), mode](LocalFileSystemObject& folders) {
            return std::shared_ptr<File>(folders.openFile(name, mode));
        });
    return std::make_unique<MountedFile>(m_calls, *place.mount, std::move(file));
}

} // namespace share
