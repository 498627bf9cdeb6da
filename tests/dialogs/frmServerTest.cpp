// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "dialogs/frmServer.h"

#include "platform/forms/WindowHandle.h"
#include "resources/StringTable.h"
#include "tests/dialogs/ServerWorld.h"

#include <QDialog>
#include <QGuiApplication>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>

#include <gmock/gmock.h>

namespace dialogs {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class frmServerTest : public testing::Test {
protected:
    frmServerTest() {
        resources::setLanguage(resources::Language::English);
        m_form.emplace(m_world.services());
        m_form->show();
    }
    ~frmServerTest() override {
        resources::setLanguage(resources::Language::English);
        EXPECT_THAT(m_world.errorHandler.reports, IsEmpty());
    }

    void type(const QString& name) {
        m_form->txtServer().clear();
        QTest::keyClicks(&m_form->txtServer(), name);
    }
    void click(const char* name) {
        QTest::mouseClick(m_form->findChild<QPushButton*>(QString::fromLatin1(name)), Qt::LeftButton);
    }
    QString caption(const char* name) {
        return m_form->findChild<QPushButton*>(QString::fromLatin1(name))->text();
    }

    ServerWorld m_world;
    std::optional<frmServer> m_form;
};

TEST_F(frmServerTest, AcceptsAServerWhoseShareCanBeReached) {
    type(u"srv01"_qs);
    click("OKButton");
    EXPECT_FALSE(m_form->isVisible());
    EXPECT_FALSE(m_form->Cancelled());
    EXPECT_EQ(m_form->txtServer().text(), u"srv01"_qs);
    EXPECT_THAT(m_world.messageBoxes.boxes, IsEmpty());
}

TEST_F(frmServerTest, TellsOfAnUnreachableServerAndStaysOpen) {
    type(u"nowhere"_qs);
    click("OKButton");
    EXPECT_THAT(m_world.messageBoxes.boxes,
                ElementsAre(data::RecordedBoxes::Box{
                    "Unable to connect to Quillamar Server:  '\\\\nowhere\\Quillamar_0$'.", 48, ""}));
    EXPECT_TRUE(m_form->isVisible());
    EXPECT_TRUE(m_form->Cancelled());
    EXPECT_EQ(m_form->txtServer().text(), u"nowhere"_qs);
}

TEST_F(frmServerTest, TellsOfItInGerman) {
    resources::setLanguage(resources::Language::German);
    click("OKButton");
    ASSERT_EQ(m_world.messageBoxes.boxes.size(), 1U);
    EXPECT_EQ(m_world.messageBoxes.boxes[0].text,
              "Fehler beim Verbinden mit dem Quillamar-Server: '\\\\\\Quillamar_0$'.");
}

TEST_F(frmServerTest, CanBeUsedOnAfterAServerThatCannotBeReached) {
    type(u"nowhere"_qs);
    click("OKButton");
    type(u"srv01"_qs);
    click("OKButton");
    EXPECT_FALSE(m_form->isVisible());
    EXPECT_FALSE(m_form->Cancelled());
}

TEST_F(frmServerTest, ShowsANameWithAPlaceholderAsItIs) {
    type(u"a%1b"_qs);
    click("OKButton");
    ASSERT_EQ(m_world.messageBoxes.boxes.size(), 1U);
    EXPECT_EQ(m_world.messageBoxes.boxes[0].text,
              "Unable to connect to Quillamar Server:  '\\\\a%1b\\Quillamar_0$'.");
}

TEST_F(frmServerTest, PassesOverBackslashesInTheName) {
    type(u"\\\\srv01"_qs);
    click("OKButton");
    EXPECT_THAT(m_world.asked, ElementsAre("\\\\srv01\\Quillamar_0$"));
    EXPECT_FALSE(m_form->Cancelled());
}

TEST_F(frmServerTest, PutsAPickedComputerIntoTheField) {
    m_world.shell.displayName = "SERVER1";
    m_world.shell.picked = shell::ItemIdList{"SERVER1", ""};
    click("cmdBrowse");
    EXPECT_EQ(m_form->txtServer().text(), u"\\\\SERVER1"_qs);
    EXPECT_EQ(m_world.shell.asked->hwndOwner, forms::handleOf(*m_form));
    EXPECT_TRUE(m_form->isVisible());
}

TEST_F(frmServerTest, KeepsTheFieldWhenTheBrowserIsCancelled) {
    type(u"typed"_qs);
    click("cmdBrowse");
    EXPECT_TRUE(m_world.shell.asked);
    EXPECT_EQ(m_form->txtServer().text(), u"typed"_qs);
}

TEST_F(frmServerTest, CancelsByButtonByEscapeAndByItsFrame) {
    type(u"srv01"_qs);
    click("OKButton"); // what the next showing must not be taken for
    for (const auto& cancel : std::initializer_list<std::function<void()>>{
             [&] { click("CancelButton"); }, [&] { QTest::keyClick(&*m_form, Qt::Key_Escape); },
             [&] { m_form->close(); }, [&] { m_form->hide(); }}) {
        m_form->show();
        cancel();
        EXPECT_FALSE(m_form->isVisible());
        EXPECT_TRUE(m_form->Cancelled());
    }
    EXPECT_EQ(m_world.asked.size(), 1U);
}

TEST_F(frmServerTest, TakesReturnInTheFieldForOk) {
    type(u"srv01"_qs);
    QTest::keyClick(&m_form->txtServer(), Qt::Key_Return);
    EXPECT_FALSE(m_form->Cancelled());
}

TEST_F(frmServerTest, BeginsInTheFieldWithItsTextSelected) {
    m_form->hide();
    m_form->txtServer().setText(u"srv01"_qs);
    m_form->show();
    EXPECT_EQ(m_form->focusWidget(), &m_form->txtServer());
    EXPECT_EQ(m_form->txtServer().selectedText(), u"srv01"_qs);
}

TEST_F(frmServerTest, AsksOneThingAtATime) {
    m_world.onCheck = [this] { m_form->findChild<QPushButton*>(u"OKButton"_qs)->click(); };
    type(u"srv01"_qs);
    click("OKButton");
    EXPECT_EQ(m_world.asked.size(), 1U);
    EXPECT_FALSE(m_form->Cancelled());
}

TEST_F(frmServerTest, ShowsThatItIsBusyWhileTheServerIsAskedAndNoOtherWindowDoes) {
    const QDialog question;
    m_world.onCheck = [&] {
        EXPECT_EQ(m_form->cursor().shape(), Qt::BusyCursor);
        EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
        EXPECT_EQ(question.cursor().shape(), Qt::ArrowCursor);
    };
    type(u"nowhere"_qs);
    click("OKButton");
    EXPECT_EQ(m_world.asked.size(), 1U);
    EXPECT_EQ(m_form->cursor().shape(), Qt::ArrowCursor);
}

TEST_F(frmServerTest, SaysNothingWhenTheProgramEndsWhileTheServerIsAsked) {
    m_world.onCheck = [this] { m_form->close(); };
    type(u"nowhere"_qs);
    click("OKButton");
    type(u"srv01"_qs);
    click("OKButton");
    EXPECT_THAT(m_world.messageBoxes.boxes, IsEmpty());
    EXPECT_TRUE(m_form->Cancelled());
}

TEST_F(frmServerTest, ShowsTheCaptionsOfTheUsersLanguage) {
    EXPECT_EQ(m_form->windowTitle(), u"Select Quillamar Server"_qs);
    EXPECT_EQ(caption("cmdBrowse"), u"Browse Network"_qs);
    EXPECT_EQ(caption("OKButton"), u"OK"_qs);
    EXPECT_EQ(caption("CancelButton"), u"Cancel"_qs);
    resources::setLanguage(resources::Language::German);
    m_form.emplace(m_world.services());
    EXPECT_EQ(m_form->windowTitle(), u"Quillamar-Server wählen"_qs);
    EXPECT_EQ(caption("cmdBrowse"), u"Netzwerk durchsuchen"_qs);
    EXPECT_EQ(caption("CancelButton"), u"Abbrechen"_qs);
    auto* label = m_form->findChild<QLabel*>(u"Label2"_qs);
    EXPECT_EQ(label->text(), u"Server-Name:"_qs);
    EXPECT_EQ(label->buddy(), &m_form->txtServer());
}

} // namespace
} // namespace dialogs
