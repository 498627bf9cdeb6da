// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "resources/SvgIconEngine.h"

#include <QFile>
#include <QGuiApplication>
#include <QPainter>
#include <QPalette>
#include <QPixmapCache>
#include <QSvgRenderer>

namespace resources {
namespace {

QByteArray textColour(QIcon::Mode mode) {
    const QPalette palette = QGuiApplication::palette();
    if (mode == QIcon::Selected)
        return palette.color(QPalette::Active, QPalette::HighlightedText).name().toLatin1();
    const auto group = mode == QIcon::Disabled ? QPalette::Disabled : QPalette::Active;
    return palette.color(group, QPalette::WindowText).name().toLatin1();
}

QPixmap render(const QByteArray& svg, const QSize& size) {
    QPixmap drawn(size);
    drawn.fill(Qt::transparent);
    QSvgRenderer renderer(svg);
    renderer.setAspectRatioMode(Qt::KeepAspectRatio);
    QPainter painter(&drawn);
    renderer.render(&painter);
    return drawn;
}

QByteArray source(const QString& path, QIcon::Mode mode) {
    QFile file(path);
    QByteArray svg = file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    const QByteArray colour = textColour(mode);
    svg.replace(SvgIconEngine::kInk, colour);
    if (mode == QIcon::Selected || mode == QIcon::Disabled)
        svg.replace(SvgIconEngine::kAccent, colour);
    return svg;
}

} // namespace

const QString& SvgIconEngine::pathFor(const QSize& size) const {
    const bool isSmall = size.width() <= kSmall && size.height() <= kSmall;
    return isSmall && !m_smallPath.isEmpty() ? m_smallPath : m_path;
}

QPixmap SvgIconEngine::pixmap(const QSize& size, QIcon::Mode mode, QIcon::State /*state*/) {
    if (size.isEmpty())
        return {};
    const QString& path = pathFor(size);
    const QString cacheKey = QStringLiteral("%1 %2x%3 %4 %5")
                                 .arg(path)
                                 .arg(size.width())
                                 .arg(size.height())
                                 .arg(static_cast<int>(mode))
                                 .arg(QString::fromLatin1(textColour(mode)));
    QPixmap drawn;
    if (!QPixmapCache::find(cacheKey, &drawn)) {
        drawn = render(source(path, mode), size);
        QPixmapCache::insert(cacheKey, drawn);
    }
    return drawn;
}

void SvgIconEngine::paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State state) {
    const qreal scale = painter->device() ? painter->device()->devicePixelRatio() : qreal(1);
    QPixmap drawn = pixmap((QSizeF(rect.size()) * scale).toSize(), mode, state);
    drawn.setDevicePixelRatio(scale);
    painter->drawPixmap(rect.topLeft(), drawn);
}

QList<QSize> SvgIconEngine::availableSizes(QIcon::Mode /*mode*/, QIcon::State /*state*/) {
    // Any size can be drawn; these are what window managers and panels are offered.
    QList<QSize> sizes;
    for (const int side : {16, 22, 24, 32, 48, 64, 128, 256})
        sizes.append(QSize(side, side));
    return sizes;
}

} // namespace resources
