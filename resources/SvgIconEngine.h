// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// Draws one SVG file at whatever size and scale is asked for. Two colours in a file stand for others:
// kInk becomes the palette's text colour, and on a selected or disabled item both it and kAccent become the
// colour that text has there, so that a mark never vanishes in the selection. Qt's own engine for SVG icons
// is a plug-in, which may be missing at run time, and knows nothing of palettes. User-interface thread.

#include <QIconEngine>

namespace resources {

class SvgIconEngine final : public QIconEngine {
public:
    static constexpr char kInk[] = "#000001";
    static constexpr char kAccent[] = "#2b7fc4";

    // Up to this many pixels of the device the small drawing is taken, if there is one.
    static constexpr int kSmall = 32;

    explicit SvgIconEngine(QString path, QString smallPath = {})
        : m_path(std::move(path)), m_smallPath(std::move(smallPath)) {}

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State state) override;
    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override;
    QList<QSize> availableSizes(QIcon::Mode mode, QIcon::State state) override;
    QString key() const override { return QStringLiteral("qmClient SVG"); }
    QIconEngine* clone() const override { return new SvgIconEngine(m_path, m_smallPath); }

private:
    const QString& pathFor(const QSize& size) const;

    QString m_path;
    QString m_smallPath;
};

} // namespace resources
