// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The main window's procedures for the parts that call them: each call is noted, and one of them can be made
// to fail.

#include "app/MainProcedures.h"
#include "platform/basic/RuntimeError.h"

#include <algorithm>
#include <string>
#include <vector>

namespace app {

class ScriptedMain final : public MainProcedures {
public:
    void InitData() override { note("InitData"); }
    bool InitConnection() override {
        note("InitConnection");
        return false;
    }
    void LoadList() override { note("LoadList"); }
    void ChangeItem() override { note("ChangeItem"); }
    void UpdateButtonStates() override { note("UpdateButtonStates"); }
    void mTimer_ThatTime() override { note("mTimer_ThatTime"); }
    void ab_ToolClick(std::string_view toolName) override { note("ab_ToolClick " + std::string(toolName)); }
    void showWindow() override { note("showWindow"); }
    void hideWindow() override { note("hideWindow"); }
    void dockPlayer() override { note("dockPlayer"); }
    void layOut() override { note("layOut"); }
    bool answerModalDialog() override {
        note("answerModalDialog");
        return false;
    }
    void unload() override { note("unload"); }

    bool did(const std::string& call) const {
        return std::find(m_calls.begin(), m_calls.end(), call) != m_calls.end();
    }

    std::string failing; // the call that raises error 5

private:
    void note(const std::string& call) {
        if (call == failing)
            throw basic::RuntimeError(basic::kInvalidProcedureCall);
        m_calls.push_back(call);
    }

    std::vector<std::string> m_calls;
};

} // namespace app
