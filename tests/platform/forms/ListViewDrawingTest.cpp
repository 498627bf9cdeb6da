// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/forms/ImageList.h"
#include "tests/Contrast.h"
#include "tests/platform/forms/CallListFixture.h"

#include <QHeaderView>
#include <QPixmap>

namespace forms {
namespace {

class ListViewDrawing : public CallListFixture {
protected:
    QString shown(int row, int column, int role = Qt::DisplayRole) {
        return view().model()->index(row - 1, column).data(role).toString();
    }
    int drawn(int column) { return view().header()->sectionSize(column); }

    void showStatusLine(const std::string& text) {
        list.ListItems().Clear();
        list.ColumnHeaders().Clear();
        list.SetHideColumnHeaders(true);
        list.ColumnHeaders().Add("", {4000});
        list.ListItems().Add("", text);
        list.Refresh();
        QCoreApplication::processEvents();
    }

    static QIcon icon() {
        QPixmap picture(16, 16);
        picture.fill(Qt::red);
        return picture;
    }
};

TEST_F(ListViewDrawing, LineBreaksAndTabsAreDrawnAsBlanksAndKept) {
    ListItem item = list.ListItems().Add("K1", "");
    item.SetSubItems(1, "first\r\nsecond\tthird");
    fill(0);
    EXPECT_EQ(shown(1, 1), QStringLiteral("first second third"));
    EXPECT_EQ(list.ListItems().Item(1).SubItems(1), "first\r\nsecond\tthird");
    list.ListItems().Add("K2", "").SetSubItems(1, "plain");
    list.Refresh();
    EXPECT_EQ(view().visualRect(view().model()->index(0, 1)).height(),
              view().visualRect(view().model()->index(1, 1)).height());
}

TEST_F(ListViewDrawing, MarkupIsText) {
    list.ListItems().Add("K1", "").SetSubItems(1, "<b>bold</b> & co");
    fill(0);
    EXPECT_EQ(shown(1, 1), QStringLiteral("<b>bold</b> & co"));
}

TEST_F(ListViewDrawing, TheIconColumnIsNeverNarrowerThanItsIcon) {
    ImageList images;
    images.Set(1, icon(), QStringLiteral("message"));
    list.SetSmallIcons(images);
    fill(1);
    EXPECT_EQ(list.ColumnHeaders().Item(1).Width.value, 70);
    EXPECT_GE(drawn(0), 16);
}

TEST_F(ListViewDrawing, ADateColumnShowsWholeDatesAlsoInABigFont) {
    fill(1);
    const QString date = shown(1, 1);
    EXPECT_GE(drawn(1), view().fontMetrics().horizontalAdvance(date));
    QFont big = list.font();
    big.setPointSize(24);
    list.setFont(big);
    QCoreApplication::processEvents();
    EXPECT_GE(drawn(1), view().fontMetrics().horizontalAdvance(date));
    EXPECT_EQ(list.ColumnHeaders().Item(2).Width.value, 1700);
}

TEST_F(ListViewDrawing, AnEndlessCellDoesNotPushTheOthersOut) {
    list.ListItems().Add("K1", "").SetSubItems(2, std::string(5000, 'W'));
    fill(0);
    EXPECT_LT(drawn(2), 600);
}

TEST_F(ListViewDrawing, AStatusLineSpansTheView) {
    showStatusLine("Loading, please wait...");
    EXPECT_EQ(drawn(0), view().viewport()->width());
    list.resize(900, 300);
    QCoreApplication::processEvents();
    EXPECT_EQ(drawn(0), view().viewport()->width());
}

TEST_F(ListViewDrawing, AStatusLineIsNeverCut) {
    showStatusLine(std::string(200, 'W'));
    EXPECT_GE(drawn(0), view().fontMetrics().horizontalAdvance(QString(200, u'W')));
}

TEST_F(ListViewDrawing, TheHeaderComesBackAfterAStatusLine) {
    showStatusLine("x");
    EXPECT_TRUE(view().header()->isHidden());
    EXPECT_TRUE(list.HideColumnHeaders());
    list.SetHideColumnHeaders(false);
    EXPECT_FALSE(view().header()->isHidden());
}

TEST_F(ListViewDrawing, ColumnsAreAlignedAsStated) {
    list.ColumnHeaders().Add("Middle", {500}, kColumnCenter);
    fill(1);
    const auto aligned = [&](int column) {
        return view().model()->index(0, column).data(Qt::TextAlignmentRole).value<Qt::Alignment>();
    };
    EXPECT_TRUE(aligned(0).testFlag(Qt::AlignLeft));
    EXPECT_TRUE(aligned(1).testFlag(Qt::AlignRight));
    EXPECT_TRUE(aligned(3).testFlag(Qt::AlignHCenter));
}

TEST_F(ListViewDrawing, AnIconIsReadByItsName) {
    ImageList images;
    images.Set(1, icon(), QStringLiteral("message"));
    images.Set(8, icon(), QStringLiteral("no message"));
    list.SetSmallIcons(images);
    fill(2);
    list.ListItems().Item(2).SetSmallIcon(8);
    list.Refresh();
    EXPECT_EQ(shown(1, 0, Qt::AccessibleTextRole), QStringLiteral("message"));
    EXPECT_EQ(shown(2, 0, Qt::AccessibleTextRole), QStringLiteral("no message"));
}

struct Ground {
    const char* name;
    QColor window, base, text;
};

class CheckBoxDrawing : public CallListFixture, public testing::WithParamInterface<Ground> {
protected:
    void SetUp() override {
        QPalette palette;
        palette.setColor(QPalette::Window, GetParam().window);
        palette.setColor(QPalette::Base, GetParam().base);
        palette.setColor(QPalette::Text, GetParam().text);
        list.setPalette(palette);
        list.sendMessage(LVM_SETEXTENDEDLISTVIEWSTYLE, LVS_EX_CHECKBOXES, -1);
    }
};

TEST_P(CheckBoxDrawing, TheEdgeOfAnUncheckedBoxStandsOutFromTheList) {
    fill(1);
    QStyleOptionViewItem cell;
    cell.initFrom(&view());
    cell.rect = view().visualRect(view().model()->index(0, 0));
    cell.features = QStyleOptionViewItem::HasCheckIndicator;
    const QRect box = view().style()->subElementRect(QStyle::SE_ItemViewItemCheckIndicator, &cell, &view());
    const QImage drawn = view().viewport()->grab().toImage();
    for (const QPoint& edge : {QPoint(box.center().x(), box.top()), QPoint(box.center().x(), box.bottom()),
                               QPoint(box.left(), box.center().y()), QPoint(box.right(), box.center().y())})
        EXPECT_GE(colour::contrast(drawn.pixelColor(edge), GetParam().base), 3.0)
            << drawn.pixelColor(edge).name().toStdString();
}

INSTANTIATE_TEST_SUITE_P(Themes, CheckBoxDrawing,
                         testing::Values(Ground{"Light", "#efefef", "#ffffff", "#1e1e1e"},
                                         Ground{"Dark", "#2a2e32", "#1b1e20", "#fcfcfc"}),
                         [](const auto& theme) { return std::string(theme.param.name); });

TEST_F(ListViewDrawing, TheListIsKnownByItsName) {
    list.SetAccessibleName(QStringLiteral("Calls"));
    EXPECT_EQ(view().accessibleName(), QStringLiteral("Calls"));
}

} // namespace
} // namespace forms
