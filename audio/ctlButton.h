// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// Frames a picture with a raised edge and keeps its own drawing inside of it. It has no looks for being
// pressed or pointed at and raises no events; the picture, picTop, fills it. A component to be reused, which
// no window hosts yet. The error handler must outlive it; user-interface thread.

#include "audio/FrameDrawing.h"
#include "platform/forms/Placement.h"
#include "platform/forms/Surface.h"
#include "platform/forms/WidgetSurface.h"

#include <QWidget>

#include <memory>

class QLabel;

namespace audio {

class ctlButton : public QWidget {
    Q_OBJECT
public:
    explicit ctlButton(errors::ErrorHandler& errorHandler, QWidget* parent = nullptr,
                       const forms::MakeSurface& makeSurface = forms::WidgetSurface::of);

    void Draw();
    void Refresh() { update(); }

    // The picture's place; what it shows is the owner's.
    QLabel& picTop() { return *m_picTop; }
    const FrameDrawing& frame() const { return m_frame; }

protected:
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    errors::ErrorHandler& m_errors;
    QLabel* m_picTop;
    forms::Placement m_picTopPlace;
    std::unique_ptr<forms::Surface> m_surface;
    FrameDrawing m_frame;
};

} // namespace audio
