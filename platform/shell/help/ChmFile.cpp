// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/shell/help/ChmFile.h"

#include <chm_lib.h>
#include <sys/mman.h>
#include <unistd.h>

#include <string>

namespace shell::help {
namespace {

// A file without a name that holds the bytes.
class MemoryFile {
public:
    explicit MemoryFile(const QByteArray& bytes) : m_descriptor(::memfd_create("help", MFD_CLOEXEC)) {
        qsizetype done = 0;
        while (m_descriptor >= 0 && done < bytes.size()) {
            const ssize_t written = ::write(m_descriptor, bytes.constData() + done,
                                            static_cast<std::size_t>(bytes.size() - done));
            if (written <= 0)
                break;
            done += written;
        }
        m_isWhole = m_descriptor >= 0 && done == bytes.size();
    }
    MemoryFile(const MemoryFile&) = delete;
    MemoryFile& operator=(const MemoryFile&) = delete;
    ~MemoryFile() {
        if (m_descriptor >= 0)
            ::close(m_descriptor);
    }

    bool isWhole() const { return m_isWhole; }
    std::string path() const {
        std::string path = "/proc/self/fd/";
        return path.append(std::to_string(m_descriptor));
    }

private:
    int m_descriptor;
    bool m_isWhole = false;
};

int addPath(chmFile*, chmUnitInfo* unit, void* paths) {
    static_cast<std::vector<QString>*>(paths)->push_back(QString::fromUtf8(unit->path));
    return CHM_ENUMERATOR_CONTINUE;
}

} // namespace

void ChmFile::Close::operator()(chmFile* file) const {
    ::chm_close(file);
}

std::unique_ptr<ChmFile> ChmFile::open(const QByteArray& bytes) {
    const MemoryFile memory(bytes); // chmlib opens it a second time
    chmFile* file = memory.isWhole() ? ::chm_open(memory.path().c_str()) : nullptr;
    return file == nullptr ? nullptr : std::unique_ptr<ChmFile>(new ChmFile(file));
}

std::optional<QByteArray> ChmFile::read(const QString& path) const {
    const QByteArray name = path.toUtf8();
    chmUnitInfo unit{};
    if (name.size() > CHM_MAX_PATHLEN ||
        ::chm_resolve_object(m_file.get(), name.constData(), &unit) != CHM_RESOLVE_SUCCESS ||
        unit.length > kLargestObject)
        return std::nullopt;
    const auto length = static_cast<qsizetype>(unit.length);
    QByteArray bytes(length, '\0');
    if (length > 0 &&
        ::chm_retrieve_object(m_file.get(), &unit, reinterpret_cast<unsigned char*>(bytes.data()), 0,
                              length) != length)
        return std::nullopt;
    return bytes;
}

std::vector<QString> ChmFile::paths() const {
    std::vector<QString> paths;
    ::chm_enumerate(m_file.get(), CHM_ENUMERATE_NORMAL | CHM_ENUMERATE_FILES, addPath, &paths);
    return paths;
}

} // namespace shell::help
