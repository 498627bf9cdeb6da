// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/shell/help/SealedFile.h"

#include <QCryptographicHash>
#include <QFile>

namespace shell::help {
namespace {

QByteArray sealOf(const QByteArray& content) {
    return "sealed sha256:" + QCryptographicHash::hash(content, QCryptographicHash::Sha256).toHex() + '\n';
}

} // namespace

std::optional<QByteArray> readSealedFile(const QString& path, qint64 limit) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return std::nullopt;
    QByteArray content = file.read(limit + 1); // never more, whatever size the file claims to have
    const qsizetype sealLength = sealOf({}).size();
    if (content.size() > limit || content.size() < sealLength)
        return std::nullopt;
    const QByteArray seal = content.right(sealLength);
    content.chop(sealLength);
    if (seal != sealOf(content))
        return std::nullopt;
    return content;
}

} // namespace shell::help
