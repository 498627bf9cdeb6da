// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// Chooses the server that a test wants; nothing stands for Cancel.

#include "dialogs/ServerSelection.h"

#include <functional>
#include <string>
#include <vector>

namespace dialogs {

class PreparedServer final : public ServerSelection {
public:
    std::optional<QString> select(QWidget*, const QString& current) override {
        shown.push_back(current.toStdString());
        if (onSelect)
            onSelect();
        return answer;
    }

    std::optional<QString> answer;
    std::function<void()> onSelect;
    std::vector<std::string> shown;
};

} // namespace dialogs
