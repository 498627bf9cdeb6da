// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/shell/IconTable.h"

#include <QPixmap>

#include <gtest/gtest.h>

namespace shell {
namespace {

QIcon someIcon() {
    QPixmap pixmap(16, 16);
    pixmap.fill(Qt::red);
    return QIcon(pixmap);
}

TEST(IconTableTest, GivesOneIconOneHandle) {
    IconTable icons;
    const QIcon icon = someIcon();
    const IconHandle handle = icons.add(icon);
    EXPECT_NE(handle, 0U);
    EXPECT_EQ(icons.add(QIcon(icon)), handle);
    EXPECT_NE(icons.add(someIcon()), handle);
    EXPECT_EQ(icons.find(handle)->cacheKey(), icon.cacheKey());
}

TEST(IconTableTest, KnowsNoIconByAHandleItNeverGave) {
    EXPECT_FALSE(IconTable().find(42));
}

TEST(IconTableTest, TakesHandleZeroForNoIcon) {
    IconTable icons;
    EXPECT_EQ(icons.add(QIcon()), 0U);
    ASSERT_TRUE(icons.find(0));
    EXPECT_TRUE(icons.find(0)->isNull());
}

} // namespace
} // namespace shell
