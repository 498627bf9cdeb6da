// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The platform's picture box: keeps what is drawn on it, and lets the program read and set single pixels.
// What is drawn does not follow a change of theme or scale by itself: Outdated tells that it should be drawn
// anew. User-interface thread.

#include "platform/forms/Pixels.h"

#include <QIcon>
#include <QImage>
#include <QWidget>

namespace forms {

class PictureBox : public QWidget, public Pixels {
    Q_OBJECT
public:
    explicit PictureBox(QWidget* parent = nullptr) : QWidget(parent) {}

    void Cls();
    // Draws the picture from the top left corner on, as large as the box.
    void PaintPicture(const QIcon& picture);

    // Pixels
    int ScaleWidth() const override { return m_picture.width(); }
    int ScaleHeight() const override { return m_picture.height(); }
    std::optional<QColor> Point(int x, int y) const override;
    void PSet(int x, int y) override;

    QColor ForeColor() const { return palette().color(foregroundRole()); }

Q_SIGNALS:
    void Outdated();

protected:
    void paintEvent(QPaintEvent* event) override;
    void changeEvent(QEvent* event) override;
    void showEvent(QShowEvent* event) override;

private:
    QImage m_picture;
};

} // namespace forms
