// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// Hands out whole pages of one open database file and decodes those of an encoded one. Every page number is
// checked against the size of the file; a short read is an error, never a short page. The file must outlive
// the reader. Holds no pages. Layout: docs/jet4-format.md, "Pages".

#include "platform/jet/PageSource.h"
#include "platform/share/File.h"

#include <cstdint>

namespace jet {

class PageReader final : public PageSource {
public:
    // `databaseKey` is the header's.
    PageReader(share::File& file, std::uint32_t databaseKey);

    const std::string& name() const override { return m_file.name(); }
    // A page that is there in part counts; reading it is an error.
    PageNumber pageCount() const override { return m_pageCount; }
    PageBytes page(PageNumber number, PageBuffer& buffer) override;
    // Reads the beginning of a page only, which is as much as a small `into` takes.
    void readStart(PageNumber number, std::span<std::byte> into);
    // Reads the pages from `first` on that fill `into`, a multiple of the page size, with one read of the
    // file.
    void readRun(PageNumber first, std::span<std::byte> into);

private:
    void readExactly(PageNumber first, std::span<std::byte> into);
    void checkRange(PageNumber first, std::size_t count);
    void decode(PageNumber number, std::span<std::byte> page) const;

    share::File& m_file;
    std::uint32_t m_databaseKey;
    PageNumber m_pageCount;
};

} // namespace jet
