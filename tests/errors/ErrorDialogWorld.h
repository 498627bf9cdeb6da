// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// What the tests of the error dialog stand on: the dialog with facts of a machine of their own, shown as the
// error handler shows it, and its controls by name.

#include "errors/frmError.h"
#include "platform/forms/Text.h"
#include "resources/StringTable.h"

#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTest>
#include <QTimer>

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <string>
#include <string_view>

namespace errors {

class frmErrorTest : public ::testing::Test {
protected:
    void TearDown() override { resources::setLanguage(resources::Language::English); }

    std::unique_ptr<frmError> make(ReportSender* sender = nullptr) {
        const ProgramFacts facts{"Quillamar Client (qmClient)", "1.0.747", [](VersionRecord& record) {
                                     record.platformId = 2;
                                     record.major = 5;
                                     record.minor = 1;
                                     record.build = 2600;
                                     return true;
                                 }};
        auto dialog = std::make_unique<frmError>(facts, m_state, sender);
        fail(*dialog, "Overflow");
        return dialog;
    }

    static void fail(frmError& dialog, std::string_view description) {
        dialog.setErrorNumber(6);
        dialog.setLineNumber(120);
        dialog.setDescription(description);
        dialog.setProcedureName("LoadList");
        dialog.setModuleName("frmMain");
        dialog.Init();
    }

    // Shows the dialog as the handler does; `act` runs once it has the focus, and has to close it.
    static void show(frmError& dialog, const std::function<void()>& act) {
        QTimer::singleShot(0, &dialog, [&] {
            EXPECT_TRUE(QTest::qWaitForWindowActive(&dialog));
            act();
            EXPECT_FALSE(dialog.isVisible());
            dialog.close();
        });
        dialog.showModal();
    }

    template <typename Control>
    static Control* control(const frmError& dialog, const char* name) {
        auto* found = dialog.findChild<Control*>(QString::fromLatin1(name));
        EXPECT_NE(found, nullptr) << name;
        return found;
    }
    static QPushButton* button(const frmError& dialog, const char* name) {
        return control<QPushButton>(dialog, name);
    }
    static void click(const frmError& dialog, const char* name) {
        QTest::mouseClick(button(dialog, name), Qt::LeftButton);
    }
    static std::string text(const frmError& dialog, const char* name) {
        return forms::fromQString(control<QLineEdit>(dialog, name)->text());
    }
    static std::string caption(const frmError& dialog, const char* name) {
        return forms::fromQString(button(dialog, name)->text());
    }
    static std::string label(const frmError& dialog, const char* name) {
        return forms::fromQString(control<QLabel>(dialog, name)->text());
    }

    ErrorDialogState m_state;
};

} // namespace errors
