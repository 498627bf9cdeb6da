// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/errors/ErrorDialogWorld.h"

#include <QAccessible>
#include <QClipboard>

#include <set>
#include <tuple>
#include <vector>

namespace errors {
namespace {

using resources::Language;

TEST_F(frmErrorTest, EscapeLeavesNoAnswer) {
    const auto dialog = make();
    show(*dialog, [&] { QTest::keyClick(dialog.get(), Qt::Key_Escape); });
    EXPECT_EQ(dialog->answer(), "");
    EXPECT_FALSE(dialog->isVisible());
}

TEST_F(frmErrorTest, ReturnAbortsWhereverTheFocusOfTheFailureBeforeWas) {
    const auto dialog = make();
    show(*dialog, [&] {
        button(*dialog, "cmdIgnore")->setFocus();
        click(*dialog, "cmdIgnore");
    });
    dialog->Init();
    show(*dialog, [&] {
        EXPECT_TRUE(button(*dialog, "cmdCancel")->hasFocus());
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    });
    EXPECT_EQ(dialog->answer(), "A");
}

TEST_F(frmErrorTest, ReturnInAFieldAborts) {
    m_state.detailsExpanded = true;
    const auto dialog = make();
    for (const char* name : {"txtModule", "txtError"}) {
        dialog->Init();
        show(*dialog, [&] {
            control<QWidget>(*dialog, name)->setFocus();
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
        });
        EXPECT_EQ(dialog->answer(), "A") << name;
    }
}

TEST_F(frmErrorTest, AccessKeysAreTheFirstLettersOfTheCaptions) {
    const std::vector<std::tuple<Language, Qt::Key, std::string>> keys{
        {Language::English, Qt::Key_I, "I"}, {Language::English, Qt::Key_T, "R"},
        {Language::English, Qt::Key_C, "A"}, {Language::German, Qt::Key_I, "I"},
        {Language::German, Qt::Key_W, "R"},  {Language::German, Qt::Key_A, "A"},
    };
    for (const auto& [language, key, letter] : keys) {
        resources::setLanguage(language);
        const auto dialog = make();
        show(*dialog, [&, key = key] {
            QTest::keyClick(dialog.get(), key, Qt::AltModifier);
            // A button pressed by its key stays down for a moment.
            EXPECT_TRUE(QTest::qWaitFor([&] { return !dialog->isVisible(); }));
        });
        EXPECT_EQ(dialog->answer(), letter);
    }
}

class CountingSender final : public ReportSender {
public:
    void send(const ReportFields&, QWidget&) override { ++sent; }
    int sent = 0;
};

TEST_F(frmErrorTest, AltSSendsInBothLanguages) {
    CountingSender sender;
    for (const Language language : {Language::English, Language::German}) {
        resources::setLanguage(language);
        const auto dialog = make(&sender);
        const int before = sender.sent;
        show(*dialog, [&] {
            QTest::keyClick(dialog.get(), Qt::Key_S, Qt::AltModifier);
            EXPECT_TRUE(QTest::qWaitFor([&] { return sender.sent == before + 1; }));
            EXPECT_TRUE(dialog->isVisible());
            dialog->close();
        });
    }
}

TEST_F(frmErrorTest, AltDTogglesTheDetails) {
    const auto dialog = make();
    show(*dialog, [&] {
        for (const basic::Twips height : {frmError::kExpandedHeight, frmError::kCollapsedHeight}) {
            QTest::keyClick(dialog.get(), Qt::Key_D, Qt::AltModifier);
            EXPECT_TRUE(QTest::qWaitFor([&] { return dialog->Height() == height; }));
        }
        dialog->close();
    });
}

TEST_F(frmErrorTest, ValuesCanBeSelectedAndCopiedButNotEdited) {
    m_state.detailsExpanded = true;
    const auto dialog = make();
    show(*dialog, [&] {
        auto* error = control<QPlainTextEdit>(*dialog, "txtError");
        QTest::keyClicks(error, QStringLiteral("x"));
        EXPECT_FALSE(error->toPlainText().contains(u'x'));
        error->selectAll();
        EXPECT_EQ(error->textCursor().selectedText().left(8), QStringLiteral("Overflow"));
        auto* module = control<QLineEdit>(*dialog, "txtModule");
        EXPECT_TRUE(module->isReadOnly());
        module->selectAll();
        EXPECT_EQ(module->selectedText(), QStringLiteral("frmMain - LoadList"));
        dialog->close();
    });
}

TEST_F(frmErrorTest, TheKeyboardCopiesAValueToTheClipboard) {
    m_state.detailsExpanded = true;
    const auto dialog = make();
    show(*dialog, [&] {
        for (const auto& [name, value] : {std::pair{"txtModule", "frmMain - LoadList"},
                                          {"txtError", "Overflow\nErrNumber: 6\nErrLine: 120"}}) {
            auto* field = control<QWidget>(*dialog, name);
            field->setFocus();
            QTest::keyClick(field, Qt::Key_A, Qt::ControlModifier);
            QTest::keyClick(field, Qt::Key_C, Qt::ControlModifier);
            EXPECT_EQ(forms::fromQString(QApplication::clipboard()->text()), value) << name;
        }
        dialog->close();
    });
}

TEST_F(frmErrorTest, TheMouseSelectsAWord) {
    m_state.detailsExpanded = true;
    const auto dialog = make();
    show(*dialog, [&] {
        auto* error = control<QPlainTextEdit>(*dialog, "txtError");
        const QPoint first = error->cursorRect().center() + QPoint(2, 0);
        QTest::mouseDClick(error->viewport(), Qt::LeftButton, {}, first);
        EXPECT_EQ(error->textCursor().selectedText(), QStringLiteral("Overflow"));
        dialog->close();
    });
}

TEST_F(frmErrorTest, TheKeyboardReachesEveryControl) {
    m_state.detailsExpanded = true;
    const auto dialog = make();
    std::set<std::string> reached;
    show(*dialog, [&] {
        for (int step = 0; step < 20; ++step) {
            reached.insert(forms::fromQString(QApplication::focusWidget()->objectName()));
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        }
        dialog->close();
    });
    EXPECT_EQ(reached,
              (std::set<std::string>{"cmdCancel", "cmdDetails", "cmdIgnore", "cmdRetry", "txtComponent",
                                     "txtError", "txtModule", "txtOS", "txtVersion"}));
}

TEST_F(frmErrorTest, FieldsAreNamedForAssistiveTechnology) {
    const auto dialog = make();
    for (const auto& [name, wanted] :
         {std::pair{"txtComponent", "Component:"}, {"txtOS", "OS:"}, {"txtError", "Error-Description:"}}) {
        QAccessibleInterface* field = QAccessible::queryAccessibleInterface(control<QWidget>(*dialog, name));
        ASSERT_NE(field, nullptr);
        EXPECT_EQ(forms::fromQString(field->text(QAccessible::Name)), wanted);
    }
}

} // namespace
} // namespace errors
