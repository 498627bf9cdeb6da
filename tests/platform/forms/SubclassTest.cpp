// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/forms/Subclass.h"

#include "platform/forms/TabStrip.h"
#include "platform/forms/WindowHandle.h"
#include "tests/platform/forms/CallListFixture.h"

#include <QHeaderView>
#include <QMouseEvent>

#include <gmock/gmock.h>

#include <cstring>

namespace forms {
namespace {

// Answers as the main window does: the first column's divider stays where it is.
class FirstColumnIsFixed : public ISubclass {
public:
    int ISubclass_MsgResponse() override { return response; }
    std::intptr_t ISubclass_WindowProc(std::uintptr_t hwnd, std::uint32_t message, std::intptr_t,
                                       std::intptr_t lParam) override {
        window = hwnd;
        messages.push_back(message);
        if (message != WM_NOTIFY) {
            size = lParam;
            return 0;
        }
        std::memcpy(&last, reinterpret_cast<const void*>(lParam), sizeof(last));
        const bool begins = last.code == HDN_BEGINTRACKA || last.code == HDN_BEGINTRACKW;
        return begins && last.item == 0 ? 1 : 0;
    }

    int response = kMsgTaken;
    std::uintptr_t window = 0;
    std::intptr_t size = 0;
    std::vector<std::uint32_t> messages;
    HeaderNotification last;
};

class SubclassedList : public CallListFixture {
protected:
    SubclassedList() { fill(3); }

    QHeaderView& header() { return *view().header(); }
    QPoint divider(int column) {
        const int right = header().sectionViewportPosition(column) + header().sectionSize(column);
        return {right - 1, header().height() / 2};
    }
    void mouse(QEvent::Type type, QPoint where, Qt::MouseButton button, Qt::MouseButtons held) {
        QMouseEvent event(type, where, header().viewport()->mapToGlobal(where), button, held, {});
        QCoreApplication::sendEvent(header().viewport(), &event);
    }
    int widthAfterDragging(int column, int pixels) {
        const QPoint from = divider(column);
        const QPoint to = from + QPoint(pixels, 0);
        mouse(QEvent::MouseMove, from, Qt::NoButton, Qt::NoButton);
        mouse(QEvent::MouseButtonPress, from, Qt::LeftButton, Qt::LeftButton);
        mouse(QEvent::MouseMove, to, Qt::NoButton, Qt::LeftButton);
        mouse(QEvent::MouseButtonRelease, to, Qt::LeftButton, Qt::NoButton);
        return header().sectionSize(column);
    }

