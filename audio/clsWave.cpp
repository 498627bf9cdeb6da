// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "audio/clsWave.h"

#include "audio/Fixed.h"
#include "audio/PositionSteps.h"
#include "audio/Required.h"
#include "audio/WaveErrors.h"
#include "errors/ErrorsIgnored.h"
#include "platform/basic/Conversion.h"
#include "platform/basic/TextCompare.h"
#include "platform/forms/Text.h"
#include "resources/StringTable.h"

#include <algorithm>
#include <chrono>
#include <exception>
#include <vector>

namespace audio {
namespace {

using resources::LoadLocalString;

constexpr std::int32_t kProgressMs = 25;
constexpr std::chrono::milliseconds kEndWait{10};
constexpr double kSecondsPerDay = 86'400;
constexpr const char* kSoundMapper = R"(Software\Microsoft\Multimedia\Sound Mapper)";

// One stop at a time, whichever engine it is of: a handler of PlayDone that stops again finds it set.
bool g_stopBusy = false; // NOLINT(cppcoreguidelines-avoid-non-const-global-variables)

std::string nameOf(const mediagraph::WaveOutCaps& device) {
    const auto& name = device.ProductName;
    return {name.begin(), std::find(name.begin(), name.end(), '\0')};
}

} // namespace

clsWave::clsWave(const WaveServices& services) : m_services(services), m_filters(services.errorHandler) {
    connect(&m_Timer1, &forms::Timer::ThatTime, this, &clsWave::Timer1_ThatTime);
    Class_Initialize();
}

clsWave::~clsWave() {
    UnInit();
}

void clsWave::Class_Initialize() {
    errors::Procedure proc{m_services.errorHandler, "clsWave", "clsWave.Class_Init"};
    findDefaultDevice(proc);
}

// The list is asked in every case; its first device is the desktop's own choice.
void clsWave::findDefaultDevice(errors::Procedure& proc) {
    std::vector<mediagraph::WaveOutCaps> devices;
    proc.step([&] { devices = m_services.devices.GetAudioOutDevices(); });
    proc.step([&] {
        DefaultAudioDevice = data::asText(
            m_services.registry.readValue(registry::Root::CurrentUser, kSoundMapper, "Playback"));
    });
    if (DefaultAudioDevice.empty())
        proc.step([&] { DefaultAudioDevice = nameOf(devices.at(0)); });
}

bool clsWave::Init() {
    errors::Procedure proc{m_services.errorHandler, "clsWave", "clsWave.Init"};
    makeGraph(proc);
    return proc.finish();
}

bool clsWave::UnInit() {
    errors::Procedure proc{m_services.errorHandler, "clsWave", "clsWave.UnInit"};
    proc.step([&] { m_Timer1.SetInterval(0); });
    proc.step([&] { CleanGraph(); });
    proc.step([&] {
        m_filters.releaseAll();
        m_Graph.reset();
        m_Events.reset();
    });
    return proc.finish();
}

bool clsWave::PlayWave(std::string_view FileName) {
    errors::Procedure proc{m_services.errorHandler, "clsWave", "clsWave.Playwave"};
    const std::string fileName(FileName);
    if (!hasDevice(proc))
        return false;
    if (resumes(fileName))
        return resume(proc);
    if (!CleanGraph())
        return failed(cleanGraphFailed());
    proc.step([&] { SetIsPlaying(true); });
    proc.step([&] { m_IsRecording = false; });
    if (fileName.empty())
        return failed(fileNameEmpty());
    if (!m_filters.AddRegFilter(mediagraph::kFileSourceName, fileName, kPinTypeAny))
        return failed(addFileSourceFailed());
    const std::string renderer = AudioDeviceName.empty() ? DefaultAudioDevice : AudioDeviceName;
    if (!m_filters.AddRegFilter(renderer, {}, kPinTypeInput))
        return failed(addFilterFailed(renderer));
    connectFilters(proc, renderer);
    proc.step([&] { RunFilterGraph(); });
    proc.step([&] { m_CurrentFile = fileName; });
    proc.step([&] { m_Timer1.SetInterval(kProgressMs); });
    return proc.finish();
}

// A device that was not there when the engine was made may be there now.
bool clsWave::hasDevice(errors::Procedure& proc) {
    if (DefaultAudioDevice.empty())
        findDefaultDevice(proc);
    if (!DefaultAudioDevice.empty())
        return true;
    proc.step([&] {
        m_services.messageBoxes.show(
            forms::toQString(LoadLocalString(5019, "No audio device present on this system. Cannot play!")),
            forms::kOkOnly, {});
    });
    return false;
}

bool clsWave::resumes(std::string_view fileName) const {
    return m_PlayState == kPaused && m_Graph && basic::equalText(fileName, m_CurrentFile);
}

bool clsWave::resume(errors::Procedure& proc) {
    run(proc);
    return proc.finish();
}

void clsWave::connectFilters(errors::Procedure& proc, const std::string& rendererName) {
    const auto graph = m_Graph;
    proc.step([&] { m_filters.findSource(required(graph)); });
    proc.step([&] { m_filters.findRenderer(required(graph), rendererName); });
    proc.step([&] { m_filters.connect(); });
}

// Of PlayWave only: the second of the two spellings is the trap's.
bool clsWave::failed(const WaveError& error, errors::SourceLine line) {
    ReportWaveError(m_services.errorHandler, error, "clsWave.PlayWave", line);
    return false;
}

bool clsWave::CleanGraph() {
    errors::Procedure proc{m_services.errorHandler, "clsWave", "clsWave.CleanGraph"};
    proc.step([&] { StopGraph(); });
    proc.step([&] { m_filters.release(); });
    proc.step([&] { m_Graph.reset(); });
    makeGraph(proc);
    proc.step([&] { setPlayState(kStopped); });
    return proc.finish();
}

void clsWave::makeGraph(errors::Procedure& proc) {
    proc.step([&] { m_Graph = m_services.graphs.newFilgraphManager(); });
    const auto graph = m_Graph;
    if (graph)
        proc.step([&] { m_filters.take(*graph); });
    proc.step(
        [&] { m_Events = graph ? mediagraph::queryInterface<mediagraph::IMediaEvent>(graph) : nullptr; });
}

void clsWave::RunFilterGraph() {
    errors::Procedure proc{m_services.errorHandler, "clsWave", "clsWave.RunFilterGraph"};
    bool runs = true;
    if (m_PlayState == kStopped) {
        // A new graph is at its beginning.
        errors::withErrorsIgnored([&] { position()->SetCurrentPosition(0); });
    } else if (m_PlayState == kPlaying) {
        proc.step([&] { runs = rewindForRestart(*position()); });
    }
    if (runs)
        run(proc);
}

void clsWave::run(errors::Procedure& proc) {
    const auto graph = m_Graph;
    proc.step([&] { required(graph).Run(); });
    proc.step([&] { setPlayState(kPlaying); });
}

// No trap (clsWave, Pause): its failures are those of who calls it.
void clsWave::Pause() {
    const auto graph = m_Graph;
    if (!graph)
        return;
    graph->Pause();
    setPlayState(kPaused);
}

bool clsWave::StopGraph() {
    if (g_stopBusy)
        return true;
    g_stopBusy = true;
    errors::Procedure proc{m_services.errorHandler, "clsWave", "clsWave.StopGraph"};
    if (m_Events)
        proc.step([&] { keepPosition(); });
    if (const auto graph = m_Graph) {
        proc.step([&] { graph->Stop(); });
        proc.step([&] { setPlayState(kStopped); });
    }
    if (m_IsPlaying)
        stopPlaying(proc);
    else if (m_IsRecording)
        stopRecording(proc);
    return proc.finish([] { g_stopBusy = false; });
}

void clsWave::keepPosition() {
    if (position()->CurrentPosition() != 0)
        m_CurrentDuration = position()->CurrentPosition();
}

void clsWave::stopPlaying(errors::Procedure& proc) {
    proc.step([&] { SetIsPlaying(false); });
    proc.step([&] { m_IsRecording = false; });
    proc.step([&] { Q_EMIT PlayDone(); });
    proc.step([&] { m_CurrentDuration = 0; });
}

void clsWave::stopRecording(errors::Procedure& proc) {
    proc.step([&] { m_IsRecording = false; });
    proc.step([&] { SetIsPlaying(false); });
    proc.step([&] { Q_EMIT RecordDone(); });
    proc.step([&] { Q_EMIT FileSaved(basic::CLng(m_CurrentDuration), m_RecordFileName); });
    proc.step([&] { m_RecordFileName.clear(); });
    proc.step([&] { m_CurrentDuration = 0; });
}

// No trap (clsWave, SetIsPlaying): sets a property.
void clsWave::SetIsPlaying(bool isPlaying) {
    m_IsPlaying = isPlaying;
    const basic::Date now = m_services.clock.nowAsDate();
    if (isPlaying)
        m_PlayStart = now;
    else
        m_LastPlayDuration = basic::CLng((now.days - m_PlayStart.days) * kSecondsPerDay);
}

// The owner may let go while an error dialog of this tick is up.
void clsWave::Timer1_ThatTime() {
    const auto alive = weak_from_this().lock();
    errors::Procedure proc{m_services.errorHandler, "clsWave", "clsWave.Timer_ThatTime"};
    if (!m_Events)
        return;
    if (HasFile())
        proc.step([&] { m_CurrentDuration = position()->CurrentPosition(); });
    if (!m_IsPlaying || !HasFile())
        return;
    proc.step([&] { tellProgress(); });
    if (proc.running() && hasEnded())
        proc.step([&] { StopGraph(); });
}

// A file without a length has no fractions: it is at its beginning.
void clsWave::tellProgress() {
    m_lengthSeconds = position()->Duration();
    const double fraction = m_lengthSeconds == 0 ? 0 : m_CurrentDuration / m_lengthSeconds;
    Q_EMIT Progress(toCurrency(fraction), toCurrency(m_CurrentDuration));
}

// A graph that is still running says so by an error.
bool clsWave::hasEnded() const {
    const auto events = m_Events;
    try {
        return events && static_cast<std::int32_t>(events->WaitForCompletion(kEndWait)) != 0;
    } catch (const std::exception&) {
        return false;
    }
}

// No trap (clsWave, Forward): its failures are those of who calls it.
void clsWave::Forward() {
    if (m_Events)
        stepForward(*position());
}

// No trap (clsWave, Backward): its failures are those of who calls it.
void clsWave::Backward() {
    if (m_Events)
        stepBackward(*position());
}

// No trap (clsWave, SetPos): its failures are those of who calls it.
void clsWave::SetPos(const double& Percentage) {
    if (!m_Events || m_PlayState == kStopped)
        return;
    const Position where = position();
    where->SetCurrentPosition(where->Duration() * Percentage);
}

// The timer has nothing to do while no graph runs or is paused, whatever its interval.
void clsWave::setPlayState(std::int32_t state) {
    m_PlayState = state;
    m_Timer1.SetResting(!HasFile());
}

clsWave::Position clsWave::position() const {
    return mediagraph::queryInterface<mediagraph::IMediaPosition>(m_Events);
}

} // namespace audio
