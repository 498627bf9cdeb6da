// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// Keeps pages as they are in the file, to put them back when writing over them failed half-way. What was
// written beyond the old end of the file stays. The file must outlive it.

#include "platform/jet/PageSource.h"
#include "platform/share/File.h"

#include <memory>
#include <utility>
#include <vector>

namespace jet {

class PageUndo {
public:
    // `pages` in the order in which they will be written; those beyond the end of the file are passed over.
    PageUndo(share::File& file, const std::vector<PageNumber>& pages);

    // From the last one to the first. What cannot be put back stays as it is: the failure that led here is
    // the one to report.
    void restore() noexcept;

private:
    share::File& m_file;
    std::vector<std::pair<PageNumber, std::unique_ptr<PageBuffer>>> m_pages;
};

} // namespace jet
