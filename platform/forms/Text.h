// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// Texts between the program, where they are UTF-8, and the toolkit. Bytes that are no UTF-8 become U+FFFD.

#include <QString>

#include <string>
#include <string_view>

namespace forms {

QString toQString(std::string_view utf8);
std::string fromQString(const QString& text);

// A caption that is data (a mailbox's name) for a control that reads "&" as an access-key mark: shown as it
// is.
QString withoutAccessKeys(std::string_view utf8);

// A text as one line of a list: every run of line breaks or tabs is drawn as one blank, and what no list can
// show at once anyway is cut off.
QString asOneLine(std::string_view utf8);

} // namespace forms
