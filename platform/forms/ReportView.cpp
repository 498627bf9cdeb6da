// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/forms/ReportView.h"

#include "platform/forms/ListModel.h"
#include "platform/forms/MouseButtons.h"
#include "platform/forms/ReportHeader.h"
#include "platform/forms/RowDelegate.h"

#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QScopedValueRollback>

#include <algorithm>

namespace forms {
namespace {

// Enough rows to see what a usual cell needs, few enough to cost nothing.
constexpr int kMeasuredRows = 32;
// A date with its time fits; a long name is cut rather than pushing everything else out of sight.
constexpr int kWidestMeasuredCharacters = 32;

int buttonNumber(Qt::MouseButton button) {
    switch (button) {
    case Qt::LeftButton:
        return kLeftButton;
    case Qt::RightButton:
        return kRightButton;
    case Qt::MiddleButton:
        return kMiddleButton;
    default:
        return 0;
    }
}

// A list that gets the focus marks its first item, and the toolkit selects none when a key leads there.
bool isMove(const QKeyEvent& event) {
    const bool isPlain = (event.modifiers() & (Qt::ControlModifier | Qt::ShiftModifier)) == 0;
    switch (event.key()) {
    case Qt::Key_Home:
    case Qt::Key_End:
    case Qt::Key_Up:
    case Qt::Key_Down:
    case Qt::Key_PageUp:
    case Qt::Key_PageDown:
        return isPlain;
    default:
        return false;
    }
}

} // namespace

ReportView::ReportView(ListModel& model, QWidget* parent)
    : QTreeView(parent), m_model(model), m_header(new ReportHeader(this)) {
    setHeader(m_header);
    setModel(&model);
    setItemDelegate(new RowDelegate(this));
    setRootIsDecorated(false);
    setItemsExpandable(false);
    setUniformRowHeights(true);
    setAllColumnsShowFocus(true);
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    setSelectionBehavior(QAbstractItemView::SelectRows);
    setSelectionMode(QAbstractItemView::SingleSelection);
    setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
    setTextElideMode(Qt::ElideRight);
    connect(m_header, &QHeaderView::sectionResized, this,
            [this](int column, int, int width) { noteSized(column, width); });
    connect(&model, &QAbstractItemModel::columnsInserted, this, &ReportView::fitColumns);
    connect(&model, &QAbstractItemModel::columnsRemoved, this, [this] { m_sizedByUser.clear(); });
    connect(&model, &QAbstractItemModel::rowsInserted, this, [this](const QModelIndex&, int first) {
        if (first < kMeasuredRows)
            fitColumns();
    });
    connect(&model, &QAbstractItemModel::dataChanged, this, [this](const QModelIndex& first) {
        if (first.row() < kMeasuredRows)
            fitColumns();
    });
    connect(selectionModel(), &QItemSelectionModel::selectionChanged, this, [this] { ++m_selectionChanges; });
    connect(selectionModel(), &QItemSelectionModel::currentRowChanged, this,
            [this] { ++m_selectionChanges; });
}

void ReportView::setFullRowSelect(bool on) {
    m_fullRowSelect = on;
    setAllColumnsShowFocus(on);
    viewport()->update();
}

void ReportView::setHeaderShown(bool shown) {
    m_headerShown = shown;
    m_header->setVisible(shown);
    fitColumns();
}

QModelIndex ReportView::indexAt(const QPoint& point) const {
    const QModelIndex index = QTreeView::indexAt(point);
    return m_fullRowSelect || index.column() <= 0 ? index : QModelIndex();
}

void ReportView::mousePressEvent(QMouseEvent* event) {
    Q_EMIT userInput();
    m_doubleClicked = false;
    const QModelIndex pressed = indexAt(event->position().toPoint());
    QTreeView::mousePressEvent(event);
    if (pressed.isValid() && buttonNumber(event->button()) != 0)
        Q_EMIT rowClicked(pressed.row());
}

void ReportView::mouseReleaseEvent(QMouseEvent* event) {
    Q_EMIT userInput();
    QTreeView::mouseReleaseEvent(event);
    const int button = buttonNumber(event->button());
    const QPoint where = event->globalPosition().toPoint();
    const bool isClick = button == kLeftButton && !std::exchange(m_doubleClicked, false);
    if (isClick)
        Q_EMIT clickedAnywhere();
    if (button != 0)
        Q_EMIT mouseUp(button, where);
}

void ReportView::mouseDoubleClickEvent(QMouseEvent* event) {
    Q_EMIT userInput();
    QTreeView::mouseDoubleClickEvent(event);
    if (event->button() != Qt::LeftButton)
        return;
    m_doubleClicked = true;
    Q_EMIT doubleClickedAnywhere();
}

void ReportView::keyPressEvent(QKeyEvent* event) {
    // The toolkit would copy the current cell alone, which is the icon's; what to copy is the window's
    // business.
    if (event->matches(QKeySequence::Copy)) {
        event->ignore();
        return;
    }
    Q_EMIT userInput();
    if (event->key() == Qt::Key_F10 && event->modifiers() == Qt::ShiftModifier) {
        askForMenu(); // the toolkit knows the context-menu key only, which many keyboards lack
        return;
    }
    if (event->key() == Qt::Key_Space && m_model.hasCheckBoxes() && currentIndex().isValid()) {
        toggleCheck(currentIndex().row());
        return;
    }
    const int before = m_selectionChanges;
    QTreeView::keyPressEvent(event);
    if (isMove(*event) && isFocusUnselected())
        setCurrentIndex(currentIndex());
    if (m_selectionChanges != before && currentIndex().isValid())
        Q_EMIT rowClicked(currentIndex().row());
}

bool ReportView::isFocusUnselected() const {
    return currentIndex().isValid() && !selectionModel()->isSelected(currentIndex());
}

// Space selects the item that has the focus, as long as it is not, whatever else the key is good for.
bool ReportView::event(QEvent* event) {
    if (event->type() == QEvent::ShortcutOverride && isFocusUnselected()) {
        const auto& key = static_cast<const QKeyEvent&>(*event);
        if (key.key() == Qt::Key_Space && key.modifiers() == Qt::NoModifier) {
            event->accept();
            return true;
        }
    }
    return QTreeView::event(event);
}

// Whichever column the mouse went to last: the toolkit would check only from the box's own.
void ReportView::toggleCheck(int row) {
    const bool isChecked = m_model.rows().flags(row).isChecked;
    m_model.setData(m_model.index(row, 0), isChecked ? Qt::Unchecked : Qt::Checked, Qt::CheckStateRole);
}

void ReportView::contextMenuEvent(QContextMenuEvent* event) {
    event->accept();
    if (event->reason() != QContextMenuEvent::Keyboard)
        return;
    Q_EMIT userInput();
    askForMenu();
}

void ReportView::askForMenu() {
    const QRect row = visualRect(currentIndex()).intersected(viewport()->rect());
    const QPoint where = row.isEmpty() ? viewport()->rect().topLeft() : row.center();
    Q_EMIT mouseUp(kRightButton, viewport()->mapToGlobal(where));
}

void ReportView::resizeEvent(QResizeEvent* event) {
    QTreeView::resizeEvent(event);
    if (isStatusLine())
        fitColumns();
}

void ReportView::changeEvent(QEvent* event) {
    QTreeView::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange)
        fitColumns();
}

