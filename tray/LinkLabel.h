// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// A label that is clicked like a link. It is a button to assistive technology but never takes the keyboard;
// colour and font come from the palette and the widget. Owned by its parent, user-interface thread.

#include <QAbstractButton>

namespace tray {

class LinkLabel : public QAbstractButton {
    Q_OBJECT
public:
    LinkLabel(const QString& objectName, const QString& text, QWidget* parent);

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
    bool event(QEvent* event) override;
};

} // namespace tray
