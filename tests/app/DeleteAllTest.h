// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The command over mailboxes with calls and messages; what it pauses and stops is written down.

#include "app/DeleteAll.h"
#include "platform/share/LocalFile.h"
#include "tests/app/MainWorld.h"

#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace app {

class DeleteAllTest : public MainWorld {
protected:
    // Two mailboxes with three calls each, the first one's tab selected.
    void loadTwoMailboxes() {
        configure({12, 15});
        mailbox(12).append(3);
        mailbox(15).append(3);
        load();
    }

    void run() { run(common); }
    void run(data::basCommon& connections) {
        errors::Procedure proc{reporter, "frmMain", "ab_ToolClick"};
        DeleteAll({connections, files, messageBoxes, tabStrip(), window->state(), *window,
                   [this] {
                       ++stops;
                       if (onStop)
                           onStop();
                   },
                   [this](std::int32_t milliseconds) {
                       pauses.push_back(milliseconds);
                       if (onPause)
                           onPause();
                   }})(proc);
    }

    static void post(std::function<void()> work) {
        QMetaObject::invokeMethod(qApp, std::move(work), Qt::QueuedConnection);
    }
    std::size_t callsIn(int id) {
        const auto connection = common.GetMBXCon(id, *window->state().config);
        return static_cast<std::size_t>(
            std::get<std::int32_t>(connection->Execute("SELECT COUNT(*) FROM CallLog")->Field(0)));
    }
    std::string place(int id, const std::string& name) {
        return folder.path("share/MBX/" + std::to_string(id) + "/" + name);
    }
    // Somebody who is in the mailbox's database until the answer is destroyed.
    std::unique_ptr<share::File> somebodyIn(int id) {
        auto file = share::LocalFile::open(place(id, "qmLog.ldb"), share::OpenMode::Create);
        EXPECT_TRUE(file->lock(0x10000001, 1, share::LockKind::Exclusive));
        return file;
    }

    data::PreparedAnswers reporter;
    int stops = 0;
    std::function<void()> onStop;
    std::function<void()> onPause;
    std::vector<std::int32_t> pauses;
};

} // namespace app
