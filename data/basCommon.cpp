// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "data/basCommon.h"

#include "data/clsConfig.h"
#include "errors/Procedure.h"

#include <algorithm>
#include <utility>

namespace data {
namespace {

constexpr const char* kModule = "basCommon";

// Record-level locking; no access mode, user or password.
constexpr const char* kProvider =
    "Provider=Microsoft.Jet.OLEDB.4.0;Jet OLEDB:Database Locking Mode=1;Data Source=";

// An open that fails is a mailbox that is not available now; nobody is told.
bool opens(jet::Connection& connection, const std::string& connectionString, jet::Purpose purpose) {
    try {
        connection.Open(connectionString, purpose);
        return true;
    } catch (const std::exception&) {
        return false;
    }
}

} // namespace

basCommon::basCommon(errors::ErrorHandler& errorHandler, share::FileSystemObject& files,
                     NewConnection newConnection)
    : m_errors(errorHandler), m_files(files), m_newConnection(std::move(newConnection)) {}

std::string basCommon::GetQMPath(std::string_view serverName) const {
    errors::Procedure proc{m_errors, kModule, "GetQMPath"};
    std::string path;
    proc.step([&] {
        std::string cleaned(serverName);
        std::erase(cleaned, '\\');
        path = "\\\\" + cleaned + "\\Quillamar_0$";
    });
    return path;
}

std::shared_ptr<jet::Connection> basCommon::GetMBXCon(std::int32_t mailboxID, const clsConfig& config,
                                                      jet::Purpose purpose) const {
    errors::Procedure proc{m_errors, kModule, "GetMBXCon"};
    std::shared_ptr<jet::Connection> connection;
    std::string path;
    proc.step([&] { connection = m_newConnection(); });
    proc.step([&] { path = mailboxDatabase(GetQMPath(config.ServerName), mailboxID); });
    const bool exists = proc.value(false, [&] { return m_files.FileExists(path); });
    if (!connection || !exists || !proc.running() || !opens(*connection, connectionString(path), purpose))
        return nullptr;
    return connection;
}

std::string connectionString(const std::string& database) {
    return kProvider + database;
}

std::string mailboxesFolder(std::string_view qmPath) {
    return std::string(qmPath) + "\\MBX";
}

std::string mailboxFolder(std::string_view qmPath, std::int32_t mailboxID) {
    return mailboxesFolder(qmPath) + "\\" + std::to_string(mailboxID);
}

std::string mailboxDatabase(std::string_view qmPath, std::int32_t mailboxID) {
    return mailboxFolder(qmPath, mailboxID) + "\\qmLog.mdb";
}

std::string messageFile(std::string_view qmPath, std::int32_t mailboxID, std::string_view callID) {
    return mailboxFolder(qmPath, mailboxID).append("\\").append(callID).append(".wav");
}

std::string messageFiles(std::string_view qmPath, std::int32_t mailboxID) {
    return mailboxFolder(qmPath, mailboxID).append("\\*.wav");
}

} // namespace data
