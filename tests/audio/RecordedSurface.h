// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// A drawing surface of a size that the test sets, which writes down what is asked of it and fails on demand.

#include "platform/basic/RuntimeError.h"
#include "platform/forms/Events.h"
#include "platform/forms/Surface.h"

#include <QTest>
#include <QWidget>

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace audio {

class RecordedSurface final : public forms::Surface {
public:
    RecordedSurface(std::int32_t widthTwips, std::int32_t heightTwips)
        : width{widthTwips}, height{heightTwips} {}

    basic::Twips ScaleWidth() const override {
        if (fails == "ScaleWidth")
            throw basic::RuntimeError(basic::kOutOfMemory);
        return width;
    }
    basic::Twips ScaleHeight() const override { return height; }
    void Cls() override { called("Cls"); }
    void DrawEdge(const QRect& r, std::int32_t edge, std::int32_t flags) override {
        called("DrawEdge " + text(r) + " edge " + std::to_string(edge) + " flags " + std::to_string(flags));
    }
    void SelectClipRgn(const std::optional<QRect>& region) override {
        called(region ? "clip " + text(*region) : "no clip");
    }
    void paintOnto(QPainter&) const override { ++paints; }

    // Left, top, right and bottom, the latter two being outside.
    static std::string text(const QRect& r) {
        return std::to_string(r.x()) + "," + std::to_string(r.y()) + "-" + std::to_string(r.x() + r.width()) +
               "," + std::to_string(r.y() + r.height());
    }

    basic::Twips width;
    basic::Twips height;
    std::string fails; // the beginning of the calls that fail
    std::vector<std::string> log;
    mutable int paints = 0;

private:
    void called(const std::string& call) {
        log.push_back(call);
        if (!fails.empty() && call.starts_with(fails))
            throw basic::RuntimeError(basic::kOutOfMemory);
    }
};

// Whether a widget on the screen paints its surface once more, which `action` gives it reason to.
template <typename Action>
bool paintsAgain(QWidget& widget, const RecordedSurface& surface, Action&& action) {
    widget.show();
    EXPECT_TRUE(QTest::qWaitFor([&surface] { return surface.paints > 0; }));
    forms::doEvents();
    const int before = surface.paints;
    action();
    return QTest::qWaitFor([&surface, before] { return surface.paints > before; });
}

} // namespace audio
