// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// What the engine reports and what is left of it afterwards: every planned failure, and every procedure's
// trap by its name.
#include "audio/clsWave.h"
#include "tests/audio/AudioWorld.h"

#include <gmock/gmock.h>

namespace audio {
namespace {

using errors::ErrorAction;
using testing::ElementsAre;
using testing::IsEmpty;

class WaveFailureTest : public AudioWorld {
protected:
    void answer(std::initializer_list<ErrorAction> answers) {
        errorHandler = errors::RecordingErrorHandler{answers};
    }
    void expectOnly(std::int32_t number, const char* description) const {
        ASSERT_EQ(errorHandler.reports.size(), 1U);
        const errors::Report& report = errorHandler.reports[0];
        EXPECT_EQ(report.module, "clsWave");
        EXPECT_EQ(report.procedure, "clsWave.PlayWave");
        EXPECT_EQ(report.number, number);
        EXPECT_EQ(report.description, description);
        EXPECT_GT(report.line, 0);
    }

    // A filter of a play that has ended is of no use to the next one, whose graph does not have it.
    void expectNotPlayedAgainWithout(RecordedSound::Filter& filter) {
        ASSERT_TRUE(wave->PlayWave(kFile));
        wave->StopPlayRec();
        filter.nameInGraph = "something else";
        EXPECT_FALSE(wave->PlayWave(kFile));
        EXPECT_THAT(reported(), ElementsAre("91 clsWave.Playwave"));
    }

