// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/forms/ToolkitTexts.h"

#include <QCoreApplication>
#include <QLibraryInfo>

namespace forms {

ToolkitTexts::ToolkitTexts(const QString& language) {
    const QString folder = QLibraryInfo::path(QLibraryInfo::TranslationsPath);
    if (!language.isEmpty() && m_translator.load(u"qtbase_" + language, folder))
        QCoreApplication::installTranslator(&m_translator);
}

} // namespace forms
