// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// Sources of the network browser whose finds the test tells, and texts that can be told apart.

#include "platform/shell/ComputerSource.h"
#include "platform/shell/NetworkTexts.h"
#include "platform/shell/ShareSource.h"

#include <functional>

namespace shell {

class ScriptedComputers final : public ComputerSource {
    Q_OBJECT
public:
    explicit ScriptedComputers(std::function<void(ScriptedComputers&)> onStart = [](auto&) {})
        : m_onStart(std::move(onStart)) {}
    void start() override {
        isStarted = true;
        m_onStart(*this);
    }
    bool isStarted = false;

private:
    std::function<void(ScriptedComputers&)> m_onStart;
};

class ScriptedShares final : public ShareSource {
    Q_OBJECT
public:
    explicit ScriptedShares(QStringList& asked) : m_asked(asked) {}
    void list(const QString& computer) override { m_asked.append(computer); }

private:
    QStringList& m_asked;
};

inline NetworkTexts scriptedTexts() {
    return {u"Caption"_qs,  u"OK"_qs,      u"Cancel"_qs,  u"Network"_qs,   u"Searching"_qs,
            u"Found %1"_qs, u"Nothing"_qs, u"Loading"_qs, u"No shares"_qs, u"Failed"_qs};
}

} // namespace shell
