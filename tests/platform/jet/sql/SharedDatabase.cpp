// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/platform/jet/sql/SharedDatabase.h"

#include "platform/basic/RuntimeError.h"

#include <sys/stat.h>
#include <sys/sysmacros.h>

#include <filesystem>

namespace jet::test {
SharedDatabase::SharedDatabase(const FileImage& image)
    : files(share::ShareResolver([this](std::string_view) { return m_folder.path("share"); },
                                 [this] { return m_mounts; })) {
    std::filesystem::create_directories(m_folder.path("share/MBX"));
    std::filesystem::create_directory_symlink(m_folder.path("."), m_folder.path("share/MBX/7"));
    setBytes(image);
}

void SharedDatabase::mountAs(std::string_view typeSourceAndOptions) {
    struct stat status {};
    ASSERT_EQ(::stat(m_folder.path().c_str(), &status), 0);
    m_mounts = "41 22 " + std::to_string(::major(status.st_dev)) + ":" +
               std::to_string(::minor(status.st_dev)) + " / /mnt/elsewhere rw - ";
    m_mounts.append(typeSourceAndOptions).append("\n");
}

FileImage SharedDatabase::bytes() const {
    const auto file = share::LocalFile::open(place(), share::OpenMode::Read);
    FileImage image(file->size());
    file->read(0, image);
    return image;
}

void SharedDatabase::setBytes(const FileImage& image) const {
    std::filesystem::remove(place());
    share::LocalFile::open(place(), share::OpenMode::Create)->write(0, image);
}

std::size_t SharedDatabase::rowCount() const {
    return readRows(*share::LocalFile::open(place(), share::OpenMode::Read), kLog).size();
}

bool SharedDatabase::isSound() const {
    try {
        checkDatabase(*share::LocalFile::open(place(), share::OpenMode::Read));
        return true;
    } catch (const basic::RuntimeError&) {
        return false;
    }
}

std::string SharedDatabase::json(const std::string& table) const {
    return runTool("mdb-json -T '%Y-%m-%d %H:%M:%S' '" + place() + "' " + table);
}

} // namespace jet::test
