// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The options dialog over a share in a folder, and the hands of its user.

#include "dialogs/frmOptions.h"
#include "tests/dialogs/OptionsWorld.h"

#include <QLineEdit>
#include <QPushButton>
#include <QTest>
#include <QTreeView>

#include <gmock/gmock.h>

namespace dialogs {

class frmOptionsTest : public testing::Test, protected OptionsWorld {
protected:
    void clickOK() { control<QPushButton>("cmdOK").click(); }
    void showActive() {
        dialog->show();
        dialog->activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&*dialog));
    }
    std::int32_t savedInterval(const char* typed) {
        openWithList();
        control<QLineEdit>("txtInterval").setText(QString::fromLatin1(typed));
        clickOK();
        data::clsConfig saved(registry, messageBoxes, reportTo);
        saved.LoadConfig();
        return saved.PollInterval;
    }
    QTreeView& view() { return *list().findChild<QTreeView*>(); }
    void clickCheckBox(int row) {
        const QModelIndex cell = view().model()->index(row, 0);
        QStyleOptionViewItem option;
        option.initFrom(&view());
        option.rect = view().visualRect(cell);
        option.features = QStyleOptionViewItem::HasCheckIndicator;
        const QRect box =
            view().style()->subElementRect(QStyle::SE_ItemViewItemCheckIndicator, &option, &view());
        QTest::mouseClick(view().viewport(), Qt::LeftButton, {}, box.center());
    }
};

} // namespace dialogs
