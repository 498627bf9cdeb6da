// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// An index small enough to read and large enough to go wrong: a root with two entries and a tail over three
// leaves; rows 0 to 5 of page 6 have the keys 10 to 60. A test changes what it likes before putPages().

#include "tests/platform/jet/IndexImages.h"

#include <gtest/gtest.h>

#include <functional>

namespace jet::test {

constexpr PageNumber kRoot = 8;
constexpr PageNumber kLeft = 9;
constexpr PageNumber kMiddle = 10;
constexpr PageNumber kRight = 11;
constexpr PageNumber kPages = 12;

class IndexOfThreeLeaves : public ::testing::Test {
protected:
    IndexOfThreeLeaves() {
        definition.pages = {kLogDefinition};
        index.root = kRoot;
    }
    void putPages() {
        putIndexPage(image, kRoot, root);
        putIndexPage(image, kLeft, left);
        putIndexPage(image, kMiddle, middle);
        putIndexPage(image, kRight, right);
        if (damage)
            damage();
    }

    Image image{kPages};
    IndexImage root{.isLeaf = false,
                    .tail = kRight,
                    .entries = {nodeEntry(20, {6, 1}, kLeft), nodeEntry(40, {6, 3}, kMiddle)}};
    IndexImage left{.next = kMiddle, .entries = {leafEntry(10, {6, 0}), leafEntry(20, {6, 1})}};
    IndexImage middle{
        .previous = kLeft, .next = kRight, .entries = {leafEntry(30, {6, 2}), leafEntry(40, {6, 3})}};
    IndexImage right{.previous = kMiddle, .entries = {leafEntry(50, {6, 4}), leafEntry(60, {6, 5})}};
    TableDefinition definition;
    RealIndex index;
    std::function<void()> damage; // bytes that no image can say
};

} // namespace jet::test