    std::shared_ptr<ReachableWave> wave = newWave();
};

TEST_F(WaveFailureTest, EmptyFileNameIsReportedAfterTheTearDownAndTheFlagStaysSet) {
    ASSERT_TRUE(wave->PlayWave(kFile));
    sound.takeLog();
    EXPECT_FALSE(wave->PlayWave(""));
    expectOnly(3653, "Filename empty. Cannot play!");
    EXPECT_THAT(sound.takeLog(), testing::IsSupersetOf({"Stop", "graph gone", "new graph"}));
    EXPECT_TRUE(wave->IsPlaying());
    EXPECT_FALSE(wave->HasFile());
    EXPECT_FALSE(wave->Timer1().isTicking());
    EXPECT_TRUE(wave->StopPlayRec());
    EXPECT_FALSE(wave->IsPlaying());
}

TEST_F(WaveFailureTest, GraphThatCannotBeCleanedIsReported) {
    sound.fail("new graph");
    EXPECT_FALSE(wave->PlayWave(kFile));
    EXPECT_THAT(reported(), ElementsAre("57 clsWave.CleanGraph", "3652 clsWave.PlayWave"));
    EXPECT_EQ(errorHandler.reports[1].description, "CleanGraph failed!");
    EXPECT_FALSE(wave->IsPlaying());
}

TEST_F(WaveFailureTest, SourceThatCannotBeAddedIsReported) {
    sound.registered.erase(sound.registered.begin());
    EXPECT_FALSE(wave->PlayWave(kFile));
    EXPECT_THAT(reported(), ElementsAre("3670 clsWave.AddRegFilter", "3654 clsWave.PlayWave"));
    EXPECT_EQ(errorHandler.reports[0].description, "Filter 'File Source (Async.)' could not be found!");
    EXPECT_EQ(errorHandler.reports[1].description, "AddFilter 'FileSource' failed!");
    EXPECT_TRUE(wave->IsPlaying());
}

TEST_F(WaveFailureTest, RendererThatCannotBeAddedIsReportedWithItsName) {
    sound.registered.pop_back();
    EXPECT_FALSE(wave->PlayWave(kFile));
    EXPECT_THAT(reported(), ElementsAre("3670 clsWave.AddRegFilter", "3655 clsWave.PlayWave"));
    EXPECT_EQ(errorHandler.reports[1].description, "AddFilter failed: 'Speaker'");
    EXPECT_TRUE(wave->IsPlaying());
}

TEST_F(WaveFailureTest, AnswerToAPlannedFailureChangesNothing) {
    for (const ErrorAction action : {ErrorAction::Retry, ErrorAction::Ignore, ErrorAction::Abort}) {
        answer({action});
        EXPECT_FALSE(wave->PlayWave(""));
        EXPECT_EQ(errorHandler.reports.size(), 1U);
    }
}

TEST_F(WaveFailureTest, NextPlayAfterAFailureWorks) {
    sound.fail("Filename", 53);
    EXPECT_FALSE(wave->PlayWave(kFile));
    EXPECT_THAT(reported(), ElementsAre("53 clsWave.AddRegFilter", "3654 clsWave.PlayWave"));
    EXPECT_TRUE(wave->PlayWave(kFile));
    EXPECT_EQ(wave->PlayState(), clsWave::kPlaying);
}

TEST_F(WaveFailureTest, FileThatCannotBePlayedIsReportedUnderTheOtherSpelling) {
    sound.fail("Connect", basic::kMediaBadFormat);
    EXPECT_FALSE(wave->PlayWave(kFile));
    ASSERT_EQ(errorHandler.reports.size(), 1U);
    EXPECT_EQ(errorHandler.reports[0].module, "clsWave");
    EXPECT_EQ(errorHandler.reports[0].procedure, "clsWave.Playwave");
    EXPECT_EQ(errorHandler.reports[0].number, basic::kMediaBadFormat);
    EXPECT_EQ(wave->PlayState(), clsWave::kStopped);
    EXPECT_TRUE(wave->IsPlaying());
}

TEST_F(WaveFailureTest, RetryRunsTheFailedStatementAgain) {
    answer({ErrorAction::Retry});
    sound.fail("Connect");
    EXPECT_TRUE(wave->PlayWave(kFile));
    EXPECT_EQ(wave->PlayState(), clsWave::kPlaying);
}

TEST_F(WaveFailureTest, NoRendererInTheGraphIsAnObjectThatIsNotSet) {
    sound.registered[1].nameInGraph = "something else";
    EXPECT_FALSE(wave->PlayWave(kFile));
    EXPECT_THAT(reported(), ElementsAre("91 clsWave.Playwave"));
}

TEST_F(WaveFailureTest, PinOfAnEarlierPlayIsNotUsedForALaterOne) {
    expectNotPlayedAgainWithout(sound.registered[1]);
}

TEST_F(WaveFailureTest, SourceOfAnEarlierPlayIsNotUsedForALaterOne) {
    expectNotPlayedAgainWithout(sound.registered[0]);
}

TEST_F(WaveFailureTest, PausedFileWhoseGraphIsGoneStartsWithAFreshOne) {
    ASSERT_TRUE(wave->PlayWave(kFile));
    wave->Pause();
    sound.fail("Stop");
    sound.fail("new graph");
    EXPECT_FALSE(wave->PlayWave(R"(\\srv01\Quillamar_0$\MBX\12\C2.wav)"));
    ASSERT_TRUE(wave->IsPaused());
    errorHandler.reports.clear();
    sound.takeLog();
    EXPECT_TRUE(wave->PlayWave(kFile));
    EXPECT_THAT(errorHandler.reports, IsEmpty());
    EXPECT_THAT(sound.takeLog(), testing::Contains("new graph"));
}

TEST_F(WaveFailureTest, AbortInsideOfStopLetsTheNextStopIn) {
    ASSERT_TRUE(wave->PlayWave(kFile));
    sound.fail("Stop");
    EXPECT_FALSE(wave->StopPlayRec());
    EXPECT_THAT(reported(), ElementsAre("57 clsWave.StopGraph"));
    EXPECT_TRUE(wave->IsPlaying());
    EXPECT_TRUE(wave->StopPlayRec());
    EXPECT_FALSE(wave->IsPlaying());
}

TEST_F(WaveFailureTest, SettingOfAWrongTypeIsReportedAtTheCreationAndTheFirstDeviceUsed) {
    answer({ErrorAction::Ignore});
    settings.putUser(
        "[HKEY_CURRENT_USER\\Software\\Microsoft\\Multimedia\\Sound Mapper]\n\"Playback\"=hex:01\n");
    const auto other = newWave();
    EXPECT_THAT(reported(), ElementsAre("13 clsWave.Class_Init"));
    EXPECT_EQ(other->DefaultAudioDevice, "Speaker");
}

TEST_F(WaveFailureTest, DeviceListThatFailsLeavesNoPreferredDevice) {
    sound.fail("waveOutGetNumDevs");
    const auto other = newWave();
    EXPECT_THAT(reported(), ElementsAre("57 basAudio.GetAudioOutDevices"));
    EXPECT_EQ(other->DefaultAudioDevice, "");
}

TEST_F(WaveFailureTest, InitReportsUnderItsName) {
    sound.fail("RegFilterCollection");
    EXPECT_FALSE(wave->Init());
    EXPECT_THAT(reported(), ElementsAre("57 clsWave.Init"));
}

TEST_F(WaveFailureTest, GraphThatCannotRunIsReportedUnderItsName) {
    sound.fail("Run");
    wave->PlayWave(kFile);
    EXPECT_THAT(reported(), ElementsAre("57 clsWave.RunFilterGraph"));
    EXPECT_EQ(wave->PlayState(), clsWave::kStopped);
}

TEST_F(WaveFailureTest, CheckOfAFilterIsReportedUnderItsName) {
    sound.fail("Direction Speaker");
    EXPECT_FALSE(wave->PlayWave(kFile));
    EXPECT_THAT(reported(), ElementsAre("57 clsWave.CheckFilterForType", "3670 clsWave.AddRegFilter",
                                        "3655 clsWave.PlayWave"));
}

TEST_F(WaveFailureTest, AppendedFilterIsReportedUnderItsName) {
    const auto graph = sound.newFilgraphManager();
    GraphFilters filters{errorHandler};
    GraphFilters::Filter found;
    EXPECT_FALSE(filters.AppendFilter("Speaker", found));
    filters.take(*graph);
    sound.fail("Filter Speaker");
    EXPECT_FALSE(filters.AppendFilter("Speaker", found));
    EXPECT_THAT(reported(), ElementsAre("91 clsWave.AppendFilter", "57 clsWave.AppendFilter"));
}

TEST_F(WaveFailureTest, TickIsReportedUnderItsName) {
    ASSERT_TRUE(wave->PlayWave(kFile));
    sound.fail("Duration");
    sound.takeLog();
    Q_EMIT wave->Timer1().ThatTime();
    EXPECT_THAT(reported(), ElementsAre("57 clsWave.Timer_ThatTime"));
    EXPECT_THAT(sound.takeLog(),
                testing::Not(testing::Contains("WaitForCompletion 10"))); // the tick ended there
}

TEST_F(WaveFailureTest, TheShortCommandsHaveNoTrap) {
    ASSERT_TRUE(wave->PlayWave(kFile));
    sound.position = 3;
    sound.fail("Pause");
    EXPECT_THROW(wave->Pause(), basic::RuntimeError);
    EXPECT_FALSE(wave->IsPaused());
    sound.fail("CurrentPosition", 57, 3);
    EXPECT_THROW(wave->Forward(), basic::RuntimeError);
    EXPECT_THROW(wave->Backward(), basic::RuntimeError);
    EXPECT_THROW(wave->SetPos(0.5), basic::RuntimeError);
    EXPECT_THAT(errorHandler.reports, IsEmpty());
}

// Every call of a play fails once, with every answer: nothing escapes, and the next play works.
TEST_F(WaveFailureTest, WhateverCallFailsTheNextPlayWorks) {
    sound.takeLog();
    ASSERT_TRUE(wave->PlayWave(kFile));
    const auto calls = sound.takeLog();
    for (const ErrorAction action : {ErrorAction::Retry, ErrorAction::Ignore, ErrorAction::Abort}) {
        for (const std::string& call : calls) {
            answer({action, action, action, action});
            sound.fail(call);
            wave->PlayWave(kFile);
            wave->StopPlayRec();
            answer({});
            EXPECT_TRUE(wave->PlayWave(kFile)) << call;
            EXPECT_THAT(errorHandler.reports, IsEmpty()) << call;
        }
    }
}

} // namespace
} // namespace audio
