// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/StatusLine.h"

#include "platform/basic/Twips.h"
#include "resources/StringTable.h"

namespace app {
namespace {

constexpr basic::Twips kWidth{4000};

} // namespace

void beginStatusLine(forms::ListView& list) {
    list.ColumnHeaders().Clear();
    list.SetHideColumnHeaders(true);
    list.ColumnHeaders().Add({}, kWidth);
    list.ListItems().Clear();
}

void addStatusLine(forms::ListView& list, std::string_view text) {
    list.ListItems().Add({}, text);
}

void addNotConnectedLine(forms::ListView& list) {
    addStatusLine(list,
                  resources::LoadLocalString(3685, "A connection to the server could not be established."));
}

} // namespace app
