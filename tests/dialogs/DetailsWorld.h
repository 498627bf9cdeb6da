// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// What the tests of the details dialog stand on: a real call log on a share in a folder of their own, a
// connection to it, and the dialog in a locale of the test's choice.

#include "data/basCommon.h"
#include "dialogs/frmCallDetails.h"
#include "platform/jet/Connection.h"
#include "platform/jet/Engine.h"
#include "platform/share/LocalFileSystemObject.h"
#include "tests/data/CallLogFile.h"
#include "tests/data/NotedClipboard.h"
#include "tests/dialogs/ScriptedSelection.h"
#include "tests/platform/share/TemporaryFolder.h"

#include <memory>
#include <string>

namespace dialogs {

class DetailsWorld {
public:
    explicit DetailsWorld(errors::ErrorHandler& reportTo) : errorHandler(reportTo) { log.create(); }

    void open() {
        dialog = std::make_shared<frmCallDetails>(
            CallDetailsServices{errorHandler, clipboard, format, locale}, nullptr);
        dialog->Init(selection);
    }
    std::shared_ptr<jet::Connection> connect() {
        auto connection = std::make_shared<jet::Connection>(engine);
        connection->Open(connectionText());
        return connection;
    }
    std::string connectionText() const {
        return data::connectionString("\\\\srv01\\Quillamar_0$\\qmLog.mdb");
    }
    void announce(const std::string& callID) { selection.announce(connect(), callID); }

    // The control must be there.
    template <typename Control>
    Control& control(const char* name) {
        return *dialog->findChild<Control*>(QString::fromLatin1(name));
    }

    errors::ErrorHandler& errorHandler;
    QLocale locale = QLocale::c();
    share::testing::TemporaryFolder folder;
    tests::CallLogFile log{folder.path("share/qmLog.mdb")};
    share::LocalFileSystemObject files{
        share::ShareResolver([this](std::string_view) { return std::optional(folder.path("share")); },
                             [] { return std::string(); })};
    jet::Engine engine{files, [](int) {}};
    data::NotedClipboard clipboard;
    basic::DateTimeFormat format;
    ScriptedSelection selection;
    std::shared_ptr<frmCallDetails> dialog;
};

} // namespace dialogs
