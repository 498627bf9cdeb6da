// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// Every error number the program raises, defined once, with the text the platform gives it. Positive numbers
// are run-time errors of the platform's basic language, negative ones are the data provider's and the media
// graph's HRESULTs as signed 32-bit numbers. errorText() answers the stock text; callers add the context
// (file, table, page, row).

#include <cstdint>
#include <string_view>

namespace basic {

inline constexpr std::int32_t kInvalidProcedureCall = 5;
inline constexpr std::int32_t kOverflow = 6;
inline constexpr std::int32_t kOutOfMemory = 7;
inline constexpr std::int32_t kSubscriptOutOfRange = 9;
inline constexpr std::int32_t kTypeMismatch = 13;
inline constexpr std::int32_t kInternalError = 51;
inline constexpr std::int32_t kFileNotFound = 53;
inline constexpr std::int32_t kFileAlreadyOpen = 55;
inline constexpr std::int32_t kDeviceIoError = 57;
inline constexpr std::int32_t kDiskFull = 61;
inline constexpr std::int32_t kPermissionDenied = 70;
inline constexpr std::int32_t kPathFileAccess = 75;
inline constexpr std::int32_t kPathNotFound = 76;
inline constexpr std::int32_t kObjectNotSet = 91;
inline constexpr std::int32_t kInvalidUseOfNull = 94;
inline constexpr std::int32_t kInvalidPropertyValue = 380;
inline constexpr std::int32_t kNonModalWhileModal = 401;
inline constexpr std::int32_t kNoSuchMember = 438;
inline constexpr std::int32_t kCannotCreateObject = 429;
inline constexpr std::int32_t kKeyInUse = 457;
inline constexpr std::int32_t kElementNotFound = 35601;
inline constexpr std::int32_t kKeyNotUnique = 35602;

inline constexpr std::int32_t kNoCurrentRecord = 3021;
inline constexpr std::int32_t kItemNotInCollection = 3265;
inline constexpr std::int32_t kInTransaction = 3246;
inline constexpr std::int32_t kObjectClosed = 3704;
inline constexpr std::int32_t kObjectOpen = 3705;
inline constexpr std::int32_t kProviderNotFound = 3706;

inline constexpr std::int32_t kProviderFailure = -2147467259;   // E_FAIL: open, read, damaged, locked
inline constexpr std::int32_t kProviderSyntax = -2147217900;    // DB_E_ERRORSINCOMMAND
inline constexpr std::int32_t kProviderNoTable = -2147217865;   // DB_E_NOTABLE
inline constexpr std::int32_t kProviderNoValue = -2147217904;   // DB_E_PARAMNOTOPTIONAL: unknown column
inline constexpr std::int32_t kProviderIntegrity = -2147217873; // DB_E_INTEGRITYVIOLATION: duplicate key
inline constexpr std::int32_t kProviderMismatch = -2147217913;  // DB_E_DATATYPEMISMATCH in a condition
inline constexpr std::int32_t kProviderReadOnly = -2147217911;  // DB_SEC_E_PERMISSIONDENIED

inline constexpr std::int32_t kMediaStillRunning = -2147467260;  // E_ABORT: a wait for the end ran out
inline constexpr std::int32_t kMediaWrongState = -2147220953;    // VFW_E_WRONG_STATE
inline constexpr std::int32_t kMediaCannotConnect = -2147220969; // VFW_E_CANNOT_CONNECT
inline constexpr std::int32_t kMediaBadFormat = -2147220945;     // VFW_E_INVALID_FILE_FORMAT
inline constexpr std::int32_t kMediaUnsupported = -2147220900;   // VFW_E_UNSUPPORTED_AUDIO: unknown codec
inline constexpr std::int32_t kMediaNoHardware = -2147220906;    // VFW_E_NO_AUDIO_HARDWARE: no sound server
inline constexpr std::int32_t kMediaTimeout = -2147220946;       // VFW_E_TIMEOUT: the sound did not start

// The platform's text for a number; a general one for a number that is not listed. Never empty.
std::string_view errorText(std::int32_t number) noexcept;

} // namespace basic
