// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The string table for who shows a text in a window. Apart from the table itself, which stays free of Qt.

#include <QString>

#include <cstdint>
#include <string_view>

namespace resources {

// LoadLocalString as the toolkit's text.
QString localText(std::int32_t id, std::string_view englishForTheReader = {});

} // namespace resources
