// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The platform's call that shows help files, under its own name. User-interface thread.

#include <QString>

#include <cstdint>

class QWidget;

namespace shell {

// The only command in use: display a topic of the file, by its name.
inline constexpr std::uint32_t HH_DISPLAY_TOPIC = 0;

class HelpViewer {
public:
    virtual ~HelpViewer() = default;
    // Answers whether a help window shows the topic. A file that is missing or damaged, a topic that is not
    // in it and any other command show nothing.
    virtual bool HtmlHelpA(QWidget* caller, const QString& file, std::uint32_t command,
                           const QString& topic) = 0;
};

} // namespace shell
