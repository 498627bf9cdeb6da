// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "audio/ctlButton.h"

#include "errors/Procedure.h"
#include "platform/forms/Edges.h"

#include <QEvent>
#include <QLabel>
#include <QPainter>

namespace audio {

// The helpers report under a name of their own, which is how logs have always had it.
ctlButton::ctlButton(errors::ErrorHandler& errorHandler, QWidget* parent,
                     const forms::MakeSurface& makeSurface)
    : QWidget(parent), m_errors(errorHandler), m_picTop(new QLabel(this)), m_picTopPlace(*m_picTop),
      m_surface(makeSurface(*this)), m_frame(errorHandler, "cltButton", *m_surface) {
    m_picTop->setObjectName(QStringLiteral("picTop"));
    m_picTop->setAlignment(Qt::AlignCenter);
}

void ctlButton::Draw() {
    errors::Procedure proc{m_errors, "ctlButton", "Draw"};
    proc.step([&] { m_frame.removeClip(); });
    proc.step([&] { m_surface->Cls(); });
    proc.step(
        [&] { m_frame.DrawLabelEdge(m_picTopPlace, *m_surface, forms::BDR_RAISEDINNER, forms::BF_RECT); });
    proc.step([&] { m_frame.EvaluateSize2(); });
    proc.step([&] { Refresh(); });
}

void ctlButton::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    m_picTopPlace.Move({0}, {0}, m_surface->ScaleWidth(), m_surface->ScaleHeight());
    Draw();
}

void ctlButton::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::PaletteChange)
        Draw();
}

void ctlButton::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    m_surface->paintOnto(painter);
}

} // namespace audio
