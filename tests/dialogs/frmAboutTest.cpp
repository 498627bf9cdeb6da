// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "dialogs/frmAbout.h"

#include "resources/ProductData.h"
#include "resources/StringTable.h"
#include "tests/dialogs/AboutWorld.h"

#include <QLabel>
#include <QPushButton>
#include <QTest>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace dialogs {
namespace {

class frmAboutTest : public testing::Test {
protected:
    void TearDown() override { resources::setLanguage(resources::Language::English); }

    frmAbout& load(resources::Language language = resources::Language::English) {
        resources::setLanguage(language);
        form = std::make_unique<frmAbout>(world.errorHandler, world.systemInformation());
        form->show();
        EXPECT_TRUE(QTest::qWaitForWindowActive(form.get()));
        return *form;
    }
    std::string text(const char* name) const { return label(name)->text().toStdString(); }
    QLabel* label(const char* name) const { return form->findChild<QLabel*>(QString::fromLatin1(name)); }
    QPushButton* button(const char* name) const {
        return form->findChild<QPushButton*>(QString::fromLatin1(name));
    }
    std::string numbers() const { return std::string(resources::kVersion); }

    AboutWorld world;
    std::unique_ptr<frmAbout> form;
};

TEST_F(frmAboutTest, SaysWhatTheProgramIsInEnglish) {
    load();
    EXPECT_EQ(form->windowTitle().toStdString(), "About Quillamar Client");
    EXPECT_EQ(text("lblTitle"), "Quillamar Client");
    EXPECT_EQ(text("lblVersion"), "Version  " + numbers()); // two blanks
    EXPECT_EQ(text("lblDescription"), resources::LoadLocalString(124));
    EXPECT_EQ(text("lblDisclaimer"), resources::LoadLocalString(127));
    EXPECT_EQ(button("cmdOK")->text().toStdString(), "OK");
    EXPECT_EQ(button("cmdSysInfo")->text().toStdString(), "&System Info...");
}

TEST_F(frmAboutTest, SaysWhatTheProgramIsInGerman) {
    load(resources::Language::German);
    EXPECT_EQ(form->windowTitle().toStdString(), "Über Quillamar Client");
    EXPECT_EQ(text("lblVersion"), "Version " + numbers()); // one blank
    EXPECT_EQ(text("lblDisclaimer"), resources::LoadLocalString(127));
    EXPECT_EQ(button("cmdSysInfo")->text().toStdString(), "&System Info...");
}

TEST_F(frmAboutTest, TheVersionHasThreeNumbers) {
    load();
    EXPECT_THAT(text("lblVersion"), testing::MatchesRegex("Version  [0-9]+\\.[0-9]+\\.[0-9]+"));
}

TEST_F(frmAboutTest, NoTextIsMarkup) {
    load();
    for (const QLabel* label : form->findChildren<QLabel*>())
        EXPECT_EQ(label->textFormat(), Qt::PlainText) << qPrintable(label->objectName());
}

TEST_F(frmAboutTest, ShowsTheLogo) {
    load();
    EXPECT_FALSE(label("Picture1")->pixmap().isNull());
}

TEST_F(frmAboutTest, OkClosesIt) {
    load();
    QTest::mouseClick(button("cmdOK"), Qt::LeftButton);
    EXPECT_FALSE(form->isVisible());
}

TEST_F(frmAboutTest, ReturnAndEscapeCloseIt) {
    load();
    QTest::keyClick(form->focusWidget(), Qt::Key_Return);
    EXPECT_FALSE(form->isVisible());
    load();
    QTest::keyClick(form.get(), Qt::Key_Escape);
    EXPECT_FALSE(form->isVisible());
}

TEST_F(frmAboutTest, SystemInfoStartsTheProgramAndTheBoxStays) {
    world.putMachine(std::string(AboutWorld::kMsInfo) + "\"PATH\"=\"/usr/bin/info\"\n");
    load();
    QTest::mouseClick(button("cmdSysInfo"), Qt::LeftButton);
    EXPECT_EQ(world.started, std::vector<std::string>{"/usr/bin/info"});
    EXPECT_TRUE(form->isVisible());
}

TEST_F(frmAboutTest, ReturnPressesTheButtonThatHasTheFocus) {
    load();
    button("cmdSysInfo")->setFocus();
    QTest::keyClick(form->focusWidget(), Qt::Key_Return);
    EXPECT_EQ(world.messageBoxes.boxes.size(), 1U);
    EXPECT_TRUE(form->isVisible());
}

TEST_F(frmAboutTest, SystemInfoIsReachedByItsAccessKey) {
    load();
    QTest::keyClick(form.get(), Qt::Key_S, Qt::AltModifier);
    EXPECT_TRUE(
        QTest::qWaitFor([&] { return world.messageBoxes.boxes.size() == 1; })); // shows the press first
    EXPECT_TRUE(form->isVisible());
}

} // namespace
} // namespace dialogs
