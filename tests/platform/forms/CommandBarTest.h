// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// A window with a command bar: buttons, a menu bar with one menu, and a context menu.

#include "platform/forms/CommandBar.h"

#include <QMainWindow>
#include <QToolBar>
#include <QToolButton>

#include <gmock/gmock.h>

#include <vector>

namespace forms {

class CommandBarTest : public testing::Test {
protected:
    CommandBarTest() {
        Band& status = ab.AddBand("Status", "Status", BandKind::Toolbar);
        status.AddTool("miSStop", "Tool7").SetPicture(picture());
        status.AddTool("miSPlay", "Play Message").SetPicture(picture());
        status.AddTool("miSProgress", "Tool13");
        status.AddTool("Tool14", "Tool14");
        ab.AddBand("Menu", "Menu", BandKind::MenuBar).AddTool("miFile", "&File").SetSubBand("mnuFile");
        Band& file = ab.AddBand("mnuFile", "File", BandKind::DropDown);
        file.AddTool("miSPlay", "Play &Message");
        file.AddSeparator();
        file.AddTool("miFExit", "&Exit");
        ab.AddBand("mnuPopup", "PopUp", BandKind::ContextMenu).AddTool("miSPlay", "Play");
        window.resize(700, 300);
        window.show();
        QObject::connect(&ab, &CommandBar::ToolClick, [this](Tool& tool) { clicked.push_back(&tool); });
    }
    static QIcon picture() {
        QPixmap pixels(16, 16);
        pixels.fill(Qt::blue);
        return pixels;
    }
    QToolButton& button(Tool& tool) {
        return *qobject_cast<QToolButton*>(ab.Bands("Status").toolBar()->widgetForAction(tool.action()));
    }

    QMainWindow window;
    CommandBar ab{window};
    std::vector<Tool*> clicked;
};

} // namespace forms
