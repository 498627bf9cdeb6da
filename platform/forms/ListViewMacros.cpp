// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/forms/ListViewMacros.h"

namespace forms {
namespace {

// Wider than the bits of the state image: kept as the program always asked.
constexpr std::uint32_t kCheckMask = 0xFFFFF000;
constexpr std::uint32_t kAllBits = 0xFFFFFFFF;

} // namespace

std::uint32_t ListView_SetExtendedListViewStyleEx(ListView& list, std::uint32_t mask, std::uint32_t style) {
    return static_cast<std::uint32_t>(list.sendMessage(
        LVM_SETEXTENDEDLISTVIEWSTYLE, static_cast<std::intptr_t>(mask), static_cast<std::intptr_t>(style)));
}

bool ListView_GetCheckState(ListView& list, int item) {
    const auto state = static_cast<std::uint32_t>(
        list.sendMessage(LVM_GETITEMSTATE, item, static_cast<std::intptr_t>(kCheckMask)));
    return state / kUncheckedState != 1;
}

void ListView_SetCheckState(ListView& list, int item, bool isChecked) {
    const ListItemState change{isChecked ? kCheckedState : kUncheckedState, kCheckMask};
    list.sendMessage(LVM_SETITEMSTATE, item, reinterpret_cast<std::intptr_t>(&change));
}

void selectFullRows(ListView& list) {
    ListView_SetExtendedListViewStyleEx(list, LVS_EX_FULLROWSELECT, kAllBits);
}

} // namespace forms
