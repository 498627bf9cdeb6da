// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/forms/QtMessageBoxes.h"

#include "tests/platform/basic/ErrorOf.h"

#include <QApplication>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <QWindow>

#include <gtest/gtest.h>

#include <functional>
#include <memory>

namespace forms {
namespace {

class QtMessageBoxesTest : public testing::Test {
protected:
    // Shows a box and lets `user` act as soon as the box's own event loop turns.
    MessageBoxResult show(std::int32_t style, const std::function<void(QMessageBox&)>& user,
                          const QString& title = {}, const QString& text = QStringLiteral("text")) {
        QTimer::singleShot(0, &boxes_, [&user] {
            auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            ASSERT_NE(box, nullptr);
            user(*box);
            box->close();
        });
        return boxes.show(text, style, title);
    }
    static void press(QMessageBox& box, const QString& caption) {
        for (QAbstractButton* button : box.buttons()) {
            if (button->text() == caption)
                QTest::mouseClick(button, Qt::LeftButton);
        }
    }

    QObject boxes_;
    QtMessageBoxes boxes{
        {QStringLiteral("OK"), QStringLiteral("Abbrechen"), QStringLiteral("Ja"), QStringLiteral("Nein")},
        QStringLiteral("Quillamar Client")};
};

TEST_F(QtMessageBoxesTest, EveryButtonHasItsAnswer) {
    EXPECT_EQ(show(kOkCancel, [](auto& box) { press(box, QStringLiteral("OK")); }), MessageBoxResult::Ok);
    EXPECT_EQ(show(kOkCancel, [](auto& box) { press(box, QStringLiteral("Abbrechen")); }),
              MessageBoxResult::Cancel);
    EXPECT_EQ(show(kYesNoCancel, [](auto& box) { press(box, QStringLiteral("Ja")); }), MessageBoxResult::Yes);
    EXPECT_EQ(show(kYesNoCancel, [](auto& box) { press(box, QStringLiteral("Nein")); }),
              MessageBoxResult::No);
}

TEST_F(QtMessageBoxesTest, ClosingTheFrameIsCancelOrTheOnlyButton) {
    EXPECT_EQ(show(kOkCancel, [](auto& box) { box.close(); }), MessageBoxResult::Cancel);
    EXPECT_EQ(show(kYesNoCancel, [](auto& box) { box.close(); }), MessageBoxResult::Cancel);
    EXPECT_EQ(show(kOkOnly, [](auto& box) { box.close(); }), MessageBoxResult::Ok);
}

TEST_F(QtMessageBoxesTest, TheDefaultButtonIsTheFirstOrTheOneAskedFor) {
    QString first;
    QString second;
    show(kOkCancel, [&](auto& box) { first = box.defaultButton()->text(); });
    show(kOkCancel | kQuestion | kDefaultButton2, [&](auto& box) { second = box.defaultButton()->text(); });
    EXPECT_EQ(first, QStringLiteral("OK"));
    EXPECT_EQ(second, QStringLiteral("Abbrechen"));
}

TEST_F(QtMessageBoxesTest, TheReturnKeyIsTheDefaultButton) {
    EXPECT_EQ(show(kOkCancel | kDefaultButton2, [](auto& box) { QTest::keyClick(&box, Qt::Key_Return); }),
              MessageBoxResult::Cancel);
    EXPECT_EQ(show(kOkCancel, [](auto& box) { QTest::keyClick(&box, Qt::Key_Return); }),
              MessageBoxResult::Ok);
}

TEST_F(QtMessageBoxesTest, IconsFollowTheStyle) {
    const auto icon = [this](std::int32_t style) {
        QMessageBox::Icon shown{};
        show(style, [&](auto& box) { shown = box.icon(); });
        return shown;
    };
    EXPECT_EQ(icon(kOkOnly), QMessageBox::NoIcon);
    EXPECT_EQ(icon(kOkOnly | kQuestion), QMessageBox::Question);
    EXPECT_EQ(icon(kOkOnly | kExclamation), QMessageBox::Warning);
    EXPECT_EQ(icon(kOkOnly | kInformation), QMessageBox::Information);
}

TEST_F(QtMessageBoxesTest, AnEmptyTitleIsTheProgramsTitle) {
    QString ours;
    QString own;
    show(kOkOnly, [&](auto& box) { ours = box.windowTitle(); });
    show(
        kOkOnly, [&](auto& box) { own = box.windowTitle(); }, QStringLiteral("Delete All Items"));
    EXPECT_EQ(ours, QStringLiteral("Quillamar Client"));
    EXPECT_EQ(own, QStringLiteral("Delete All Items"));
}

TEST_F(QtMessageBoxesTest, MarkupIsText) {
    Qt::TextFormat format{};
    show(
        kOkOnly, [&](auto& box) { format = box.textFormat(); }, {}, QStringLiteral("<b>x</b>"));
    EXPECT_EQ(format, Qt::PlainText);
}

TEST_F(QtMessageBoxesTest, TheBoxStandsOverTheActiveWindowAndOutlivesIt) {
    auto window = std::make_unique<QWidget>();
    window->show();
    QApplication::setActiveWindow(window.get());
    const MessageBoxResult answer = show(kOkCancel, [&](auto& box) {
        ASSERT_EQ(box.parentWidget(), nullptr);
        EXPECT_EQ(box.windowHandle()->transientParent(), window->windowHandle());
        window.reset();
        EXPECT_TRUE(box.isVisible());
        press(box, QStringLiteral("OK"));
    });
    EXPECT_EQ(answer, MessageBoxResult::Ok);
}

TEST_F(QtMessageBoxesTest, AnUnknownStyleIsRefused) {
    EXPECT_EQ(basic::errorOf([&] { boxes.show({}, 2, {}); }), basic::kInvalidProcedureCall);
    EXPECT_EQ(basic::errorOf([&] { boxes.show({}, kOkOnly | 0x80, {}); }), basic::kInvalidProcedureCall);
}

} // namespace
} // namespace forms
