// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/forms/ToolkitTexts.h"

#include <QLineEdit>
#include <QLocale>
#include <QMenu>

#include <gtest/gtest.h>

#include <memory>

namespace forms {
namespace {

// What the context menu of a text field calls copying, without its access key and its keys.
std::string copyEntry() {
    QLineEdit field;
    const std::unique_ptr<QMenu> menu(field.createStandardContextMenu());
    const QAction* copy = menu->actions().at(4);
    return copy->text().section(u'\t', 0, 0).remove(u'&').toStdString();
}

TEST(ToolkitTextsTest, AreGermanWhileTheProgramIs) {
    {
        const ToolkitTexts german(QStringLiteral("de"));
        EXPECT_EQ(copyEntry(), "Kopieren");
    }
    EXPECT_EQ(copyEntry(), "Copy");
}

TEST(ToolkitTextsTest, AreEnglishWithoutALanguageWhateverTheLocale) {
    const QLocale before;
    QLocale::setDefault(QLocale(QStringLiteral("de_DE")));
    const ToolkitTexts english{QString()};
    EXPECT_EQ(copyEntry(), "Copy");
    QLocale::setDefault(before);
}

TEST(ToolkitTextsTest, AreEnglishInALanguageThatIsNotInstalled) {
    const ToolkitTexts unknown(QStringLiteral("xx"));
    EXPECT_EQ(copyEntry(), "Copy");
}

} // namespace
} // namespace forms
