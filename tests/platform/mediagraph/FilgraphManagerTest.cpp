// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/mediagraph/FilgraphManager.h"

#include "tests/platform/basic/ErrorOf.h"

#include <gtest/gtest.h>

namespace mediagraph {
namespace {

class OnlyEvents final : public IMediaEvent {
public:
    EventCode WaitForCompletion(std::chrono::milliseconds) override { return EventCode::Complete; }
};

TEST(QueryInterface, RefusesAnObjectThatIsNotThereOrHasNoSuchFace) {
    EXPECT_EQ(basic::errorOf([] { queryInterface<IMediaPosition>(std::shared_ptr<IMediaEvent>()); }), 91);
    EXPECT_EQ(basic::errorOf([] {
                  queryInterface<IMediaPosition>(
                      std::shared_ptr<IMediaEvent>(std::make_shared<OnlyEvents>()));
              }),
              13);
}

TEST(ItemCollection, CountsFromZeroAndRefusesWhatIsNotInIt) {
    const ItemCollection<int> items({std::make_shared<int>(7), std::make_shared<int>(8)});
    EXPECT_EQ(items.Count(), 2);
    EXPECT_EQ(*items.Item(1), 8);
    EXPECT_EQ(basic::errorOf([&] { items.Item(2); }), 9);
    EXPECT_EQ(basic::errorOf([&] { items.Item(-1); }), 9);
}

TEST(ItemCollection, IsLookedForWhenItIsFirstCountedOrReadAndThenStays) {
    int looks = 0;
    const ItemCollection<int> items([&looks] { return std::vector{std::make_shared<int>(++looks)}; });
    EXPECT_EQ(looks, 0);
    EXPECT_EQ(*items.Item(0), 1);
    for (const auto& item : items)
        EXPECT_EQ(*item, 1);
    EXPECT_EQ(items.Count(), 1);
}

TEST(ItemCollection, IsLookedForAgainAfterALookThatFailed) {
    int looks = 0;
    const ItemCollection<int> items([&looks]() -> std::vector<std::shared_ptr<int>> {
        if (++looks == 1)
            throw basic::RuntimeError(basic::kDeviceIoError);
        return {std::make_shared<int>(7)};
    });
    EXPECT_EQ(basic::errorOf([&] { items.begin(); }), basic::kDeviceIoError);
    EXPECT_EQ(items.Count(), 1);
}

} // namespace
} // namespace mediagraph
