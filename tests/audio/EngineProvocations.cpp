// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/audio/ProvokedSound.h"

namespace audio {
namespace {

using basic::kDeviceIoError;
using errors::CannotFail;
using errors::Effect;
using errors::Provocation;
using errors::Trial;

const CannotFail kUnInit{"clsWave", "clsWave.UnInit",
                         "it stops a timer, cleans the graph under a trap of its own and lets go"};

const Provocation kDevices{"basAudio", "basAudio.GetAudioOutDevices", kDeviceIoError,
                           [](Trial& trial) -> Effect {
                               ProvokedSound world(trial);
                               world.fail("waveOutGetNumDevs");
                               world.devices.GetAudioOutDevices();
                               return {world.did("waveOutGetDevCapsA")};
                           }};

const Provocation kClassInit{
    "clsWave", "clsWave.Class_Init", basic::kTypeMismatch, [](Trial& trial) -> Effect {
        ProvokedSound world(trial);
        const auto put = [&](const std::string& value) {
            world.settings.putUser("[HKEY_CURRENT_USER\\Software\\Microsoft\\Multimedia\\Sound Mapper]\n"
                                   "\"Playback\"=" +
                                   value + "\n");
        };
        put("hex:01");
        trial.repair = [&] { put("\"Phone\""); };
        const auto wave = world.newWave();
        return {wave->DefaultAudioDevice == "Phone", !wave->DefaultAudioDevice.empty()};
    }};

const Provocation kInit{"clsWave", "clsWave.Init", kDeviceIoError, [](Trial& trial) -> Effect {
                            ProvokedSound world(trial);
                            const auto wave = world.newWave();
                            world.fail("RegFilterCollection");
                            wave->Init();
                            return {world.wasTriedAgain("RegFilterCollection")};
                        }};

const Provocation kPlayWave{"clsWave", "clsWave.Playwave", kDeviceIoError, [](Trial& trial) -> Effect {
                                ProvokedSound world(trial);
                                const auto wave = world.newWave();
                                world.fail("Connect");
                                wave->PlayWave(kMessage);
                                return {world.wasTriedAgain("Connect"), world.did("Run")};
                            }};

const Provocation kCleanGraph{"clsWave", "clsWave.CleanGraph", kDeviceIoError, [](Trial& trial) -> Effect {
                                  ProvokedSound world(trial);
                                  const auto wave = world.playing();
                                  world.fail("new graph");
                                  wave->UnInit();
                                  return {world.wasTriedAgain("new graph")};
                              }};

const Provocation kRun{"clsWave", "clsWave.RunFilterGraph", kDeviceIoError, [](Trial& trial) -> Effect {
                           ProvokedSound world(trial);
                           const auto wave = world.newWave();
                           world.fail("Run");
                           wave->PlayWave(kMessage);
                           return {world.wasTriedAgain("Run"), wave->PlayState() == clsWave::kPlaying};
                       }};

const Provocation kStop{"clsWave", "clsWave.StopGraph", kDeviceIoError, [](Trial& trial) -> Effect {
                            ProvokedSound world(trial);
                            const auto wave = world.playing();
                            world.fail("Stop");
                            wave->StopPlayRec();
                            return {world.wasTriedAgain("Stop"), !wave->IsPlaying()};
                        }};

const Provocation kTick{"clsWave", "clsWave.Timer_ThatTime", kDeviceIoError, [](Trial& trial) -> Effect {
                            ProvokedSound world(trial);
                            const auto wave = world.playing();
                            world.fail("Duration");
                            Q_EMIT wave->Timer1().ThatTime();
                            return {world.wasTriedAgain("Duration"), world.did("WaitForCompletion")};
                        }};

const Provocation kAddFilter{"clsWave", "clsWave.AddRegFilter", kDeviceIoError, [](Trial& trial) -> Effect {
                                 ProvokedSound world(trial);
                                 const auto graph = world.sound.newFilgraphManager();
                                 GraphFilters filters(trial);
                                 filters.take(*graph);
                                 world.fail("Filename");
                                 filters.AddRegFilter(mediagraph::kFileSourceName, kMessage, kPinTypeAny);
                                 return {world.wasTriedAgain("Filename")};
                             }};

const Provocation kCheckFilter{"clsWave", "clsWave.CheckFilterForType", kDeviceIoError,
                               [](Trial& trial) -> Effect {
                                   ProvokedSound world(trial);
                                   const auto graph = world.sound.newFilgraphManager();
                                   const auto registered = graph->RegFilterCollection();
                                   GraphFilters filters(trial);
                                   world.fail("Direction Speaker");
                                   return {filters.CheckFilterForType(*registered->Item(1), kPinTypeInput)};
                               }};

const Provocation kAppendFilter{"clsWave", "clsWave.AppendFilter", kDeviceIoError,
                                [](Trial& trial) -> Effect {
                                    ProvokedSound world(trial);
                                    const auto graph = world.sound.newFilgraphManager();
                                    GraphFilters filters(trial);
                                    filters.take(*graph);
                                    GraphFilters::Filter found;
                                    world.fail("Filter Speaker");
                                    return {filters.AppendFilter("Speaker", found)};
                                }};

} // namespace
} // namespace audio
