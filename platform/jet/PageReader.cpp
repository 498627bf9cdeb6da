// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/jet/PageReader.h"

#include "platform/jet/Rc4.h"

#include <algorithm>
#include <array>
#include <string>

namespace jet {
namespace {

constexpr std::size_t kPageSize = format::page::kSize;

PageNumber pagesIn(std::uint64_t size) {
    const std::uint64_t pages = size / kPageSize + (size % kPageSize != 0 ? 1 : 0);
    return static_cast<PageNumber>(std::min<std::uint64_t>(pages, format::page::kMaxCount));
}

} // namespace

PageReader::PageReader(share::File& file, std::uint32_t databaseKey)
    : m_file(file), m_databaseKey(databaseKey), m_pageCount(pagesIn(file.size())) {}

PageBytes PageReader::page(PageNumber number, PageBuffer& buffer) {
    readRun(number, buffer);
    return buffer;
}

void PageReader::readStart(PageNumber number, std::span<std::byte> into) {
    checkRange(number, 1);
    readExactly(number, into);
    decode(number, into);
}

void PageReader::readRun(PageNumber first, std::span<std::byte> into) {
    const std::size_t count = into.size() / kPageSize;
    checkRange(first, count);
    readExactly(first, into);
    for (std::size_t i = 0; i < count; ++i)
        decode(static_cast<PageNumber>(first + i), into.subspan(i * kPageSize, kPageSize));
}

void PageReader::readExactly(PageNumber first, std::span<std::byte> into) {
    const std::size_t got = m_file.read(std::uint64_t{first} * kPageSize, into);
    if (got != into.size()) {
        const auto cut = static_cast<PageNumber>(first + got / kPageSize);
        Place{name(), {}, cut}.fail("the page is cut short: " + std::to_string(kPageSize) +
                                    " bytes expected, " + std::to_string(got % kPageSize) + " there");
    }
}

// The file may have grown since it was opened: its size is asked for again before a number is refused.
void PageReader::checkRange(PageNumber first, std::size_t count) {
    if (first + count > m_pageCount)
        m_pageCount = pagesIn(m_file.size());
    if (first + count > m_pageCount)
        Place{name(), {}, std::max(first, m_pageCount)}.fail(
            "the page lies beyond the end of the file, which has " + std::to_string(m_pageCount) + " pages");
}

void PageReader::decode(PageNumber number, std::span<std::byte> page) const {
    if (m_databaseKey == 0 || number == 0)
        return;
    const std::uint32_t key = m_databaseKey ^ number;
    const std::array<std::uint8_t, 4> bytes{
        static_cast<std::uint8_t>(key), static_cast<std::uint8_t>(key >> 8U),
        static_cast<std::uint8_t>(key >> 16U), static_cast<std::uint8_t>(key >> 24U)};
    applyRc4(bytes, page);
}

} // namespace jet
