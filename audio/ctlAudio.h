// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The player in the main window's status band: a sunken track with a marker that shows the position, a click
// to seek, and the five commands. It owns the playback engine and tells StateChanged after each command and
// at the end of a message. Places are twips. Failures are reported under the module "ctlAudio". It can be
// reached and moved by keyboard, and is a slider to assistive programs. The services must outlive it;
// user-interface thread. UnInit() and the destructor let events run for half a second while an engine winds
// down.

#include "audio/Fixed.h"
#include "audio/FrameDrawing.h"
#include "audio/basAudio.h"
#include "audio/clsWave.h"
#include "platform/forms/Timer.h"
#include "platform/forms/WidgetSurface.h"
#include "platform/share/FileSystemObject.h"

#include <QWidget>

#include <cstdint>
#include <functional>
#include <memory>
#include <string_view>

class QFrame;

namespace audio {

struct PlayerServices {
    errors::ErrorHandler& errorHandler;
    forms::MessageBoxes& messageBoxes;
    share::FileSystemObject& files;
    basAudio& wait;
    std::function<std::shared_ptr<clsWave>()> newWave;
    forms::MakeSurface makeSurface = forms::WidgetSurface::of;
};

class ctlAudio : public QWidget {
    Q_OBJECT
public:
    explicit ctlAudio(const PlayerServices& services, QWidget* parent = nullptr);
    ~ctlAudio() override;

    // Also true for a file that is not there, after a message that says so.
    bool PlayWave(std::string_view FileName);
    void Pause();
    void StopPlay();
    void Forward();
    void Backward();
    bool IsPlaying() const { return m_WaveObject && m_WaveObject->IsPlaying(); }
    bool IsPaused() const { return m_WaveObject && m_WaveObject->IsPaused(); }
    bool HasFile() const { return m_WaveObject && m_WaveObject->HasFile(); }

    void UnInit() { UserControl_Terminate(); }
    void Refresh();
    std::uintptr_t hWnd() const;
    void Draw();

    // A message plays or is paused: there is a position.
    bool isActive() const { return IsPlaying() || IsPaused(); }
    // To a fraction of the file; nothing while no file is loaded. For who cannot click.
    void seek(double fraction);
    // Position and length in seconds, as far as they are known: 0 and 0 before the first Progress.
    double positionSeconds() const { return m_positionSeconds; }
    double lengthSeconds() const { return m_WaveObject ? m_WaveObject->lengthSeconds() : 0; }
    double fraction() const { return toDouble(m_Percent); }

    const FrameDrawing& frame() const { return m_frame; }
    const forms::Placement& markerPlace() const { return m_lblPosPlace; }
    const forms::Timer* timer() const { return m_Timer.get(); }

    QSize sizeHint() const override;

Q_SIGNALS:
    void StateChanged();
    // For who cannot see the marker: the position is at another whole percent, or gone.
    void positionTold();

protected:
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void UserControl_Initialize();
    void UserControl_Terminate();
    void WaveObject_PlayDone();
    void WaveObject_Progress(basic::Currency Percent, basic::Currency Duration);
    void picTop_Click();
    void layOut();
    void tellState(errors::Procedure& proc);
    void tellPosition(basic::Currency before);
    void tellEnd();

    PlayerServices m_services;
    QFrame* m_picTop;
    QFrame* m_lblPos;
    forms::Placement m_picTopPlace;
    forms::Placement m_lblPosPlace;
    std::unique_ptr<forms::Surface> m_surface;
    FrameDrawing m_frame;
    std::shared_ptr<clsWave> m_WaveObject;
    std::unique_ptr<forms::Timer> m_Timer; // nothing handles its ticks
    basic::Currency m_Percent;
    double m_positionSeconds = 0;
    bool m_wasActive = false;
    double m_clickX = 0; // of the last press, in twips from the track's left edge
};

} // namespace audio
