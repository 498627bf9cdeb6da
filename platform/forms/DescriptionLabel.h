// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// Shows the description of the command under the mouse or the menu's cursor, in the room that is left for it.
// Owned by its window; user-interface thread.

#include <QLabel>

class QMainWindow;

namespace forms {

class DescriptionLabel : public QLabel {
    Q_OBJECT
public:
    explicit DescriptionLabel(QMainWindow& window);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void renewText();

    QString m_description;
};

} // namespace forms
