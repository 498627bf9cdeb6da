// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/Application.h"
#include "app/Program.h"
#include "app/SingleInstance.h"
#include "platform/forms/ToolkitTexts.h"
#include "platform/forms/UserLocale.h"
#include "resources/Icons.h"
#include "resources/ProductData.h"
#include "resources/StringTable.h"

#include <QApplication>

namespace {

// Under Wayland no program can place a popup or raise a window; where there is an X server as well, the
// client runs there.
void preferX11() {
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM") && qEnvironmentVariableIsSet("DISPLAY"))
        qputenv("QT_QPA_PLATFORM", "xcb");
}

} // namespace

int main(int argc, char* argv[]) {
    preferX11();
    app::Application application(argc, argv);
    QApplication::setApplicationName(QStringLiteral("qmClient"));
    QApplication::setApplicationVersion(
        QString::fromUtf8(resources::kVersion.data(), resources::kVersion.size()));
    QApplication::setDesktopFileName(QStringLiteral("example.corvantis.qmClient"));
    QApplication::setQuitOnLastWindowClosed(false);
    QApplication::setWindowIcon(resources::programIcon());
    resources::setLanguage(resources::languageOf(forms::userLanguageName()));
    const forms::ToolkitTexts toolkitTexts(
        resources::language() == resources::Language::German ? QStringLiteral("de") : QString());

    app::SingleInstance instance;
    if (!instance.claim())
        return 0;
    app::Program program(application, instance);
    return program.run();
}
