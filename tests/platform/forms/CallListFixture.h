// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// A shown list view with the columns of a call list and as many rows as a test asks for, and what its user
// does with mouse and keys.

#include "platform/forms/ListView.h"

#include <QTest>
#include <QTreeView>

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace forms {

class CallListFixture : public testing::Test {
protected:
    CallListFixture() {
        list.SetMultiSelect(true);
        list.sendMessage(LVM_SETEXTENDEDLISTVIEWSTYLE, LVS_EX_FULLROWSELECT, -1);
        addColumns();
        list.resize(600, 300);
        list.show();
        QObject::connect(&list, &ListView::Click, [this] { events.emplace_back("Click"); });
        QObject::connect(&list, &ListView::DblClick, [this] { events.emplace_back("DblClick"); });
        QObject::connect(&list, &ListView::ItemClick,
                         [this](int index) { events.push_back("ItemClick " + std::to_string(index)); });
        QObject::connect(&list, &ListView::MouseUp, [this](int button, QPoint where) {
            events.push_back("MouseUp " + std::to_string(button));
            mouseUpAt = where;
        });
    }

    void addColumns() {
        list.ColumnHeaders().Add("", {70}, kColumnLeft);
        list.ColumnHeaders().Add("Date", {1700}, kColumnRight);
        list.ColumnHeaders().Add("Caller ID", {900}, kColumnRight);
    }

    void fill(int rows) {
        for (int i = 1; i <= rows; ++i) {
            ListItem item = list.ListItems().Add("K" + std::to_string(i), "");
            item.SetSubItems(1, "2026-11-21 10:00:00");
            item.SetSubItems(2, std::to_string(i));
            item.SetSmallIcon(1);
        }
        list.Refresh();
    }

    QTreeView& view() { return *list.findChild<QTreeView*>(); }
    QPoint cell(int row, int column = 1) {
        return view().visualRect(view().model()->index(row - 1, column)).center();
    }
    void click(int row, Qt::MouseButton button = Qt::LeftButton, Qt::KeyboardModifiers keys = {}) {
        QTest::mouseClick(view().viewport(), button, keys, cell(row));
    }
    QPoint emptyPart() { return view().viewport()->rect().bottomLeft() + QPoint(5, -5); }

    std::vector<std::string> keysSelected() {
        std::vector<std::string> keys;
        for (int i = 1; i <= list.ListItems().Count(); ++i) {
            if (list.ListItems().Item(i).Selected())
                keys.emplace_back(list.ListItems().Item(i).Key());
        }
        return keys;
    }
    std::string selectedKey() {
        const auto item = list.SelectedItem();
        return item ? std::string(item->Key()) : std::string("none");
    }

    ListView list;
    std::vector<std::string> events;
    QPoint mouseUpAt;
};

} // namespace forms
