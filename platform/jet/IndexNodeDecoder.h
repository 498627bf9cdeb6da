// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// Takes a page of an index apart. Every length is checked; a page that is none of this table's index is
// RuntimeError kProviderFailure. Layout: docs/jet4-format.md, "Indexes".

#include "platform/jet/IndexNode.h"
#include "platform/jet/PageSource.h"

namespace jet {

IndexNode decodeIndexNode(PageBytes page, PageNumber owner, const Place& place);

} // namespace jet
