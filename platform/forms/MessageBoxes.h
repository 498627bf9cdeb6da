// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The platform's message box, as an interface so that tests answer it. Texts are plain text, never markup.
// User-interface thread; the call returns when the box is closed, events run meanwhile.

#include <QString>

#include <cstdint>

namespace forms {

// The platform's style numbers; one of the button sets plus one of the icons.
inline constexpr std::int32_t kOkOnly = 0;
inline constexpr std::int32_t kOkCancel = 1;
inline constexpr std::int32_t kYesNoCancel = 3;
inline constexpr std::int32_t kQuestion = 32;
inline constexpr std::int32_t kExclamation = 48;
inline constexpr std::int32_t kInformation = 64;
inline constexpr std::int32_t kDefaultButton2 = 256;

// The platform's answers.
enum class MessageBoxResult : std::int32_t { Ok = 1, Cancel = 2, Yes = 6, No = 7 };

class MessageBoxes {
public:
    virtual ~MessageBoxes() = default;
    // An empty title means the program's title. Closing the box by its frame answers Cancel where there is
    // such a button, otherwise the only button.
    virtual MessageBoxResult show(const QString& text, std::int32_t style, const QString& title) = 0;
};

} // namespace forms
