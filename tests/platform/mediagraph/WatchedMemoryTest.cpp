// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/mediagraph/WatchedMemory.h"

#include <gtest/gtest.h>

#include <array>
#include <cstdlib>
#include <memory>
#include <span>
#include <string>

namespace mediagraph::testing {
namespace {

class WatchedMemory : public ::testing::Test {
protected:
    struct Unref {
        void operator()(GstBuffer* buffer) const { gst_buffer_unref(buffer); }
    };
    using Buffer = std::unique_ptr<GstBuffer, Unref>;

    static void SetUpTestSuite() {
        ::setenv("GST_REGISTRY", QM_GST_REGISTRY, 1);
        ASSERT_TRUE(gst_init_check(nullptr, nullptr, nullptr));
    }

    Buffer newBuffer() {
        GstBuffer* buffer = gst_buffer_new();
        gst_buffer_append_memory(
            buffer, newWatchedMemory(std::as_bytes(std::span(kLetters)), [count = m_count] { ++*count; }));
        return Buffer(buffer);
    }
    static std::string contentOf(GstBuffer* buffer) {
        std::string text(gst_buffer_get_size(buffer), '\0');
        gst_buffer_extract(buffer, 0, text.data(), text.size());
        return text;
    }
    int reads() const { return *m_count; }
    bool isForgotten() const { return m_count.use_count() == 1; }

private:
    static constexpr std::array<char, 6> kLetters{'a', 'b', 'c', 'd', 'e', 'f'};
    std::shared_ptr<int> m_count = std::make_shared<int>(0);
};

TEST_F(WatchedMemory, TellsEachReading) {
    const Buffer buffer = newBuffer();
    EXPECT_EQ(reads(), 0);
    EXPECT_EQ(contentOf(buffer.get()), "abcdef");
    EXPECT_EQ(contentOf(buffer.get()), "abcdef");
    EXPECT_EQ(reads(), 2);
}

TEST_F(WatchedMemory, TellsNothingWhenItIsThrownAway) {
    newBuffer().reset();
    EXPECT_EQ(reads(), 0);
    EXPECT_TRUE(isForgotten());
}

// As a sink does that plays a piece bit by bit.
TEST_F(WatchedMemory, GivesAwayAPartOfItself) {
    Buffer buffer = newBuffer();
    const Buffer part(gst_buffer_copy_region(buffer.get(), GST_BUFFER_COPY_MEMORY, 2, 3));
    buffer.reset();
    ASSERT_NE(part, nullptr);
    EXPECT_EQ(contentOf(part.get()), "cde");
    EXPECT_EQ(reads(), 1);
}

} // namespace
} // namespace mediagraph::testing
