// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/errors/ErrorDialogWorld.h"

#include <stdexcept>
#include <vector>

namespace errors {
namespace {

class RecordingSender final : public ReportSender {
public:
    void send(const ReportFields& fields, QWidget& over) override {
        sent.push_back(fields);
        window = &over;
        if (breaks)
            throw std::runtime_error("no mail program");
    }
    std::vector<ReportFields> sent;
    QWidget* window = nullptr;
    bool breaks = false;
};

TEST_F(frmErrorTest, EachAnswerButtonHidesTheDialogWithItsLetter) {
    const auto dialog = make();
    for (const auto& [name, letter] : {std::pair{"cmdIgnore", "I"}, {"cmdRetry", "R"}, {"cmdCancel", "A"}}) {
        dialog->Init();
        show(*dialog, [&, name = name] { click(*dialog, name); });
        EXPECT_EQ(dialog->answer(), letter);
        EXPECT_FALSE(dialog->isVisible());
    }
}

TEST_F(frmErrorTest, IsModalWhileItIsUp) {
    const auto dialog = make();
    show(*dialog, [&] {
        EXPECT_EQ(QApplication::activeModalWidget(), dialog.get());
        click(*dialog, "cmdCancel");
    });
}

TEST_F(frmErrorTest, ClosedByItsFrameItHasNoAnswerEvenAfterAnIgnore) {
    const auto dialog = make();
    show(*dialog, [&] { click(*dialog, "cmdIgnore"); });
    ASSERT_EQ(dialog->answer(), "I");
    dialog->Init();
    show(*dialog, [&] { dialog->close(); });
    EXPECT_EQ(dialog->answer(), "");
}

TEST_F(frmErrorTest, SendIsOfferedOnlyWhereMailCanBeSent) {
    EXPECT_TRUE(button(*make(), "cmdSend")->isHidden());
    RecordingSender sender;
    EXPECT_FALSE(button(*make(&sender), "cmdSend")->isHidden());
}

TEST_F(frmErrorTest, SendHandsOverTheFieldsAndTheDialogStaysOpen) {
    RecordingSender sender;
    const auto dialog = make(&sender);
    show(*dialog, [&] {
        click(*dialog, "cmdSend");
        sender.breaks = true;
        click(*dialog, "cmdSend");
        EXPECT_TRUE(dialog->isVisible());
        click(*dialog, "cmdRetry");
    });
    ASSERT_EQ(sender.sent.size(), 2U);
    EXPECT_EQ(sender.window, dialog.get());
    EXPECT_EQ(sender.sent[0].component, QStringLiteral("Quillamar Client (qmClient)"));
    EXPECT_EQ(sender.sent[0].version, QStringLiteral("1.0.747"));
    EXPECT_EQ(sender.sent[0].module, QStringLiteral("frmMain - LoadList"));
    EXPECT_EQ(sender.sent[0].operatingSystem, QStringLiteral("WinXP Build:2600 "));
    EXPECT_EQ(sender.sent[0].error, QStringLiteral("Overflow\r\nErrNumber: 6\r\nErrLine: 120"));
    EXPECT_EQ(dialog->answer(), "R");
}

} // namespace
} // namespace errors
