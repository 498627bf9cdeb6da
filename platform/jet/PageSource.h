// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// Where decoded whole pages come from: a file (PageReader) or memory (PageSnapshot). The caller brings the
// buffer, so that pages can be held side by side and nothing is allocated per page; a source in memory leaves
// it alone and hands out its own bytes. A number beyond the end and a short page are RuntimeErrors
// kProviderFailure. One thread at a time.

#include "platform/jet/Format.h"
#include "platform/jet/Place.h"

#include <array>
#include <cstddef>
#include <span>
#include <string>

namespace jet {

using PageBuffer = std::array<std::byte, format::page::kSize>;
using PageBytes = std::span<const std::byte, format::page::kSize>;

class PageSource {
public:
    PageSource() = default;
    PageSource(const PageSource&) = delete;
    PageSource& operator=(const PageSource&) = delete;
    virtual ~PageSource() = default;

    // The database's file name, for error texts.
    virtual const std::string& name() const = 0;
    virtual PageNumber pageCount() const = 0;
    // The answer is valid as long as the source lives and `buffer` is not used for another page.
    virtual PageBytes page(PageNumber number, PageBuffer& buffer) = 0;
};

} // namespace jet
