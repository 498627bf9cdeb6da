// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The drawn half of a list view: rows in report form, the user's mouse and keys told in the control's events,
// and columns drawn at least as wide as their contents usually need. Owned by ListView. Rows count from 0.
// User-interface thread.

#include <QTreeView>

#include <set>

namespace forms {

class ListModel;
class ReportHeader;

class ReportView : public QTreeView {
    Q_OBJECT
public:
    ReportView(ListModel& model, QWidget* parent);

    ReportHeader& reportHeader() const noexcept { return *m_header; }
    void setFullRowSelect(bool on);
    bool isFullRowSelect() const noexcept { return m_fullRowSelect; }
    void setHeaderShown(bool shown);
    bool isHeaderShown() const noexcept { return m_headerShown; }
    void fitColumns();

    QModelIndex indexAt(const QPoint& point) const override;

Q_SIGNALS:
    // The user is about to do something: whatever the view was not told yet must be told now.
    void userInput();
    void clickedAnywhere();
    void rowClicked(int row);
    void doubleClickedAnywhere();
    void mouseUp(int button, QPoint globalPos);

protected:
    bool event(QEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    bool isFocusUnselected() const;
    void toggleCheck(int row);
    void askForMenu();
    bool isStatusLine() const;
    int drawnWidth(int column) const;
    int contentWidth(int column) const;
    void noteSized(int column, int width);

    ListModel& m_model;
    ReportHeader* m_header;
    std::set<int> m_sizedByUser;
    bool m_fullRowSelect = false;
    bool m_headerShown = true;
    bool m_doubleClicked = false;
    bool m_fitting = false;
    int m_selectionChanges = 0;
};

} // namespace forms
