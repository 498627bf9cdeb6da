// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// What the tests of the options dialog stand on: the share of srv01 as a folder of their own with real
// mailbox databases, settings in a registry beside it, and the real search. The error handler and the choice
// of a server give prepared answers.

#include "dialogs/frmOptions.h"
#include "platform/forms/ListView.h"
#include "platform/jet/Engine.h"
#include "platform/registry/Registry.h"
#include "platform/share/LocalFileSystemObject.h"
#include "tests/data/CallLogFile.h"
#include "tests/data/SettingsWorld.h"
#include "tests/dialogs/PreparedServer.h"
#include "tests/errors/RecordingErrorHandler.h"
#include "tests/platform/share/TemporaryFolder.h"

#include <QDialog>

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace dialogs {

// A folder of this machine, with something that happens before every question.
class WatchedFolder final : public share::FileSystemObject {
public:
    WatchedFolder(share::ShareResolver resolver, std::function<void()> before)
        : m_files(std::move(resolver)), m_before(std::move(before)) {}

    bool FileExists(std::string_view path) override { return asked().FileExists(path); }
    bool FolderExists(std::string_view path) override { return asked().FolderExists(path); }
    std::vector<std::string> SubFolders(std::string_view path) override { return asked().SubFolders(path); }
    void DeleteFile(std::string_view pattern, bool force) override { asked().DeleteFile(pattern, force); }
    std::unique_ptr<share::File> openFile(std::string_view path, share::OpenMode mode) override {
        return asked().openFile(path, mode);
    }

private:
    share::FileSystemObject& asked() {
        m_before();
        return m_files;
    }

    share::LocalFileSystemObject m_files;
    std::function<void()> m_before;
};

struct OptionsWorld {
    explicit OptionsWorld(errors::ErrorHandler* other = nullptr)
        : reportTo(other != nullptr ? *other : errorHandler) {
        folder.makeFolder("share/MBX");
        config = std::make_shared<data::clsConfig>(registry, messageBoxes, reportTo);
        config->ServerName = "srv01";
    }

    share::ShareResolver resolver() const {
        return {[path = folder.path("share")](std::string_view server) {
                    return server == "srv01" ? std::optional(path) : std::nullopt;
                },
                [] { return std::string(); }};
    }
    SearchedShare openShare() const {
        return {std::make_unique<WatchedFolder>(resolver(), beforeEachQuestion), endWaits};
    }

    tests::CallLogFile mailboxFile(const std::string& name) const {
        return tests::CallLogFile(folder.path("share/MBX/" + name + "/qmLog.mdb"));
    }
    void mailbox(const std::string& name, const std::string& caption = "Sales",
                 const std::string& description = "first floor") const {
        const tests::CallLogFile file = mailboxFile(name);
        file.create();
        file.describe(caption, description);
    }
    void watch(std::int32_t id) {
        const auto mailbox = std::make_shared<data::clsMailbox>(reportTo);
        mailbox->ID = id;
        mailbox->Name = "watched";
        config->Mailboxes.Add(mailbox, "KEY" + std::to_string(id));
    }

    frmOptions& open() {
        dialog.emplace(reportTo, common, OptionsServices{search, servers}, nullptr);
        dialog->setConfig(config);
        dialog->Init();
        return *dialog;
    }
    // Opened, and the list is there.
    frmOptions& openWithList();

    template <typename Control>
    Control& control(const char* name) {
        return *dialog->findChild<Control*>(QString::fromLatin1(name));
    }
    forms::ListView& list() { return control<forms::ListView>("lsMailboxes"); }
    // The rows, cells joined by "|", and "+" before those that are checked.
    std::vector<std::string> rows();
    std::vector<std::string> savedMailboxes();

    share::testing::TemporaryFolder folder;
    errors::RecordingErrorHandler errorHandler;
    errors::ErrorHandler& reportTo;
    data::RecordedBoxes messageBoxes;
    registry::SystemCalls systemCalls;
    registry::Registry registry{registry::RegistryPaths{folder.path("registry.reg"), {}}, systemCalls};
    share::LocalFileSystemObject files{resolver()};
    jet::Engine engine{files, [](int) {}};
    data::basCommon common{reportTo, files, [this] { return std::make_shared<jet::Connection>(engine); }};
    std::function<void()> beforeEachQuestion = [] {};
    std::function<void()> endWaits;
    PreparedServer servers;
    std::shared_ptr<data::clsConfig> config;
    MailboxSearch search{[this](const std::string&) { return openShare(); }};
    std::optional<frmOptions> dialog;
};

} // namespace dialogs
