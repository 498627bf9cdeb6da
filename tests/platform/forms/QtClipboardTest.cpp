// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/forms/QtClipboard.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QMimeData>

#include <gtest/gtest.h>

namespace forms {
namespace {

TEST(QtClipboard, HoldsPlainTextAsItWasPut) {
    QtClipboard clipboard;
    clipboard.SetText("\tM\xC3\xBCller\t\r\n");
    const QMimeData& data = *QGuiApplication::clipboard()->mimeData();
    EXPECT_EQ(data.text(), QStringLiteral(u"\tMüller\t\r\n"));
    EXPECT_FALSE(data.hasHtml());
}

TEST(QtClipboard, IsEmptyOnceCleared) {
    QtClipboard clipboard;
    clipboard.SetText("x");
    clipboard.Clear();
    EXPECT_TRUE(QGuiApplication::clipboard()->text().isEmpty());
}

} // namespace
} // namespace forms
