// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/jet/IndexTree.h"

#include "platform/jet/IndexNodeEncoder.h"
#include "platform/jet/IndexPage.h"
#include "platform/jet/PageReader.h"
#include "platform/share/MemoryFile.h"
#include "tests/platform/basic/ErrorOf.h"
#include "tests/platform/jet/StoredDefinition.h"
#include "tests/platform/jet/WrittenDatabase.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <set>

namespace jet {
namespace {

using namespace test;

// The tree of an index over one column, filled with keys of any kind: what a key means is nothing to the
// tree.
class IndexTreeTest : public testing::Test {
protected:
    IndexTreeTest() {
        createDatabase(m_file, kCreated);
        createTable(m_file,
                    {.name = "T", .columns = {{.name = "A"}}, .indexes = {{.name = "I", .columns = {{"A"}}}}},
                    kCreated);
        m_table = definitionOf(m_file, "T");
    }
    void insert(const std::vector<KeyBytes>& keys) {
        WriteCache cache(m_file);
        PageAllocator allocator(cache);
        IndexTree tree(cache, allocator, m_table.realIndexes[0], m_table.page());
        for (const KeyBytes& key : keys) {
            tree.insert(key, {1000, static_cast<std::uint8_t>(m_inserted.size() % 200)});
            m_inserted.push_back(key);
        }
        tree.store();
        cache.flush();
    }
    bool contains(const KeyBytes& key) {
        WriteCache cache(m_file);
        PageAllocator allocator(cache);
        return IndexTree(cache, allocator, m_table.realIndexes[0], m_table.page()).contains(key);
    }
    // Follows the leaves from the leftmost on, and holds every node's entries against its children.
    std::vector<KeyBytes> readKeys() {
        PageReader pages(m_file, 0);
        PageBuffer buffer;
        std::vector<KeyBytes> keys;
        PageNumber at = leftmostLeaf(pages, m_table.realIndexes[0].root);
        for (PageNumber previous = 0; at != 0;) {
            IndexPage leaf(pages.page(at, buffer), {m_file.name(), "T", at, kNoRow});
            EXPECT_EQ(leaf.previous(), previous);
            while (leaf.nextEntry())
                keys.push_back(text(leaf.key()));
            previous = at;
            at = leaf.next();
        }
        return keys;
    }
    void expectWhole() {
        std::vector<KeyBytes> expected = m_inserted;
        std::ranges::sort(expected);
        EXPECT_EQ(readKeys(), expected);
        std::set<PageNumber> seen;
        PageReader pages(m_file, 0);
        checkNode(pages, m_table.realIndexes[0].root, seen);
    }

