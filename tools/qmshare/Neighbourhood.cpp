// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/qmshare/Neighbourhood.h"

#include "platform/basic/RuntimeError.h"
#include "tools/qmshare/SmbUrl.h"

#include <cerrno>

namespace qmshare {
namespace {

using share::smb::FolderEntry;

constexpr std::size_t kMaximumEntries = 4096;
constexpr int kTimeoutMilliseconds = 5'000;

void answerNobody(SMBCCTX*, const char*, const char*, char*, int, char* user, int userSize, char* password,
                  int passwordSize) {
    if (userSize > 0)
        user[0] = '\0';
    if (passwordSize > 0)
        password[0] = '\0';
}

std::optional<std::vector<FolderEntry>> entriesOf(SMBCCTX* context, const std::string& url, unsigned type) {
    errno = 0;
    SMBCFILE* folder = ::smbc_getFunctionOpendir(context)(context, url.c_str());
    if (folder == nullptr)
        return std::nullopt;
    std::vector<FolderEntry> entries;
    while (const smbc_dirent* entry = ::smbc_getFunctionReaddir(context)(context, folder)) {
        const std::string_view name = entry->name;
        if (entry->smbc_type == type && !name.empty() && name.size() <= share::smb::kMaximumNameBytes &&
            entries.size() < kMaximumEntries)
            entries.push_back({true, std::string(name)});
    }
    ::smbc_getFunctionClosedir(context)(context, folder);
    return entries;
}

} // namespace

void Neighbourhood::Free::operator()(SMBCCTX* context) const noexcept {
    ::smbc_free_context(context, 1);
}

Neighbourhood::Neighbourhood() : m_context(::smbc_new_context()) {
    if (!m_context)
        throw basic::RuntimeError(basic::kInternalError, "the SMB library has no context");
    ::smbc_setFunctionAuthDataWithContext(m_context.get(), answerNobody);
    ::smbc_setTimeout(m_context.get(), kTimeoutMilliseconds);
    ::smbc_setDebug(m_context.get(), 0);
    if (::smbc_init_context(m_context.get()) == nullptr)
        throw basic::RuntimeError(basic::kInternalError, "the SMB library cannot be set up");
}

std::vector<FolderEntry> Neighbourhood::list(std::string_view workgroup) {
    const unsigned type = workgroup.empty() ? SMBC_WORKGROUP : SMBC_SERVER;
    return entriesOf(m_context.get(), serverUrl(workgroup), type).value_or(std::vector<FolderEntry>());
}

std::optional<std::vector<FolderEntry>> sharesOf(SMBCCTX* context, const std::string& host) {
    auto entries = entriesOf(context, serverUrl(host), SMBC_FILE_SHARE);
    if (entries)
        std::erase_if(*entries, [](const FolderEntry& entry) { return entry.name.ends_with('$'); });
    return entries;
}

} // namespace qmshare
