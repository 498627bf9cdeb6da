// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/shell/NotifyIconRecord.h"

#include <gtest/gtest.h>

#include <cstring>
#include <vector>

namespace shell {
namespace {

using Bytes = std::vector<std::byte>;

// Records are written here by offset, not through the structures under test.
void put(Bytes& bytes, std::size_t offset, std::uint32_t value) {
    for (std::size_t i = 0; i < 4; ++i)
        bytes.at(offset + i) = static_cast<std::byte>(value >> (8 * i));
}

void putText(Bytes& bytes, std::size_t offset, std::string_view text, std::size_t width) {
    for (std::size_t i = 0; i < text.size(); ++i)
        bytes.at(offset + i * width) = static_cast<std::byte>(text[i]);
}

struct Layout {
    std::uint32_t size1, size2;
    std::size_t width, info, timeout, title, infoFlags;
    std::optional<NotifyIconRecord> (*read)(std::span<const std::byte>);
};
constexpr Layout kNarrow{88, 488, 1, 160, 416, 420, 484, readNotifyIconA};
constexpr Layout kWide{152, 936, 2, 288, 800, 804, 932, readNotifyIconW};

Bytes fullRecord(const Layout& layout, std::uint32_t flags = 1 | 2 | 4 | 16) {
    Bytes bytes(layout.size2);
    put(bytes, 0, layout.size2);
    put(bytes, 4, 0x11223344);
    put(bytes, 8, 0x55667788);
    put(bytes, 12, flags);
    put(bytes, 16, 512);
    put(bytes, 20, 0x99AABBCC);
    putText(bytes, 24, "Quillamar", layout.width);
    putText(bytes, layout.info, "text", layout.width);
    put(bytes, layout.timeout, 3);
    putText(bytes, layout.title, "title", layout.width);
    put(bytes, layout.infoFlags, 2);
    return bytes;
}

class NotifyIconRecordTest : public ::testing::TestWithParam<Layout> {};

TEST_P(NotifyIconRecordTest, ReadsEveryFieldFromItsDocumentedOffset) {
    const auto record = GetParam().read(fullRecord(GetParam()));
    ASSERT_TRUE(record);
    EXPECT_EQ(record->window, 0x11223344U);
    EXPECT_EQ(record->id, 0x55667788U);
    EXPECT_EQ(record->callbackMessage, 512U);
    EXPECT_EQ(record->icon, 0x99AABBCCU);
    EXPECT_EQ(record->tip, u"Quillamar");
    EXPECT_EQ(record->version, 3U);
    ASSERT_TRUE(record->balloon);
    EXPECT_EQ(record->balloon->text, u"text");
    EXPECT_EQ(record->balloon->title, u"title");
    EXPECT_EQ(record->balloon->timeoutMilliseconds, 3U);
    EXPECT_EQ(record->balloon->iconFlags, 2U);
}

TEST_P(NotifyIconRecordTest, IgnoresFieldsWhoseFlagIsNotSet) {
    const auto record = GetParam().read(fullRecord(GetParam(), 0));
    ASSERT_TRUE(record);
    EXPECT_FALSE(record->callbackMessage || record->icon || record->tip || record->balloon);
}

TEST_P(NotifyIconRecordTest, EndsTextsWithoutATerminatorAtTheirField) {
    const Layout& layout = GetParam();
    Bytes bytes = fullRecord(layout);
    putText(bytes, 24, std::string(128, 't'), layout.width);
    putText(bytes, layout.info, std::string(256, 'i'), layout.width);
    putText(bytes, layout.title, std::string(64, 'h'), layout.width);
    const auto record = layout.read(bytes);
    ASSERT_TRUE(record && record->balloon);
    EXPECT_EQ(record->tip, std::u16string(128, u't'));
    EXPECT_EQ(record->balloon->text, std::u16string(256, u'i'));
    EXPECT_EQ(record->balloon->title, std::u16string(64, u'h'));
}

TEST_P(NotifyIconRecordTest, KnowsOnlySixtyFourCharactersAndNoBalloonInVersion1) {
    const Layout& layout = GetParam();
    Bytes bytes = fullRecord(layout);
    put(bytes, 0, layout.size1);
    putText(bytes, 24, std::string(128, 't'), layout.width);
    const auto record = layout.read(bytes);
    ASSERT_TRUE(record);
    EXPECT_EQ(record->tip, std::u16string(64, u't'));
    EXPECT_FALSE(record->balloon);
    EXPECT_EQ(record->version, 0U);
}

TEST_P(NotifyIconRecordTest, RejectsEverySizeButItsTwo) {
    const Layout& layout = GetParam();
    Bytes bytes = fullRecord(layout);
    for (std::uint32_t size = 0; size < 1100; ++size) {
        put(bytes, 0, size);
        EXPECT_EQ(layout.read(bytes).has_value(), size == layout.size1 || size == layout.size2) << size;
    }
    put(bytes, 0, 0xFFFFFFFF);
    EXPECT_FALSE(layout.read(bytes));
}

TEST_P(NotifyIconRecordTest, RejectsARecordCutAnywhere) {
    const Layout& layout = GetParam();
    const Bytes bytes = fullRecord(layout);
    for (std::size_t length = 0; length < bytes.size(); ++length)
        EXPECT_FALSE(layout.read(std::span(bytes).first(length))) << length;
}

INSTANTIATE_TEST_SUITE_P(Narrow, NotifyIconRecordTest, ::testing::Values(kNarrow));
INSTANTIATE_TEST_SUITE_P(Wide, NotifyIconRecordTest, ::testing::Values(kWide));

TEST(NotifyIconRecordTextTest, ReadsNarrowTextsInTheAnsiCodePage) {
    Bytes bytes = fullRecord(kNarrow);
    bytes[24] = std::byte{0x80};
    bytes[25] = std::byte{0xFC};
    bytes[26] = std::byte{0};
    EXPECT_EQ(readNotifyIconA(bytes)->tip, u"\u20AC\u00FC");
}

} // namespace
} // namespace shell
