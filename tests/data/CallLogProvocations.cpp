// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "data/FillListView2.h"
#include "data/ListToClipBoard.h"
#include "data/basCommon.h"
#include "data/clsConfig.h"
#include "tests/data/SettingsWorld.h"
#include "tests/errors/OutOfMemory.h"
#include "tests/errors/Provocation.h"

#include <map>

namespace data {
namespace {

using errors::Effect;
using errors::Provocation;
using errors::Trial;

// A server without files that notes whether it was asked for one.
class EmptyServer final : public share::FileSystemObject {
public:
    bool FileExists(std::string_view) override {
        wasAsked = true;
        return false;
    }
    bool FolderExists(std::string_view) override { return false; }
    std::vector<std::string> SubFolders(std::string_view) override { return {}; }
    void DeleteFile(std::string_view, bool) override {}
    std::unique_ptr<share::File> openFile(std::string_view, share::OpenMode) override { return nullptr; }

    bool wasAsked = false;
};

const Provocation kGetQMPath{"basCommon", "GetQMPath", basic::kOutOfMemory, [](Trial& trial) -> Effect {
                                 EmptyServer files;
                                 const basCommon common(trial, files, [] { return nullptr; });
                                 const std::string server(100, 's');
                                 const errors::OutOfMemory next(0);
                                 return {!common.GetQMPath(server).empty()};
                             }};

const Provocation kGetMBXCon{"basCommon", "GetMBXCon", basic::kProviderNotFound, [](Trial& trial) -> Effect {
                                 EmptyServer files;
                                 bool isInstalled = false;
                                 bool wasMade = false;
                                 trial.repair = [&] { isInstalled = true; };
                                 const basCommon common(
                                     trial, files, [&]() -> std::shared_ptr<jet::Connection> {
                                         if (!isInstalled)
                                             throw basic::RuntimeError(basic::kProviderNotFound);
                                         wasMade = true;
                                         return nullptr;
                                     });
                                 SettingsWorld world;
                                 const clsConfig config{world.registry, world.boxes, trial};
                                 common.GetMBXCon(7, config);
                                 return {wasMade, files.wasAsked};
                             }};

class Calls final : public jet::RowSource {
public:
    explicit Calls(const std::vector<std::string>& keys)
        : RowSource({{"CallID", 202}, {"MessageLength", 3}}), m_keys(keys) {}

    std::size_t rowCount() const override { return m_keys.size(); }
    basic::Variant value(std::size_t row, std::size_t column) override {
        return column == 0 ? basic::Variant(m_keys[row]) : basic::Variant(std::int32_t{5});
    }

private:
    const std::vector<std::string>& m_keys;
};

bool hasItem(forms::ListView& list, std::string_view key) {
    for (int index = 1; index <= list.ListItems().Count(); ++index)
        if (list.ListItems().Item(index).Key() == key)
            return true;
    return false;
}

const Provocation kFillListView2{"basCommon", "FillListView2", basic::kKeyNotUnique,
                                 [](Trial& trial) -> Effect {
                                     forms::ListView list;
                                     std::vector<std::string> keys{"A", "A", "C"};
                                     trial.repair = [&] { keys[1] = "B"; };
                                     jet::Recordset records(std::make_unique<Calls>(keys));
                                     const basic::DateTimeFormat format;
                                     const FillListView2 fill{trial, format};
                                     fill(list, records, {{"", "", {70}, 0}}, true, {});
                                     return {hasItem(list, "KB"), hasItem(list, "KC")};
                                 }};

class BusyClipboard final : public forms::Clipboard {
public:
    void Clear() override {
        if (isBusy)
            throw basic::RuntimeError(basic::kPermissionDenied);
        isCleared = true;
    }
    void SetText(std::string_view) override { hasText = true; }

    bool isBusy = true;
    bool isCleared = false;
    bool hasText = false;
};

const Provocation kListToClipBoard{"basCommon", "ListToClipBoard", basic::kPermissionDenied,
                                   [](Trial& trial) -> Effect {
                                       forms::ListView list;
                                       BusyClipboard clipboard;
                                       trial.repair = [&] { clipboard.isBusy = false; };
                                       ListToClipBoard(trial, list, clipboard);
                                       return {clipboard.isCleared, clipboard.hasText};
                                   }};

} // namespace
} // namespace data
