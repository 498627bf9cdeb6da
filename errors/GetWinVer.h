// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The operating system as text, made from a version record of the platform's form. Where the record comes
// from is handed in, so that every row of the table can be tested.

#include <array>
#include <cstdint>
#include <functional>
#include <string>

namespace errors {

// The platform's record, 148 bytes. The service-pack text ends at its first NUL.
struct VersionRecord {
    std::uint32_t size = 0;
    std::uint32_t major = 0;
    std::uint32_t minor = 0;
    std::uint32_t build = 0;
    std::uint32_t platformId = 0;
    std::array<char, 128> servicePack{};
};
inline constexpr std::uint32_t kVersionRecordSize = 148;
static_assert(sizeof(VersionRecord) == kVersionRecordSize);

// Fills a record whose size is set; false when it cannot.
using GetVersionExA = std::function<bool(VersionRecord&)>;

// No trap (frmError, GetWinVer): belongs to the error dialog.
// Name, " Build:", number, a blank, service pack; empty when the call fails. A system that is not in the
// table has an empty name, and without a service pack the text ends in the blank.
std::string GetWinVer(const GetVersionExA& getVersionEx);

} // namespace errors
