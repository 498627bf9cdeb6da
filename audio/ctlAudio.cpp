// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "audio/ctlAudio.h"

#include "audio/PositionAccess.h"
#include "errors/ErrorsIgnored.h"
#include "errors/EventDoor.h"
#include "platform/basic/Conversion.h"
#include "platform/forms/Edges.h"
#include "platform/forms/Events.h"
#include "platform/forms/Text.h"
#include "platform/forms/WindowHandle.h"
#include "resources/StringTable.h"

#include <QFrame>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QStyleOptionFocusRect>

#include <utility>

namespace audio {
namespace {

using basic::Twips;
using errors::withErrorsIgnored;
using resources::LoadLocalString;

constexpr std::int32_t kTimerMs = 200;
constexpr std::int32_t kWindDownMs = 500;
constexpr Twips kHeight{225};
constexpr Twips kTrackLeft{60};
constexpr Twips kTrackTop{60};
constexpr Twips kMarkerTop{15};
constexpr Twips kMarkerWidth{120};
constexpr int kFirstWidth = 120; // logical pixels

} // namespace

ctlAudio::ctlAudio(const PlayerServices& services, QWidget* parent)
    : QWidget(parent), m_services(services), m_picTop(new QFrame(this)), m_lblPos(new QFrame(this)),
      m_picTopPlace(*m_picTop), m_lblPosPlace(*m_lblPos), m_surface(services.makeSurface(*this)),
      m_frame(services.errorHandler, "ctlAudio", *m_surface) {
    setObjectName(QStringLiteral("ctlAudio"));
    setFocusPolicy(Qt::StrongFocus);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    m_picTop->setObjectName(QStringLiteral("picTop"));
    m_picTop->setBackgroundRole(QPalette::Base);
    m_picTop->setAutoFillBackground(true);
    m_lblPos->setObjectName(QStringLiteral("lblPos"));
    m_lblPos->setFrameStyle(QFrame::Panel | QFrame::Raised); // NOLINT(hicpp-signed-bitwise): the toolkit's
    m_lblPos->setBackgroundRole(QPalette::Highlight);
    m_lblPos->setAutoFillBackground(true);
    m_lblPos->setAttribute(Qt::WA_NoMousePropagation);
    m_lblPos->hide();
    PositionAccess::install();
    connect(this, &ctlAudio::positionTold, this, [this] { PositionAccess::tellChange(*this); });
    UserControl_Initialize();
}

ctlAudio::~ctlAudio() {
    UserControl_Terminate();
}

void ctlAudio::UserControl_Initialize() {
    errors::Procedure proc{m_services.errorHandler, "ctlAudio", "UserControl_Initialize"};
    proc.step([&] { m_lblPosPlace.Move({0}, kMarkerTop, kMarkerWidth, m_lblPosPlace.Height()); });
    proc.step([&] { m_Timer = std::make_unique<forms::Timer>(); });
    proc.step([&] { m_Timer->SetInterval(kTimerMs); });
    proc.step([&] { m_WaveObject = m_services.newWave(); });
    if (!m_WaveObject)
        return;
    connect(m_WaveObject.get(), &clsWave::PlayDone, this, &ctlAudio::WaveObject_PlayDone);
    connect(m_WaveObject.get(), &clsWave::Progress, this, &ctlAudio::WaveObject_Progress);
}

void ctlAudio::UserControl_Terminate() {
    errors::Procedure proc{m_services.errorHandler, "ctlAudio", "UserControl_Terminate"};
    if (const auto wave = m_WaveObject) {
        proc.step([&] { wave->UnInit(); });
        proc.step([] { forms::doEvents(); });
        proc.step([&] { m_services.wait.PauseWithEvents(kWindDownMs); });
        proc.step([] { forms::doEvents(); });
    }
    proc.finish([&] {
        m_WaveObject.reset();
        m_Timer.reset();
    });
}

bool ctlAudio::PlayWave(std::string_view FileName) {
    errors::Procedure proc{m_services.errorHandler, "ctlAudio", "PlayWave"};
    const std::string fileName(FileName);
    const bool exists = proc.value(false, [&] { return m_services.files.FileExists(fileName); });
    if (!proc.running())
        return false;
    if (!exists) {
        proc.step([&] {
            m_services.messageBoxes.show(
                forms::toQString(LoadLocalString(3773, "The audio file could not be found.")),
                forms::kInformation, forms::toQString(LoadLocalString(5021, "Audio Playback")));
        });
        return true;
    }
    bool plays = false;
    if (const auto wave = m_WaveObject)
        proc.step([&] { plays = wave->PlayWave(fileName); });
    tellState(proc);
    return plays;
}

void ctlAudio::Pause() {
    errors::Procedure proc{m_services.errorHandler, "ctlAudio", "Pause"};
    if (const auto wave = m_WaveObject)
        proc.step([&] { wave->Pause(); });
    tellState(proc);
}

void ctlAudio::StopPlay() {
    errors::Procedure proc{m_services.errorHandler, "ctlAudio", "StopPlay"};
    if (const auto wave = m_WaveObject)
        proc.step([&] { wave->StopPlayRec(); });
    tellState(proc);
}

// No trap (ctlAudio, Forward): the one command without; its failures are those of who calls it.
void ctlAudio::Forward() {
    if (const auto wave = m_WaveObject)
        wave->Forward();
    Q_EMIT StateChanged();
    Draw();
}

void ctlAudio::Backward() {
    errors::Procedure proc{m_services.errorHandler, "ctlAudio", "Backward"};
    if (const auto wave = m_WaveObject)
        proc.step([&] { wave->Backward(); });
    tellState(proc);
}

void ctlAudio::tellState(errors::Procedure& proc) {
    proc.step([&] { Q_EMIT StateChanged(); });
    proc.step([&] { Draw(); });
    proc.step([&] { tellEnd(); });
}

void ctlAudio::WaveObject_PlayDone() {
    errors::Procedure proc{m_services.errorHandler, "ctlAudio", "WaveObject_PlayDone"};
    tellState(proc);
}

void ctlAudio::WaveObject_Progress(basic::Currency Percent, basic::Currency Duration) {
    errors::Procedure proc{m_services.errorHandler, "ctlAudio", "WaveObject_Progress"};
    const basic::Currency before = m_Percent;
    proc.step([&] { m_Percent = Percent; });
    proc.step([&] { layOut(); });
    m_positionSeconds = toDouble(Duration);
    proc.step([&] { tellPosition(before); });
}

// Only whole percents are told: who listens to each of forty a second hears nothing else.
void ctlAudio::tellPosition(basic::Currency before) {
    constexpr std::int64_t kOnePercent = 100;
    if (before.tenThousandths / kOnePercent != m_Percent.tenThousandths / kOnePercent)
        Q_EMIT positionTold();
}

// The position is gone then.
void ctlAudio::tellEnd() {
    if (std::exchange(m_wasActive, isActive()) && !isActive())
        Q_EMIT positionTold();
}

void ctlAudio::layOut() {
    const std::int32_t width = m_surface->ScaleWidth().value;
    withErrorsIgnored([&] {
        m_picTopPlace.Move(kTrackLeft, kTrackTop, {width - 2 * kTrackLeft.value},
                           {kHeight.value - 2 * kTrackTop.value});
    });
    withErrorsIgnored([&] { m_lblPosPlace.SetTop(kMarkerTop); });
    withErrorsIgnored([&] { m_lblPosPlace.SetHeight({kHeight.value - 2 * kMarkerTop.value}); });
    withErrorsIgnored([&] {
        const std::int32_t way = width - m_lblPosPlace.Width().value - 2 * kTrackLeft.value;
        m_lblPosPlace.SetLeft({basic::CLng(way * fraction())});
    });
    Draw();
}

void ctlAudio::Draw() {
    errors::Procedure proc{m_services.errorHandler, "ctlAudio", "Draw"};
    proc.step([&] { m_frame.removeClip(); });
    proc.step([&] { m_surface->Cls(); });
    if (!isActive()) {
        proc.step([&] { m_lblPos->hide(); });
        proc.step([&] { update(); });
        return;
    }
    proc.step([&] { m_lblPos->show(); });
    proc.step(
        [&] { m_frame.DrawLabelEdge(m_picTopPlace, *m_surface, forms::BDR_SUNKENOUTER, forms::BF_RECT); });
    proc.step([&] { m_frame.EvaluateSize2(); });
    proc.step([&] { update(); });
}

// No trap (ctlAudio, Refresh): asks for painting, later.
void ctlAudio::Refresh() {
    update();
    m_lblPos->update();
}

std::uintptr_t ctlAudio::hWnd() const {
    return forms::handleOf(*this);
}

QSize ctlAudio::sizeHint() const {
    return {kFirstWidth, basic::toPixels(kHeight)};
}

void ctlAudio::seek(double fraction) {
    const auto wave = m_WaveObject;
    if (wave && isActive())
        wave->SetPos(fraction);
}

void ctlAudio::picTop_Click() {
    errors::Procedure proc{m_services.errorHandler, "ctlAudio", "picTop_Click"};
    const std::int32_t way = m_picTopPlace.Width().value - m_lblPosPlace.Width().value;
    proc.step([&] { seek(m_clickX / way); });
}

// On the track and beside it alike: the place counts from the track's left edge.
void ctlAudio::mousePressEvent(QMouseEvent* event) {
    m_clickX = event->position().x() * basic::kTwipsPerPixel - kTrackLeft.value;
}

void ctlAudio::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton && rect().contains(event->position().toPoint()))
        picTop_Click();
}

void ctlAudio::keyPressEvent(QKeyEvent* event) {
    const errors::EventDoor door{m_services.errorHandler};
    const auto run = [&](auto&& command) { door.run("ctlAudio", "UserControl_KeyDown", command); };
    switch (event->key()) {
    case Qt::Key_Right:
    case Qt::Key_Up:
        return run([this] { Forward(); });
    case Qt::Key_Left:
    case Qt::Key_Down:
        return run([this] { Backward(); });
    case Qt::Key_Home:
        return run([this] { seek(0); });
    case Qt::Key_End:
        return run([this] { seek(1); });
    default:
        QWidget::keyPressEvent(event);
    }
}

void ctlAudio::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    layOut();
}

void ctlAudio::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::PaletteChange)
        Draw();
}

void ctlAudio::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    m_surface->paintOnto(painter);
    if (!hasFocus())
        return;
    QStyleOptionFocusRect focus;
    focus.initFrom(this);
    style()->drawPrimitive(QStyle::PE_FrameFocusRect, &focus, &painter, this);
}

} // namespace audio
