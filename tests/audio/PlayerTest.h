// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// A player on the screen, over an engine whose graph writes down its calls.

#include "audio/ctlAudio.h"
#include "tests/audio/AudioWorld.h"
#include "tests/audio/RecordedSurface.h"

#include <QTest>

#include <gmock/gmock.h>

#include <memory>
#include <set>
#include <string>

namespace audio {

// A share that has the files it is told.
class ListedFiles final : public share::FileSystemObject {
public:
    bool FileExists(std::string_view path) override {
        if (fails)
            throw basic::RuntimeError(basic::kDeviceIoError);
        return files.contains(std::string(path));
    }
    bool FolderExists(std::string_view) override { return false; }
    std::vector<std::string> SubFolders(std::string_view) override { return {}; }
    void DeleteFile(std::string_view, bool) override {}
    std::unique_ptr<share::File> openFile(std::string_view, share::OpenMode) override { return nullptr; }

    std::set<std::string> files;
    bool fails = false;
};

class PlayerTest : public AudioWorld {
protected:
    PlayerTest() {
        files.files.insert(kFile);
        player = std::make_unique<ctlAudio>(services());
        QObject::connect(player.get(), &ctlAudio::StateChanged, [this] { ++changes; });
        player->resize(400, 15);
        player->show();
    }
    PlayerServices services() {
        return {errorHandler, messageBoxes, files, devices, [this] {
                    auto made = newWave();
                    wave = made;
                    return made;
                }};
    }
    // The player with a surface that is written down.
    void useRecordedSurface() {
        PlayerServices with = services();
        with.makeSurface = [this](const QWidget&) {
            auto made = std::make_unique<RecordedSurface>(6000, 225);
            surface = made.get();
            return made;
        };
        player = std::make_unique<ctlAudio>(with);
        QObject::connect(player.get(), &ctlAudio::StateChanged, [this] { ++changes; });
    }
    void play() { ASSERT_TRUE(player->PlayWave(kFile)); }
    void tick() { Q_EMIT wave.lock()->Timer1().ThatTime(); }
    QWidget& part(const char* name) { return *player->findChild<QWidget*>(QString::fromLatin1(name)); }
    std::string lastMove() {
        std::string move;
        for (const std::string& call : sound.takeLog())
            if (call.starts_with("CurrentPosition ="))
                move = call;
        return move;
    }
    void click(int x, int y = 7) {
        sound.takeLog();
        QTest::mouseClick(player.get(), Qt::LeftButton, {}, {x, y});
    }
    std::string only() const {
        return errorHandler.reports.size() == 1
                   ? errorHandler.reports[0].module + " " + errorHandler.reports[0].procedure
                   : "(" + std::to_string(errorHandler.reports.size()) + " reports)";
    }

    ListedFiles files;
    std::weak_ptr<ReachableWave> wave;
    RecordedSurface* surface = nullptr;
    int changes = 0;
    std::unique_ptr<ctlAudio> player;
};

} // namespace audio
