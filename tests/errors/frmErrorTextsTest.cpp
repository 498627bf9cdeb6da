// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "resources/ProductData.h"
#include "tests/errors/ErrorDialogWorld.h"

#include <QScrollBar>

#include <vector>

namespace errors {
namespace {

using resources::Language;

class NoSender final : public ReportSender {
public:
    void send(const ReportFields&, QWidget&) override {}
};

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
    EXPECT_EQ(facts.version, resources::kVersion);
    EXPECT_EQ(GetWinVer(facts.getVersionEx).substr(0, 7), " Build:");
}

TEST_F(frmErrorTest, MarkupInADescriptionIsShownAsItIs) {
    const auto dialog = make();
    fail(*dialog, "<b>bold</b> &amp;");
    EXPECT_TRUE(control<QPlainTextEdit>(*dialog, "txtError")
                    ->toPlainText()
                    .startsWith(QStringLiteral("<b>bold</b> &amp;\n")));
}

struct Caption {
    const char* control;
    const char* english;
    const char* german;
};

TEST_F(frmErrorTest, EveryCaptionComesFromTheTableInBothLanguages) {
    const std::vector<Caption> captions{
        {"lblComponent", "Component:", "Komponente:"},
        {"lblVersion", "Version:", "Version:"},
        {"lblModule", "Module, Function:", "Modul, Funktion:"},
        {"lblOS", "OS:", "Betriebssystem:"},
        {"lblError", "Error-Description:", "Fehler-Beschreibung: "},
        {"cmdIgnore", "Ignore", "Ignorieren"},
        {"cmdRetry", "Try again", "Wiederholen"},
        {"cmdCancel", "Cancel", "Abbrechen"},
        {"cmdSend", "Send", "Senden"},
        {"cmdDetails", "Details >>", "Details >>"},
        {"lblMain",
         "An error has occured during execution of a function. Usually the application can continue to run. "
         "You "
         "can stop execution of the current action by pressing 'Cancel' or you can retry. To prevent this "
         "error-message in the future please press send to send us the error-description and some "
         "version-information.",
         nullptr},
    };
    for (const Language language : {Language::English, Language::German}) {
        resources::setLanguage(language);
        const auto dialog = make();
        for (const Caption& caption : captions) {
            const std::string shown = *caption.control == 'c' ? this->caption(*dialog, caption.control)
                                                              : label(*dialog, caption.control);
            const char* wanted = language == Language::English ? caption.english : caption.german;
            EXPECT_TRUE(wanted == nullptr ? shown.find("'Senden'") != std::string::npos : shown == wanted)
                << caption.control << ": " << shown;
        }
    }
}

TEST_F(frmErrorTest, EverythingFitsInBothLanguages) {
    for (const Language language : {Language::English, Language::German}) {
        resources::setLanguage(language);
        m_state.detailsExpanded = true;
        NoSender sender;
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
        auto* error = control<QPlainTextEdit>(*dialog, "txtError");
        error->setFocus();
        QTest::keyClick(error, Qt::Key_End, Qt::ControlModifier);
        EXPECT_GT(bar->value(), 0);
        EXPECT_TRUE(error->viewport()->rect().contains(error->cursorRect()));
        dialog->close();
    });
}

} // namespace
} // namespace errors
