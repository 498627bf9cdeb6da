// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
// Any bytes as a notification record, in both layouts: none may be read beyond its end, and what is read
// keeps to the capacities of its fields.

#include "platform/shell/NotifyIconRecord.h"

#include <cstdlib>

namespace {

void check(const std::optional<shell::NotifyIconRecord>& record) {
    if (!record)
        return;
    if (record->tip && record->tip->size() > shell::kTipCapacity)
        std::abort();
    if (record->balloon && (record->balloon->text.size() > shell::kInfoCapacity ||
                            record->balloon->title.size() > shell::kInfoTitleCapacity))
        std::abort();
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const auto record = std::as_bytes(std::span(data, size));
    check(shell::readNotifyIconA(record));
    check(shell::readNotifyIconW(record));
    return 0;
}
