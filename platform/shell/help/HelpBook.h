// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The pages of one help file in one language. A file may hold several: its own language at the top, each
// further one with pages of the same names in a folder named after it. A page that is missing in a folder is
// taken from the top. Pages have addresses of a scheme of their own, so that nothing outside of the file can
// be meant by one. One thread.

#include "platform/shell/help/ChmFile.h"
#include "platform/shell/help/HelpContents.h"

#include <QUrl>

#include <optional>
#include <vector>

namespace shell::help {

struct HelpLayout {
    QString folder;   // of the language; empty for the file's own
    QString contents; // the table of contents' name
};

class HelpBook {
public:
    static constexpr qint64 kLargestFile = 16 << 20;

    // Null when there is no such file, or it is damaged.
    static std::unique_ptr<HelpBook> open(const QString& path, const HelpLayout& layout);

    // The address of a page by its name; invalid when there is no such page.
    QUrl find(const QString& page) const;
    static bool isInside(const QUrl& address);
    bool has(const QUrl& address) const { return read(address).has_value(); }
    // Nothing for an address outside of the file.
    std::optional<QByteArray> read(const QUrl& address) const;
    const std::vector<HelpTopic>& topics() const { return m_topics; }

private:
    HelpBook(std::unique_ptr<ChmFile> file, const HelpLayout& layout);

    std::unique_ptr<ChmFile> m_file;
    QString m_folder; // "/" or "/de/"
    std::vector<HelpTopic> m_topics;
};

} // namespace shell::help