bool ReportView::isStatusLine() const {
    return !m_headerShown && m_model.columnCount() == 1;
}

void ReportView::fitColumns() {
    const QScopedValueRollback fitting(m_fitting, true);
    for (int column = 0; column < m_model.columnCount(); ++column) {
        if (!m_sizedByUser.contains(column))
            m_header->resizeSection(column, drawnWidth(column));
    }
}

int ReportView::drawnWidth(int column) const {
    const int stated = basic::toPixels(m_model.columns()[static_cast<std::size_t>(column)].Width);
    const int content = contentWidth(column);
    if (isStatusLine())
        return std::max({stated, content, viewport()->width()});
    const int widest = kWidestMeasuredCharacters * fontMetrics().averageCharWidth();
    const int header = m_headerShown ? m_header->sectionSizeHint(column) : 0;
    return std::max({stated, header, std::min(content, widest)});
}

int ReportView::contentWidth(int column) const {
    QStyleOptionViewItem option;
    initViewItemOption(&option);
    int width = 0;
    for (int row = 0; row < std::min(kMeasuredRows, m_model.rowCount()); ++row) {
        const QModelIndex cell = m_model.index(row, column);
        width = std::max(width, itemDelegate()->sizeHint(option, cell).width());
    }
    return width;
}

void ReportView::noteSized(int column, int width) {
    if (m_fitting || !m_header->isSizing())
        return;
    m_sizedByUser.insert(column);
    m_model.setColumnWidth(column, basic::fromPixels(width));
}

} // namespace forms
