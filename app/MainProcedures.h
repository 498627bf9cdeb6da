// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The procedures of the main window that its parts call of each other. frmMain implements it by handing each
// call to the part that has it, so that no part knows another one.

#include <string_view>

namespace app {

class MainProcedures {
public:
    virtual ~MainProcedures() = default;

    virtual void InitData() = 0;
    virtual bool InitConnection() = 0;
    virtual void LoadList() = 0;
    virtual void ChangeItem() = 0;
    virtual void UpdateButtonStates() = 0;
    virtual void mTimer_ThatTime() = 0;
    virtual void ab_ToolClick(std::string_view toolName) = 0;

    // Shows the window and brings it to the front; error 401 while a modal window is up.
    virtual void showWindow() = 0;
    virtual void hideWindow() = 0;
    // Puts the player control into the status band's tool again.
    virtual void dockPlayer() = 0;
    // Re-runs the layout of tab strip and list.
    virtual void layOut() = 0;
    // Closes an open modal dialog with Cancel; false when none is up. The procedure that waits for it goes on
    // when the caller has returned to the event loop.
    virtual bool answerModalDialog() = 0;
    // Unloads the window from code: it cannot be refused.
    virtual void unload() = 0;
};

} // namespace app
