// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// Plays one message file at a time through a filter graph that it builds for each play: a file source joined
// to the renderer of the preferred output device. A timer of 25 ms tells the position and notices the end; it
// wakes nobody while nothing is loaded. Failures are reported under the module "clsWave". Error dialogs let
// events run inside of the calls; UnInit() may come meanwhile, and the owner may let go of its share. The
// services must outlive the engine; user-interface thread. The recording flag and its two events belong to
// the stop; nothing here records.

#include "audio/GraphFilters.h"
#include "audio/WaveErrors.h"
#include "audio/basAudio.h"
#include "data/basRegistry.h"
#include "errors/ErrorHandler.h"
#include "errors/Procedure.h"
#include "errors/SourceLine.h"
#include "platform/basic/Clock.h"
#include "platform/basic/Variant.h"
#include "platform/forms/MessageBoxes.h"
#include "platform/forms/Timer.h"
#include "platform/mediagraph/MediaGraphs.h"

#include <QObject>

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

namespace audio {

struct WaveServices {
    errors::ErrorHandler& errorHandler;
    forms::MessageBoxes& messageBoxes;
    mediagraph::MediaGraphs& graphs;
    basAudio& devices;
    data::basRegistry& registry;
    const basic::Clock& clock;
};

class clsWave : public QObject, public std::enable_shared_from_this<clsWave> {
    Q_OBJECT
public:
    static constexpr std::int32_t kStopped = 0;
    static constexpr std::int32_t kPaused = 1;
    static constexpr std::int32_t kPlaying = 2;

    explicit clsWave(const WaveServices& services);
    ~clsWave() override;

    // Plays a file from its beginning; the paused file goes on where it was paused.
    bool PlayWave(std::string_view FileName);
    void Pause();
    bool StopPlayRec() { return StopGraph(); }
    // A tenth of the file on or back. At position 0, that is before the sound began, they do nothing.
    void Forward();
    void Backward();
    // To a fraction of the file, 0 to 1; others are left to the graph.
    void SetPos(const double& Percentage);

    // Also true while paused, and after a play that failed until the next stop.
    bool IsPlaying() const noexcept { return m_IsPlaying; }
    void SetIsPlaying(bool isPlaying);
    bool IsPaused() const noexcept { return m_PlayState == kPaused; }
    bool HasFile() const noexcept { return m_PlayState == kPaused || m_PlayState == kPlaying; }

    bool Init();
    bool UnInit();

    // A renderer to use instead of the preferred device's; nothing sets it.
    std::string AudioDeviceName;
    std::string DefaultAudioDevice;

    std::int32_t PlayState() const noexcept { return m_PlayState; }
    std::int32_t LastPlayDuration() const noexcept { return m_LastPlayDuration; }
    const std::string& CurrentFile() const noexcept { return m_CurrentFile; }
    double CurrentDuration() const noexcept { return m_CurrentDuration; }
    // The file's, as it was at the last Progress.
    double lengthSeconds() const noexcept { return m_lengthSeconds; }
    forms::Timer& Timer1() noexcept { return m_Timer1; }

Q_SIGNALS:
    // By the end of the file or by a stop.
    void PlayDone();
    void RecordDone();
    void FileSaved(std::int32_t seconds, const std::string& fileName);
    // The fraction of the file, 0 to 1, and the position in seconds.
    void Progress(basic::Currency Percent, basic::Currency Duration);

protected:
    void RunFilterGraph();
    void SetIsRecording(bool isRecording) noexcept { m_IsRecording = isRecording; }

private:
    using Position = std::shared_ptr<mediagraph::IMediaPosition>;

    void Class_Initialize();
    void findDefaultDevice(errors::Procedure& proc);
    bool hasDevice(errors::Procedure& proc);
    bool resumes(std::string_view fileName) const;
    bool resume(errors::Procedure& proc);
    void connectFilters(errors::Procedure& proc, const std::string& rendererName);
    bool failed(const WaveError& error, errors::SourceLine line = errors::SourceLine::here());
    bool CleanGraph();
    void makeGraph(errors::Procedure& proc);
    bool StopGraph();
    void keepPosition();
    void stopPlaying(errors::Procedure& proc);
    void stopRecording(errors::Procedure& proc);
    void Timer1_ThatTime();
    void tellProgress();
    bool hasEnded() const;
    void run(errors::Procedure& proc);
    void setPlayState(std::int32_t state);
    Position position() const;

    WaveServices m_services;
    GraphFilters m_filters;
    std::shared_ptr<mediagraph::IMediaControl> m_Graph;
    std::shared_ptr<mediagraph::IMediaEvent> m_Events;
    forms::Timer m_Timer1;
    std::int32_t m_PlayState = kStopped;
    bool m_IsPlaying = false;
    bool m_IsRecording = false;
    basic::Date m_PlayStart;
    std::int32_t m_LastPlayDuration = 0;
    double m_CurrentDuration = 0; // the position, in seconds
    double m_lengthSeconds = 0;
    std::string m_CurrentFile;
    std::string m_RecordFileName;
};

} // namespace audio