    FirstColumnIsFixed hook;
    Subclass subclass{hook};
};

TEST_F(SubclassedList, WithoutAHookEveryColumnCanBeSized) {
    const int before = header().sectionSize(0);
    EXPECT_EQ(widthAfterDragging(0, 40), before + 40);
}

TEST_F(SubclassedList, ARefusedDividerDoesNotMove) {
    subclass.AttachMessage(list);
    const int before = header().sectionSize(0);
    EXPECT_EQ(widthAfterDragging(0, 40), before);
    EXPECT_EQ(hook.last.item, 0);
}

TEST_F(SubclassedList, ARefusedDividerDoesNotMoveByADoubleClick) {
    subclass.AttachMessage(list);
    header().resizeSection(0, 90);
    mouse(QEvent::MouseButtonDblClick, divider(0), Qt::LeftButton, Qt::LeftButton);
    EXPECT_EQ(header().sectionSize(0), 90);
}

TEST_F(SubclassedList, ARefusedDividerShowsNoResizeCursor) {
    mouse(QEvent::MouseMove, divider(0), Qt::NoButton, Qt::NoButton);
    EXPECT_EQ(header().cursor().shape(), Qt::SplitHCursor);
    mouse(QEvent::MouseMove, header().rect().center(), Qt::NoButton, Qt::NoButton);
    subclass.AttachMessage(list);
    mouse(QEvent::MouseMove, divider(0), Qt::NoButton, Qt::NoButton);
    EXPECT_NE(header().cursor().shape(), Qt::SplitHCursor);
    mouse(QEvent::MouseMove, divider(1), Qt::NoButton, Qt::NoButton);
    EXPECT_EQ(header().cursor().shape(), Qt::SplitHCursor);
}

TEST_F(SubclassedList, AnAllowedDividerMovesAndChangesTheStatedWidth) {
    subclass.AttachMessage(list);
    const int before = header().sectionSize(1);
    EXPECT_EQ(widthAfterDragging(1, 40), before + 40);
    EXPECT_EQ(hook.last.item, 1);
    EXPECT_EQ(list.ColumnHeaders().Item(2).Width.value, (before + 40) * 15);
    EXPECT_EQ(list.ColumnHeaders().Item(1).Width.value, 70);
}

TEST_F(SubclassedList, AColumnSizedByTheUserKeepsItsSizeWhenRowsCome) {
    const int sized = widthAfterDragging(1, -60);
    list.ListItems().Clear();
    fill(5);
    EXPECT_EQ(header().sectionSize(1), sized);
}

TEST_F(SubclassedList, TheRecordNamesHeaderCodeItemAndButton) {
    subclass.AttachMessage(list);
    widthAfterDragging(2, 10);
    EXPECT_EQ(hook.window, handleOf(list));
    EXPECT_EQ(hook.last.hwndFrom, static_cast<std::uint32_t>(handleOf(header())));
    EXPECT_EQ(hook.last.idFrom, 0U);
    EXPECT_EQ(hook.last.code, HDN_BEGINTRACKW);
    EXPECT_EQ(hook.last.item, 2);
    EXPECT_EQ(hook.last.button, 0);
}

TEST_F(SubclassedList, AHookThatDoesNotTakeTheMessageRefusesNothing) {
    hook.response = kMsgBeforeDefault;
    subclass.AttachMessage(list);
    const int before = header().sectionSize(0);
    EXPECT_EQ(widthAfterDragging(0, 40), before + 40);
}

TEST_F(SubclassedList, ADetachedListAsksNobody) {
    subclass.AttachMessage(list);
    subclass.DetachMessage(list);
    const int before = header().sectionSize(0);
    EXPECT_EQ(widthAfterDragging(0, 40), before + 40);
    EXPECT_TRUE(hook.messages.empty());
}

TEST(SubclassedStrip, IsToldOfEachNewSize) {
    FirstColumnIsFixed hook;
    TabStrip strip;
    Subclass subclass(hook);
    subclass.AttachMessage(strip);
    strip.resize(300, 200);
    strip.show();
    hook.messages.clear();
    strip.resize(320, 240);
    EXPECT_THAT(hook.messages, testing::ElementsAre(WM_SIZE));
    EXPECT_EQ(hook.window, handleOf(strip));
    EXPECT_EQ(hook.size, (240 << 16) | 320);
}

TEST(SubclassedStrip, IsToldOnceThoughAttachedTwiceAndNotOnceDetached) {
    FirstColumnIsFixed hook;
    TabStrip strip;
    strip.show();
    Subclass subclass(hook);
    subclass.AttachMessage(strip);
    subclass.AttachMessage(strip);
    strip.resize(320, 240);
    EXPECT_EQ(hook.messages.size(), 1U);
    subclass.DetachMessage(strip);
    strip.resize(330, 240);
    EXPECT_EQ(hook.messages.size(), 1U);
}

TEST(SubclassedStrip, IsLeftAloneOnceTheComponentIsGone) {
    FirstColumnIsFixed hook;
    TabStrip strip;
    strip.show();
    {
        Subclass subclass(hook);
        subclass.AttachMessage(strip);
    }
    strip.resize(320, 240);
    EXPECT_TRUE(hook.messages.empty());
}

TEST(SubclassedStrip, MayGoBeforeTheComponent) {
    FirstColumnIsFixed hook;
    Subclass subclass(hook);
    auto strip = std::make_unique<TabStrip>();
    auto list = std::make_unique<ListView>();
    subclass.AttachMessage(*strip);
    subclass.AttachMessage(*list);
    strip.reset();
    list.reset();
    EXPECT_TRUE(hook.messages.empty());
}

} // namespace
} // namespace forms
