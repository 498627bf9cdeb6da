// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/forms/DescriptionLabel.h"

#include <QMainWindow>
#include <QStatusTipEvent>

namespace forms {
namespace {

// The longest descriptions fit, and the player beside it keeps the larger part.
constexpr int kCharacters = 58;

} // namespace

DescriptionLabel::DescriptionLabel(QMainWindow& window) : QLabel(&window) {
    setObjectName(QStringLiteral("lblDescription"));
    setTextFormat(Qt::PlainText);
    setIndent(fontMetrics().averageCharWidth());
    setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Preferred);
    window.installEventFilter(this);
}

QSize DescriptionLabel::sizeHint() const {
    return {(kCharacters + 2) * fontMetrics().averageCharWidth(), fontMetrics().height()};
}

QSize DescriptionLabel::minimumSizeHint() const {
    return {0, fontMetrics().height()};
}

bool DescriptionLabel::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() != QEvent::StatusTip)
        return QLabel::eventFilter(watched, event);
    m_description = static_cast<QStatusTipEvent*>(event)->tip();
    renewText();
    return true;
}

void DescriptionLabel::resizeEvent(QResizeEvent* event) {
    QLabel::resizeEvent(event);
    renewText();
}

void DescriptionLabel::renewText() {
    setText(fontMetrics().elidedText(m_description, Qt::ElideRight, width() - 2 * indent()));
}

} // namespace forms
