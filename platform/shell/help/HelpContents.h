// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The table of contents of a help file: a list of lists in HTML with one object for each entry, whose
// parameters "Name" and "Local" are its title and its page. Everything else in the file is passed over; an
// entry without a page is a heading.

#include <QString>

#include <vector>

namespace shell::help {

struct HelpTopic {
    QString title;
    QString page;  // relative to the table of contents
    int level = 0; // 0 at the top
};

// In their order. Deeper levels than the deepest allowed, and entries after the last allowed one, are cut:
// nobody reads a table of contents of that size.
inline constexpr int kDeepestLevel = 15;
inline constexpr int kMostTopics = 1000;
std::vector<HelpTopic> readHelpContents(const QString& html);

} // namespace shell::help
