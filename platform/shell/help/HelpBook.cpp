// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/shell/help/HelpBook.h"

#include "platform/shell/help/SealedFile.h"

namespace shell::help {
namespace {

QString scheme() {
    return QStringLiteral("help");
}

QUrl addressOf(const QString& path) {
    QUrl address;
    address.setScheme(scheme());
    address.setPath(path);
    return address;
}

} // namespace

std::unique_ptr<HelpBook> HelpBook::open(const QString& path, const HelpLayout& layout) {
    const auto bytes = readSealedFile(path, kLargestFile);
    auto file = bytes ? ChmFile::open(*bytes) : nullptr;
    return file ? std::unique_ptr<HelpBook>(new HelpBook(std::move(file), layout)) : nullptr;
}

HelpBook::HelpBook(std::unique_ptr<ChmFile> file, const HelpLayout& layout)
    : m_file(std::move(file)),
      m_folder(layout.folder.isEmpty() ? QStringLiteral("/") : u'/' + layout.folder + u'/') {
    if (const auto html = read(find(layout.contents)))
        m_topics = readHelpContents(QString::fromUtf8(*html));
}

QUrl HelpBook::find(const QString& page) const {
    for (const QString& path : {QString(m_folder + page), QString(u'/' + page)})
        if (m_file->read(path))
            return addressOf(path);
    return {};
}

bool HelpBook::isInside(const QUrl& address) {
    return address.scheme() == scheme() && address.authority().isEmpty();
}

std::optional<QByteArray> HelpBook::read(const QUrl& address) const {
    return isInside(address) ? m_file->read(address.path()) : std::nullopt;
}

} // namespace shell::help
