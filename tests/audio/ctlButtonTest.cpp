// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "audio/ctlButton.h"

#include "tests/audio/RecordedSurface.h"
#include "tests/errors/RecordingErrorHandler.h"

#include <QLabel>

#include <gmock/gmock.h>

namespace audio {
namespace {

using testing::ElementsAre;

class ButtonTest : public testing::Test {
protected:
    ctlButton& make(std::int32_t widthTwips, std::int32_t heightTwips) {
        button = std::make_unique<ctlButton>(errorHandler, nullptr, [=, this](const QWidget&) {
            auto made = std::make_unique<RecordedSurface>(widthTwips, heightTwips);
            surface = made.get();
            return made;
        });
        return *button;
    }

    errors::RecordingErrorHandler errorHandler;
    RecordedSurface* surface = nullptr;
    std::unique_ptr<ctlButton> button;
};

TEST_F(ButtonTest, DrawsARaisedEdgeAroundItsPictureAndClipsToTheInside) {
    make(600, 300).Draw();
    EXPECT_THAT(surface->log, ElementsAre("Cls", "DrawEdge -1,-1-1,1 edge 4 flags 15", "clip 2,2-38,18"));
    surface->log.clear();
    button->Draw();
    EXPECT_THAT(surface->log,
                ElementsAre("no clip", "Cls", "DrawEdge -1,-1-1,1 edge 4 flags 15", "clip 2,2-38,18"));
}

TEST_F(ButtonTest, PictureFillsItAfterEachResize) {
    ctlButton real{errorHandler};
    real.resize(60, 30);
    real.show();
    EXPECT_EQ(real.picTop().geometry(), QRect(0, 0, 60, 30));
    real.resize(25, 40);
    EXPECT_EQ(real.picTop().geometry(), QRect(0, 0, 25, 40));
    EXPECT_EQ(real.frame().region(), QRect(2, 2, 21, 36));
    EXPECT_EQ(real.picTop().objectName(), QStringLiteral("picTop"));
}

TEST_F(ButtonTest, IsDrawnAnewInTheColoursOfAnotherPalette) {
    make(600, 300);
    surface->log.clear();
    button->setPalette(QPalette(Qt::black));
    EXPECT_THAT(surface->log, testing::Contains("Cls"));
}

TEST_F(ButtonTest, ShowsWhatItDraws) {
    make(600, 300).grab();
    EXPECT_GT(surface->paints, 0);
}

TEST_F(ButtonTest, DrawingPaintsItAgain) {
    make(600, 300);
    EXPECT_TRUE(paintsAgain(*button, *surface, [this] { button->Draw(); }));
}

TEST_F(ButtonTest, PictureStandsInItsMiddle) {
    make(600, 300);
    EXPECT_EQ(button->picTop().alignment(), Qt::AlignCenter);
}

TEST_F(ButtonTest, ReportsUnderTwoModuleNames) {
    make(600, 300);
    for (const char* call : {"Cls", "DrawEdge", "clip"}) {
        surface->fails = call;
        button->Draw();
    }
    ASSERT_EQ(errorHandler.reports.size(), 3U);
    EXPECT_EQ(errorHandler.reports[0].module, "ctlButton");
    EXPECT_EQ(errorHandler.reports[0].procedure, "Draw");
    EXPECT_EQ(errorHandler.reports[1].module, "cltButton");
    EXPECT_EQ(errorHandler.reports[1].procedure, "DrawLabelEdge");
    EXPECT_EQ(errorHandler.reports[2].module, "cltButton");
    EXPECT_EQ(errorHandler.reports[2].procedure, "EvaluateSize2");
}

} // namespace
} // namespace audio
