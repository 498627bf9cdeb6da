// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// Writes a page of an index. What all keys of the page share is stored once, with the first entry.
// Layout: docs/jet4-format.md, "Indexes".

#include "platform/jet/IndexNode.h"
#include "platform/jet/WriteCache.h"

namespace jet {

// The node must fit (IndexNode::encodedSize() up to indexPage::kEntrySpace).
void encodeIndexNode(const IndexNode& node, PageNumber owner, MutablePage page);

} // namespace jet
