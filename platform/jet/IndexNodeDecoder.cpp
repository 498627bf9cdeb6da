// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/jet/IndexNodeDecoder.h"

#include "platform/jet/IndexPage.h"

namespace jet {
namespace {

KeyBytes asKey(std::span<const std::byte> bytes) {
    KeyBytes key;
    for (const std::byte byte : bytes)
        key.push_back(static_cast<char>(byte));
    return key;
}

} // namespace

IndexNode decodeIndexNode(PageBytes bytes, PageNumber owner, const Place& place) {
    IndexPage page(bytes, place);
    if (page.owner() != owner)
        place.fail("this is no page of the table's indexes");
    IndexNode node;
    node.isLeaf = page.isLeaf();
    node.previous = page.previous();
    node.next = page.next();
    node.tail = page.tail();
    while (page.nextEntry()) {
        node.entries.push_back(IndexEntry::make(asKey(page.key()), page.row()));
        node.entries.back().child = page.isLeaf() ? 0 : page.child();
    }
    node.recount();
    return node;
}

} // namespace jet
