// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/jet/WriteCache.h"

#include "platform/basic/RuntimeError.h"

#include <algorithm>
#include <tuple>

namespace jet {
namespace {

PageNumber countPages(const share::File& file, std::uint64_t size) {
    const std::uint64_t pages = size / format::page::kSize;
    if (pages > format::page::kMaxCount)
        Place{file.name(), {}, 0, kNoRow}.fail("its size of " + std::to_string(size) +
                                               " bytes is not one of a database that can be written");
    return static_cast<PageNumber>(pages);
}

std::uint64_t offsetOf(PageNumber number) {
    return std::uint64_t{number} * format::page::kSize;
}

} // namespace

WriteCache::WriteCache(share::File& file) : WriteCache(file, file.size()) {}

WriteCache::WriteCache(share::File& file, std::uint64_t size)
    : m_file(file), m_pageCount(countPages(file, size)), m_hasPartialPage(size % format::page::kSize != 0) {}

const std::string& WriteCache::name() const {
    return m_file.name();
}

PageBytes WriteCache::page(PageNumber number, PageBuffer& /*buffer*/) {
    return load(number).bytes;
}

MutablePage WriteCache::edit(PageNumber number, WriteStage stage, std::uint8_t order) {
    Entry& entry = load(number);
    if (!entry.isNew) {
        entry.stage = stage;
        entry.order = order;
    }
    entry.dirty = true;
    return entry.bytes;
}

MutablePage WriteCache::create(PageNumber number) {
    if (number > m_pageCount || number >= format::page::kMaxCount)
        throw basic::RuntimeError(basic::kProviderFailure,
                                  name() + ": no room for page " + std::to_string(number));
    m_pageCount = std::max(m_pageCount, number + 1);
    auto& slot = m_pages[number];
    slot = std::make_unique<Entry>();
    slot->dirty = true;
    slot->isNew = true;
    return slot->bytes;
}

bool WriteCache::isNew(PageNumber number) const {
    const auto found = m_pages.find(number);
    return found != m_pages.end() && found->second->isNew;
}

WriteCache::Entry& WriteCache::load(PageNumber number) {
    auto& slot = m_pages[number];
    if (slot)
        return *slot;
    const Place place{name(), {}, number, kNoRow};
    auto entry = std::make_unique<Entry>();
    if (number >= m_pageCount || m_file.read(offsetOf(number), entry->bytes) != format::page::kSize) {
        m_pages.erase(number);
        place.fail("the page lies beyond the end of the file");
    }
    slot = std::move(entry);
    return *slot;
}

std::vector<std::pair<PageNumber, const WriteCache::Entry*>> WriteCache::dirtyPages() const {
    std::vector<std::pair<PageNumber, const Entry*>> dirty;
    for (const auto& [number, entry] : m_pages)
        if (entry->dirty)
            dirty.emplace_back(number, entry.get());
    std::ranges::sort(dirty, {}, [](const auto& item) {
        return std::tuple(item.second->stage, item.second->order, item.first);
    });
    return dirty;
}

std::vector<PageNumber> WriteCache::newPages() const {
    std::vector<PageNumber> pages;
    for (const auto& [number, entry] : dirtyPages())
        if (entry->isNew)
            pages.push_back(number);
    return pages;
}

std::vector<PageNumber> WriteCache::changedPages() const {
    std::vector<PageNumber> pages;
    for (const auto& [number, entry] : dirtyPages())
        pages.push_back(number);
    return pages;
}

void WriteCache::writeAhead(PageNumber number) {
    m_file.write(offsetOf(number), load(number).bytes);
    m_file.sync();
}

void WriteCache::flush() {
    const auto dirty = dirtyPages();
    bool mustSync = false;
    for (const auto& [number, entry] : dirty) {
        if (mustSync && !entry->isNew)
            m_file.sync();
        mustSync = entry->isNew;
        m_file.write(offsetOf(number), entry->bytes);
    }
    if (!dirty.empty())
        m_file.sync();
    m_pages.clear();
}

} // namespace jet
