// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "errors/frmError.h"

#include "platform/forms/Text.h"
#include "resources/StringTable.h"

#include <QAccessible>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QTest>
#include <QTimer>

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <set>
#include <stdexcept>

namespace errors {
namespace {

using resources::Language;

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

class frmErrorTest : public ::testing::Test {
protected:
    void TearDown() override { resources::setLanguage(Language::English); }

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

TEST_F(frmErrorTest, AFreshRunOpensCollapsed) {
    const auto dialog = make();
    show(*dialog, [&] {
        EXPECT_EQ(dialog->Height().value, 2460);
        EXPECT_GE(dialog->height(), 164);
        EXPECT_FALSE(control<QPlainTextEdit>(*dialog, "txtError")->isVisible());
        EXPECT_EQ(caption(*dialog, "cmdDetails"), "Details >>");
        dialog->close();
    });
}

TEST_F(frmErrorTest, DetailsExpandAndTheNextFailureOpensExpanded) {
    const auto dialog = make();
    show(*dialog, [&] {
        click(*dialog, "cmdDetails");
        EXPECT_EQ(dialog->Height().value, 4965);
        EXPECT_GE(dialog->height(), 331);
        EXPECT_TRUE(control<QPlainTextEdit>(*dialog, "txtError")->isVisible());
        EXPECT_EQ(caption(*dialog, "cmdDetails"), "Details <<");
        click(*dialog, "cmdIgnore");
    });
    fail(*dialog, "another one");
    show(*dialog, [&] {
        EXPECT_EQ(dialog->Height().value, 4965);
        dialog->close();
    });
}

TEST_F(frmErrorTest, TheStateOfTheDetailsOutlivesTheDialog) {
    {
        const auto dialog = make();
        show(*dialog, [&] {
            click(*dialog, "cmdDetails");
            dialog->close();
        });
    }
    EXPECT_EQ(make()->Height(), frmError::kExpandedHeight);
}

TEST_F(frmErrorTest, CollapsingAgainForgetsTheFlagAndTheRoom) {
    const auto dialog = make();
    show(*dialog, [&] {
        const int before = dialog->height();
        click(*dialog, "cmdDetails");
        click(*dialog, "cmdDetails");
        EXPECT_EQ(dialog->Height().value, 2460);
        EXPECT_EQ(dialog->height(), before);
        EXPECT_EQ(caption(*dialog, "cmdDetails"), "Details >>");
        dialog->close();
    });
    EXPECT_FALSE(m_state.detailsExpanded);
}

TEST_F(frmErrorTest, FieldsTellProgramVersionSystemAndPlace) {
    const auto dialog = make();
    EXPECT_EQ(text(*dialog, "txtComponent"), "Quillamar Client (qmClient)");
    EXPECT_EQ(text(*dialog, "txtVersion"), "1.0.747");
    EXPECT_EQ(text(*dialog, "txtOS"), "WinXP Build:2600 ");
    EXPECT_EQ(text(*dialog, "txtModule"), "frmMain - LoadList");
    EXPECT_EQ(control<QPlainTextEdit>(*dialog, "txtError")->toPlainText(),
              QStringLiteral("Overflow\nErrNumber: 6\nErrLine: 120"));
    EXPECT_EQ(dialog->windowTitle(), QStringLiteral("Quillamar Client"));
}

TEST_F(frmErrorTest, FactsOfThisProgramNameItAndItsVersion) {
    const ProgramFacts facts = programFacts("/usr/bin/qmClient");
    EXPECT_EQ(facts.component, "Quillamar Client (qmClient)");
    EXPECT_EQ(std::count(facts.version.begin(), facts.version.end(), '.'), 2);
    EXPECT_EQ(GetWinVer(facts.getVersionEx).substr(0, 7), " Build:");
}

TEST_F(frmErrorTest, MarkupInADescriptionIsShownAsItIs) {
    const auto dialog = make();
    fail(*dialog, "<b>bold</b> &amp;");
    EXPECT_TRUE(control<QPlainTextEdit>(*dialog, "txtError")
                    ->toPlainText()
                    .startsWith(QStringLiteral("<b>bold</b> &amp;\n")));
}

TEST_F(frmErrorTest, CaptionsComeFromTheTableInBothLanguages) {
    const auto english = make();
    EXPECT_EQ(label(*english, "lblComponent"), "Component:");
    EXPECT_EQ(label(*english, "lblModule"), "Module, Function:");
    EXPECT_EQ(label(*english, "lblError"), "Error-Description:");
    EXPECT_EQ(caption(*english, "cmdRetry"), "Try again");
    EXPECT_EQ(label(*english, "lblMain").substr(0, 25), "An error has occured duri");
    resources::setLanguage(Language::German);
    const auto german = make();
    EXPECT_EQ(label(*german, "lblComponent"), "Komponente:");
    EXPECT_EQ(label(*german, "lblVersion"), "Version:");
    EXPECT_EQ(label(*german, "lblModule"), "Modul, Funktion:");
    EXPECT_EQ(label(*german, "lblOS"), "Betriebssystem:");
    EXPECT_EQ(label(*german, "lblError"), "Fehler-Beschreibung: ");
    EXPECT_EQ(caption(*german, "cmdIgnore"), "Ignorieren");
    EXPECT_EQ(caption(*german, "cmdRetry"), "Wiederholen");
    EXPECT_EQ(caption(*german, "cmdCancel"), "Abbrechen");
    EXPECT_EQ(caption(*german, "cmdSend"), "Senden");
}

TEST_F(frmErrorTest, EverythingFitsInBothLanguages) {
    for (const Language language : {Language::English, Language::German}) {
        resources::setLanguage(language);
        m_state.detailsExpanded = true;
        RecordingSender sender;
        const auto dialog = make(&sender);
        show(*dialog, [&] {
            const auto* explanation = control<QLabel>(*dialog, "lblMain");
            EXPECT_GE(explanation->height(), explanation->heightForWidth(explanation->width()));
            for (const auto* part : dialog->findChildren<QPushButton*>())
                EXPECT_GE(part->width(), part->sizeHint().width()) << forms::fromQString(part->text());
            for (const auto* part :
                 control<QWidget>(*dialog, "txtError")->parentWidget()->findChildren<QLabel*>())
                EXPECT_GE(part->width(), part->sizeHint().width()) << forms::fromQString(part->text());
            dialog->close();
        });
    }
}

TEST_F(frmErrorTest, ALongDescriptionScrollsInsteadOfGrowingTheWindow) {
    m_state.detailsExpanded = true;
    const auto dialog = make();
    int usual = 0;
    show(*dialog, [&] {
        usual = dialog->height();
        dialog->close();
    });
    std::string description;
    for (int line = 0; line < 500; ++line)
        description += "line " + std::to_string(line) + "\r\n";
    fail(*dialog, description);
    show(*dialog, [&] {
        EXPECT_EQ(dialog->height(), usual);
        const auto* bar = control<QPlainTextEdit>(*dialog, "txtError")->verticalScrollBar();
        EXPECT_GT(bar->maximum(), 0);
        EXPECT_EQ(bar->value(), 0);
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
