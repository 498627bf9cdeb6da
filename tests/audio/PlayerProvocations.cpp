// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "audio/ctlAudio.h"
#include "audio/ctlButton.h"
#include "platform/forms/Edges.h"
#include "tests/audio/ProvokedSound.h"
#include "tests/audio/RecordedSurface.h"

#include <QTest>

namespace audio {
namespace {

using basic::kDeviceIoError;
using basic::kOutOfMemory;
using errors::CannotFail;
using errors::Effect;
using errors::Provocation;
using errors::Trial;

const CannotFail kTerminate{"ctlAudio", "UserControl_Terminate",
                            "the engine's end has a trap of its own, and the wait ignores its errors"};

class OneFile final : public share::FileSystemObject {
public:
    bool FileExists(std::string_view) override {
        if (isBroken)
            throw basic::RuntimeError(kDeviceIoError);
        wasAsked = true;
        return exists;
    }
    bool FolderExists(std::string_view) override { return false; }
    std::vector<std::string> SubFolders(std::string_view) override { return {}; }
    void DeleteFile(std::string_view, bool) override {}
    std::unique_ptr<share::File> openFile(std::string_view, share::OpenMode) override { return nullptr; }

    bool isBroken = false;
    bool exists = true;
    bool wasAsked = false;
};

// A player whose engine and surface are written down; it has a message to play.
class ProvokedPlayer : public ProvokedSound {
public:
    explicit ProvokedPlayer(Trial& aTrial) : ProvokedSound(aTrial) {}

    ctlAudio& make() {
        player = std::make_unique<ctlAudio>(
            PlayerServices{trial, boxes, files, devices,
                           [this]() -> std::shared_ptr<clsWave> {
                               if (isWithoutEngine)
                                   throw basic::RuntimeError(basic::kCannotCreateObject);
                               return wave = newWave();
                           },
                           [this](const QWidget&) {
                               auto made = std::make_unique<RecordedSurface>(6000, 225);
                               surface = made.get();
                               return made;
                           }});
        QObject::connect(player.get(), &ctlAudio::StateChanged, [this] {
            if (isOwnerBroken)
                throw basic::RuntimeError(basic::kObjectNotSet);
            ++changes;
        });
        return *player;
    }
    ctlAudio& makePlaying() {
        make().PlayWave(kMessage);
        sound.position = 5;
        changes = 0;
        surface->log.clear();
        return *player;
    }
    // The owner's handler of the state fails until the repair.
    void breakOwner() {
        isOwnerBroken = true;
        trial.repair = [this] { isOwnerBroken = false; };
    }
    void breakSurface(const std::string& call) {
        surface->log.clear();
        surface->fails = call;
        trial.repair = [this] { surface->fails.clear(); };
    }
    bool drew(const std::string& call, int times = 1) const { return timesIn(surface->log, call) >= times; }

