// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/mediagraph/FilgraphManager.h"

#include <gtest/gtest.h>

#include <functional>

namespace mediagraph {
namespace {

class OnlyEvents final : public IMediaEvent {
public:
    EventCode WaitForCompletion(std::chrono::milliseconds) override { return EventCode::Complete; }
};

std::int32_t numberOf(const std::function<void()>& action) {
    try {
        action();
    } catch (const basic::RuntimeError& error) {
        return error.number();
    }
    return 0;
}

TEST(QueryInterface, RefusesAnObjectThatIsNotThereOrHasNoSuchFace) {
    EXPECT_EQ(numberOf([] { queryInterface<IMediaPosition>(std::shared_ptr<IMediaEvent>()); }), 91);
    EXPECT_EQ(numberOf([] {
                  queryInterface<IMediaPosition>(
                      std::shared_ptr<IMediaEvent>(std::make_shared<OnlyEvents>()));
              }),
              13);
}

TEST(ItemCollection, CountsFromZeroAndRefusesWhatIsNotInIt) {
    const ItemCollection<int> items({std::make_shared<int>(7), std::make_shared<int>(8)});
    EXPECT_EQ(items.Count(), 2);
    EXPECT_EQ(*items.Item(1), 8);
    EXPECT_EQ(numberOf([&] { items.Item(2); }), 9);
    EXPECT_EQ(numberOf([&] { items.Item(-1); }), 9);
}

} // namespace
} // namespace mediagraph
