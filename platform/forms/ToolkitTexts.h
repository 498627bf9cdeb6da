// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The toolkit's own texts, such as the context menus of text fields, in the program's language while the
// object lives. Without a language, and where the toolkit's translations are not installed, they are English.
// Made after the application object and gone before it; user-interface thread.

#include <QString>
#include <QTranslator>

namespace forms {

class ToolkitTexts {
public:
    // A language's code, such as "de"; empty for English.
    explicit ToolkitTexts(const QString& language);

private:
    QTranslator m_translator; // takes itself out of the application when it goes
};

} // namespace forms
