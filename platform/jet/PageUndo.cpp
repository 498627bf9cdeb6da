// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/jet/PageUndo.h"

namespace jet {
namespace {

std::uint64_t offsetOf(PageNumber page) {
    return std::uint64_t{page} * format::page::kSize;
}

} // namespace

PageUndo::PageUndo(share::File& file, const std::vector<PageNumber>& pages) : m_file(file) {
    for (const PageNumber page : pages) {
        auto bytes = std::make_unique<PageBuffer>();
        if (m_file.read(offsetOf(page), *bytes) == bytes->size())
            m_pages.emplace_back(page, std::move(bytes));
    }
}

void PageUndo::restore() noexcept {
    try {
        for (auto saved = m_pages.rbegin(); saved != m_pages.rend(); ++saved)
            m_file.write(offsetOf(saved->first), *saved->second);
        m_file.sync();
    } catch (...) { // NOLINT(bugprone-empty-catch): see the header
    }
}

} // namespace jet
