// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// What the tests of the settings stand on: a registry in a folder of their own, message boxes that are
// recorded, and an error handler that gives prepared answers (Abort when none is left).

#include "data/basRegistry.h"
#include "errors/ErrorHandler.h"
#include "platform/forms/MessageBoxes.h"
#include "tests/platform/registry/RegistryFolder.h"

#include <deque>
#include <functional>
#include <string>
#include <vector>

namespace data {

class RecordedBoxes final : public forms::MessageBoxes {
public:
    struct Box {
        std::string text;
        std::int32_t style;
        std::string title;
        bool operator==(const Box&) const = default;
    };

    forms::MessageBoxResult show(const QString& text, std::int32_t style, const QString& title) override {
        boxes.push_back({text.toStdString(), style, title.toStdString()});
        if (onShow)
            onShow();
        return answer;
    }

    forms::MessageBoxResult answer = forms::MessageBoxResult::Ok;
    std::function<void()> onShow;
    std::vector<Box> boxes;
};

class PreparedAnswers final : public errors::ErrorHandler {
public:
    struct Report {
        std::string module;
        std::string procedure;
        std::int32_t number;
        std::string description;
    };

    errors::ErrorAction ReportError(std::string_view module, std::string_view procedure, std::int32_t number,
                                    std::string_view description, std::int32_t) override {
        reports.push_back({std::string(module), std::string(procedure), number, std::string(description)});
        if (onReport)
            onReport();
        if (answers.empty())
            return errors::ErrorAction::Abort;
        const errors::ErrorAction answer = answers.front();
        answers.pop_front();
        return answer;
    }

    std::deque<errors::ErrorAction> answers;
    std::function<void()> onReport;
    std::vector<Report> reports;
};

struct SettingsWorld {
    registry::RegistryFolder folder;
    registry::SystemCalls calls;
    registry::Registry registry{folder.paths(), calls};
    RecordedBoxes boxes;
    PreparedAnswers errors;
    basRegistry values{registry, boxes};

    void putUser(const std::string& lines) const { folder.put(folder.userFile(), folder.settings(lines)); }
    void putMachine(const std::string& lines) const {
        folder.put(folder.machineFile(), folder.settings(lines));
    }
};

} // namespace data