    OneFile files;
    std::shared_ptr<clsWave> wave;
    RecordedSurface* surface = nullptr;
    bool isWithoutEngine = false;
    bool isOwnerBroken = false;
    int changes = 0;
    std::unique_ptr<ctlAudio> player;
};

const Provocation kInitialize{"ctlAudio", "UserControl_Initialize", basic::kCannotCreateObject,
                              [](Trial& trial) -> Effect {
                                  ProvokedPlayer world(trial);
                                  world.isWithoutEngine = true;
                                  trial.repair = [&] { world.isWithoutEngine = false; };
                                  world.make();
                                  return {world.wave != nullptr};
                              }};

const Provocation kPlay{"ctlAudio", "PlayWave", kDeviceIoError, [](Trial& trial) -> Effect {
                            ProvokedPlayer world(trial);
                            world.files.exists = false;
                            world.files.isBroken = true;
                            trial.repair = [&] { world.files.isBroken = false; };
                            world.make().PlayWave(kMessage);
                            return {world.files.wasAsked, !world.boxes.boxes.empty()};
                        }};

const Provocation kPause{"ctlAudio", "Pause", kDeviceIoError, [](Trial& trial) -> Effect {
                             ProvokedPlayer world(trial);
                             ctlAudio& player = world.makePlaying();
                             world.fail("Pause");
                             player.Pause();
                             return {player.IsPaused(), world.changes > 0};
                         }};

const Provocation kBackward{"ctlAudio", "Backward", kDeviceIoError, [](Trial& trial) -> Effect {
                                ProvokedPlayer world(trial);
                                ctlAudio& player = world.makePlaying();
                                world.fail("CurrentPosition =");
                                player.Backward();
                                return {world.wasTriedAgain("CurrentPosition ="), world.changes > 0};
                            }};

const Provocation kStopPlay{"ctlAudio", "StopPlay", basic::kObjectNotSet, [](Trial& trial) -> Effect {
                                ProvokedPlayer world(trial);
                                ctlAudio& player = world.make();
                                world.breakOwner();
                                world.surface->log.clear();
                                player.StopPlay();
                                return {world.changes > 0, world.drew("Cls")};
                            }};

const Provocation kPlayDone{"ctlAudio", "WaveObject_PlayDone", basic::kObjectNotSet,
                            [](Trial& trial) -> Effect {
                                ProvokedPlayer world(trial);
                                world.makePlaying();
                                world.breakOwner();
                                world.wave->StopPlayRec();
                                return {world.changes > 0, world.drew("Cls")};
                            }};

const Provocation kProgress{"ctlAudio", "WaveObject_Progress", kOutOfMemory, [](Trial& trial) -> Effect {
                                ProvokedPlayer world(trial);
                                world.makePlaying();
                                world.breakSurface("ScaleWidth");
                                Q_EMIT world.wave->Progress({5000}, {50000});
                                return {world.drew("Cls")};
                            }};

const Provocation kDraw{"ctlAudio", "Draw", kOutOfMemory, [](Trial& trial) -> Effect {
                            ProvokedPlayer world(trial);
                            ctlAudio& player = world.makePlaying();
                            world.breakSurface("Cls");
                            player.Draw();
                            const Effect effect{world.drew("Cls", 2), world.drew("DrawEdge")};
                            world.surface->fails.clear(); // its end draws, too
                            return effect;
                        }};

const Provocation kTrackClick{"ctlAudio", "picTop_Click", kDeviceIoError, [](Trial& trial) -> Effect {
                                  ProvokedPlayer world(trial);
                                  ctlAudio& player = world.makePlaying();
                                  world.fail("CurrentPosition =");
                                  QTest::mouseClick(&player, Qt::LeftButton);
                                  return {world.wasTriedAgain("CurrentPosition =")};
                              }};

const Provocation kKeyDown{"ctlAudio", "UserControl_KeyDown", kDeviceIoError, [](Trial& trial) -> Effect {
                               ProvokedPlayer world(trial);
                               ctlAudio& player = world.makePlaying();
                               world.fail("CurrentPosition =");
                               QTest::keyClick(&player, Qt::Key_End);
                               return {world.wasTriedAgain("CurrentPosition =")};
                           }};

const Provocation kButtonDraw{
    "ctlButton", "Draw", kOutOfMemory, [](Trial& trial) -> Effect {
        RecordedSurface* surface = nullptr;
        ctlButton button(trial, nullptr, [&](const QWidget&) {
            auto made = std::make_unique<RecordedSurface>(600, 300);
            surface = made.get();
            return made;
        });
        surface->fails = "Cls";
        trial.repair = [&] { surface->fails.clear(); };
        button.Draw();
        return {timesIn(surface->log, "Cls") >= 2, timesIn(surface->log, "DrawEdge") >= 1};
    }};

// The helpers of both controls, each under the module that the control gives them.
Effect draw(Trial& trial, const char* module, const char* call,
            const std::function<void(FrameDrawing&, forms::Placement&, RecordedSurface&)>& procedure) {
    QWidget control;
    forms::Placement place{control};
    RecordedSurface surface{1500, 600};
    surface.fails = call;
    trial.repair = [&] { surface.fails.clear(); };
    FrameDrawing frame(trial, module, surface);
    procedure(frame, place, surface);
    return {timesIn(surface.log, call) >= 2};
}

Effect drawEdge(Trial& trial, const char* module) {
    return draw(trial, module, "DrawEdge",
                [](FrameDrawing& frame, forms::Placement& place, RecordedSurface& on) {
                    frame.DrawLabelEdge(place, on, forms::BDR_RAISEDINNER, forms::BF_RECT);
                });
}
Effect evaluate(Trial& trial, const char* module) {
    return draw(trial, module, "clip",
                [](FrameDrawing& frame, forms::Placement&, RecordedSurface& on) { frame.EvaluateSize(on); });
}
Effect evaluateOwn(Trial& trial, const char* module) {
    return draw(trial, module, "clip",
                [](FrameDrawing& frame, forms::Placement&, RecordedSurface&) { frame.EvaluateSize2(); });
}

const Provocation kPlayerEdge{"ctlAudio", "DrawLabelEdge", kOutOfMemory,
                              [](Trial& trial) { return drawEdge(trial, "ctlAudio"); }};
const Provocation kPlayerSize{"ctlAudio", "EvaluateSize", kOutOfMemory,
                              [](Trial& trial) { return evaluate(trial, "ctlAudio"); }};
const Provocation kPlayerSize2{"ctlAudio", "EvaluateSize2", kOutOfMemory,
                               [](Trial& trial) { return evaluateOwn(trial, "ctlAudio"); }};
const Provocation kButtonEdge{"cltButton", "DrawLabelEdge", kOutOfMemory,
                              [](Trial& trial) { return drawEdge(trial, "cltButton"); }};
const Provocation kButtonSize{"cltButton", "EvaluateSize", kOutOfMemory,
                              [](Trial& trial) { return evaluate(trial, "cltButton"); }};
const Provocation kButtonSize2{"cltButton", "EvaluateSize2", kOutOfMemory,
                               [](Trial& trial) { return evaluateOwn(trial, "cltButton"); }};

} // namespace
} // namespace audio
