// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// What the client and the program that talks to one server (qmshare) say to each other: one request, then its
// response, never two at a time. Both are flat records of which each verb uses some fields. Paths are network
// names (\\server\share\...). Every length is limited here and checked by whoever decodes; see
// docs/share-protocol.md.

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace share::smb {

inline constexpr std::size_t kMaximumPathBytes = 4096;
// Small enough that one piece comes through a slow line long before a request's deadline.
inline constexpr std::size_t kMaximumDataBytes = std::size_t{64} * 1024;
inline constexpr std::size_t kMaximumPacketBytes = kMaximumDataBytes + kMaximumPathBytes + 64;
// Where qmshare finds its end of the connection.
inline constexpr int kChannelDescriptor = 3;
// qmshare's exit code when the client's end went away in the middle of something.
inline constexpr int kEndedWithClient = 3;

enum class Verb : std::uint8_t {
    LogOn = 1, // path: the server's host name, length: port, data: LogOn record; touches no network
    Stat,      // path; answers isFolder, number: size in bytes
    List,      // path, handle; answers data: a FolderPage, more: whether ListMore has more of it
    ListMore,  // handle
    Open,      // path, handle, mode: share::OpenMode
    Read,      // handle, offset, length; answers data, shorter only at the end of the file
    Write,     // handle, offset, data
    Size,      // handle; answers number
    Close,     // handle
    Delete,    // path, mode: 1 deletes a read-only file too
    Shares,    // path: the server's share IPC$; answers data: a FolderPage of what the server offers
    Browse,    // path: a workgroup, empty for the workgroups themselves; answers data: a FolderPage
};
inline constexpr Verb kLastVerb = Verb::Browse;

struct Request {
    Verb verb = Verb::LogOn;
    std::uint8_t mode = 0;
    std::uint32_t handle = 0; // chosen by the client, never used before
    std::uint32_t length = 0;
    std::uint64_t offset = 0;
    std::string path{};
    std::vector<std::byte> data{};
};

// How far a request came before it failed.
enum class Stage : std::uint8_t {
    None,    // it did not fail
    Resolve, // the server's name is unknown
    Connect, // the server does not answer, or the connection to it was lost
    LogOn,   // the server does not accept the user
    Share,   // there is no such share, or not for this user
    Path,    // the share answered; the failure is the file's or folder's
    Handle,  // the handle is not open
};
inline constexpr Stage kLastStage = Stage::Handle;

struct Response {
    Stage stage = Stage::None;
    std::int32_t failure = 0; // an errno value, 0 with Stage::None only
    bool isFolder = false;
    bool more = false;
    std::uint64_t number = 0;
    std::vector<std::byte> data{};
};

} // namespace share::smb