    share::MemoryFile m_file{{}};
    TableDefinition m_table;
    std::vector<KeyBytes> m_inserted;

private:
    static KeyBytes text(std::span<const std::byte> bytes) {
        return {reinterpret_cast<const char*>(bytes.data()), bytes.size()};
    }
    PageNumber leftmostLeaf(PageReader& pages, PageNumber at) {
        PageBuffer buffer;
        while (true) {
            IndexPage page(pages.page(at, buffer), {m_file.name(), "T", at, kNoRow});
            if (page.isLeaf())
                return at;
            at = page.nextEntry() ? page.child() : page.tail();
        }
    }
    // Answers the page's last key.
    KeyBytes checkNode(PageReader& pages, PageNumber at, std::set<PageNumber>& seen) {
        EXPECT_TRUE(seen.insert(at).second) << "page " << at << " has two parents";
        PageBuffer buffer;
        IndexPage page(pages.page(at, buffer), {m_file.name(), "T", at, kNoRow});
        KeyBytes last;
        while (page.nextEntry()) {
            last = text(page.key());
            if (!page.isLeaf()) {
                EXPECT_EQ(checkNode(pages, page.child(), seen), last);
            }
        }
        if (page.tail() != 0)
            last = checkNode(pages, page.tail(), seen);
        return last;
    }
};

KeyBytes numberKey(std::uint32_t number) {
    KeyBytes key{"\x7F"};
    for (const unsigned shift : {24U, 16U, 8U, 0U})
        key.push_back(static_cast<char>((number ^ 0x80000000U) >> shift));
    return key;
}

TEST_F(IndexTreeTest, AscendingKeysFillThreeLevels) {
    std::vector<KeyBytes> keys;
    for (std::uint32_t i = 0; i < 30000; ++i)
        keys.push_back(numberKey(i * 1000) + "\x7F" + numberKey(i)); // long enough for few entries to a node
    insert(keys);
    expectWhole();
    // Appended keys leave full pages behind: no more than a twentieth is lost.
    const std::size_t bytes = keys.size() * (keys[0].size() + IndexEntry::kRowSize);
    EXPECT_LT(m_file.size() - 20 * format::page::kSize, bytes * 13 / 10);
}

TEST_F(IndexTreeTest, DescendingKeysAndKeysInNoOrderAreAllFound) {
    std::vector<KeyBytes> keys;
    for (std::uint32_t i = 2000; i > 0; --i)
        keys.push_back(numberKey(i));
    insert(keys);
    expectWhole();
    std::mt19937 random(7);
    for (std::uint32_t i = 0; i < 3000; ++i)
        keys.push_back(numberKey(static_cast<std::uint32_t>(random() % 100000 + 5000)));
    insert({keys.begin() + 2000, keys.end()});
    expectWhole();
    for (std::size_t i = 0; i < keys.size(); i += 97)
        EXPECT_TRUE(contains(keys[i]));
    EXPECT_FALSE(contains(numberKey(4999)));
    EXPECT_FALSE(contains(numberKey(200000)));
}

TEST_F(IndexTreeTest, OneInsertionAtATimeGivesTheSameTree) {
    for (std::uint32_t i = 0; i < 1500; ++i)
        insert({numberKey(i * 7919 % 1500)});
    expectWhole();
}

TEST_F(IndexTreeTest, KeysOfVeryDifferentLengthsAreKept) {
    std::mt19937 random(3);
    std::vector<KeyBytes> keys;
    for (int i = 0; i < 1200; ++i)
        keys.push_back(KeyBytes(1 + random() % 700, static_cast<char>('a' + random() % 3)) +
                       numberKey(static_cast<std::uint32_t>(i)));
    insert(keys);
    expectWhole();
}

// All keys of a full page share a long start; the new one does not, and would make both halves too long.
TEST_F(IndexTreeTest, KeyThatBreaksALongCommonStartIsCutOffAlone) {
    std::vector<KeyBytes> keys;
    for (std::uint32_t i = 0; i < 500; ++i)
        keys.push_back(KeyBytes(300, 'm') + numberKey(i));
    insert(keys);
    insert({KeyBytes("a"), KeyBytes("z"), KeyBytes(300, 'm') + "a"});
    expectWhole();
}

TEST_F(IndexTreeTest, RefusesAKeyThatIsTooLong) {
    EXPECT_EQ(basic::errorOf([&] { insert({KeyBytes(800, 'x')}); }), basic::kProviderFailure);
    EXPECT_NO_THROW(insert({KeyBytes(700, 'x')}));
}

TEST_F(IndexTreeTest, RootKeepsItsPage) {
    std::vector<KeyBytes> keys;
    for (std::uint32_t i = 0; i < 5000; ++i)
        keys.push_back(numberKey(i));
    insert(keys);
    EXPECT_EQ(definitionOf(m_file, "T").realIndexes[0].root, m_table.realIndexes[0].root);
}

// Other writers leave the last leaf without an entry in the node above.
TEST_F(IndexTreeTest, LeafInANodesTailIsFilledAndSplit) {
    const PageNumber root = m_table.realIndexes[0].root;
    {
        WriteCache cache(m_file);
        PageAllocator allocator(cache);
        UsageMapWriter pages(cache, allocator, m_table.realIndexes[0].usageMap);
        IndexNode left, right, top;
        top.isLeaf = false;
        for (std::uint32_t i = 0; i < 300; ++i) {
            IndexNode& leaf = i < 200 ? left : right;
            leaf.insert(leaf.entries.size(), IndexEntry::make(numberKey(i), {1000, 0}));
            m_inserted.push_back(numberKey(i));
        }
        const PageNumber leftPage = allocator.allocate();
        const PageNumber rightPage = allocator.allocate();
        left.next = rightPage;
        right.previous = leftPage;
        top.insert(0, {left.entries.back().bytes, leftPage});
        top.tail = rightPage;
        pages.add(leftPage);
        pages.add(rightPage);
        encodeIndexNode(left, m_table.page(), cache.edit(leftPage, WriteStage::IndexLeaves));
        encodeIndexNode(right, m_table.page(), cache.edit(rightPage, WriteStage::IndexLeaves));
        encodeIndexNode(top, m_table.page(), cache.edit(root, WriteStage::IndexNodes));
        cache.flush();
    }
    expectWhole();
    EXPECT_TRUE(contains(numberKey(250)));
    std::vector<KeyBytes> keys;
    for (std::uint32_t i = 300; i < 9000; ++i)
        keys.push_back(numberKey(i));
    for (std::uint32_t i = 0; i < 300; ++i)
        keys.push_back(numberKey(i) + "x");
    insert(keys);
    expectWhole();
}

} // namespace
} // namespace jet
