// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The pages a statement is about to write. They are changed in memory and go to the file only with flush(),
// in the order of WriteStage: whoever reads the file meanwhile, and whoever finds it after a failure
// half-way, sees a page only after everything it refers to. Within a stage lower orders go first, then lower
// page numbers, so that new pages extend the file without holes. Each page is one write of 4096 bytes. Reads
// through the cache see what is not written yet. References to pages are valid until the next flush(). After
// a failed flush() the cache must not be used any more. The file must outlive it; one thread.

#include "platform/jet/PageSource.h"
#include "platform/share/File.h"

#include <memory>
#include <unordered_map>
#include <vector>

namespace jet {

using MutablePage = std::span<std::byte, format::page::kSize>;

enum class WriteStage : std::uint8_t {
    NewPage,   // nothing in the file refers to it yet
    GlobalMap, // before the pages it hands out are referred to: a loss leaks pages, never doubles them
    LongValues,
    Rows,
    IndexNodes, // from the root down: until a split leaf is written it still holds all of its entries
    IndexLeaves,
    UsageMaps,
    Definition, // row count and autonumber: the change is complete
};

class WriteCache final : public PageSource {
public:
    explicit WriteCache(share::File& file);

    const std::string& name() const override;
    PageNumber pageCount() const override { return m_pageCount; }
    PageBytes page(PageNumber number, PageBuffer& buffer) override;

    // The page for changing; it will be written in the stage given, or with the new pages if it is one.
    MutablePage edit(PageNumber number, WriteStage stage, std::uint8_t order = 0);
    // A page that nothing refers to, zeroed: a free one, or the one after the last.
    MutablePage create(PageNumber number);
    bool isNew(PageNumber number) const;
    // The file ends within a page: its start is pageCount(), and it is taken for one that is not there.
    bool hasPartialPage() const noexcept { return m_hasPartialPage; }
    // Pages that were created, and all pages that flush() will write, in its order.
    std::vector<PageNumber> newPages() const;
    std::vector<PageNumber> changedPages() const;

    // Writes one page as it is now, before all others, and synchronises.
    void writeAhead(PageNumber number);
    // Writes, synchronises and forgets everything. New pages are on the disk before anything else is written.
    void flush();

private:
    WriteCache(share::File& file, std::uint64_t size);
    struct Entry {
        PageBuffer bytes{};
        WriteStage stage = WriteStage::NewPage;
        std::uint8_t order = 0;
        bool dirty = false;
        bool isNew = false;
    };
    Entry& load(PageNumber number);
    std::vector<std::pair<PageNumber, const Entry*>> dirtyPages() const;

    share::File& m_file;
    PageNumber m_pageCount;
    bool m_hasPartialPage;
    std::unordered_map<PageNumber, std::unique_ptr<Entry>> m_pages;
};

} // namespace jet
