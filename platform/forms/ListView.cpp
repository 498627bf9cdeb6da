// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/forms/ListView.h"

#include "platform/forms/ListModel.h"
#include "platform/forms/ReportHeader.h"
#include "platform/forms/ReportView.h"
#include "platform/forms/WindowHandle.h"

#include <QItemSelectionModel>
#include <QVBoxLayout>

namespace forms {
namespace {

constexpr std::uint32_t kKnownStyles = LVS_EX_CHECKBOXES | LVS_EX_FULLROWSELECT;

} // namespace

ListView::ListView(QWidget* parent)
    : QWidget(parent), m_model(std::make_unique<ListModel>()), m_columnHeaders(*m_model),
      m_listItems(*m_model), m_view(std::make_unique<ReportView>(*m_model, this)) {
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins({});
    layout->addWidget(m_view.get());
    setFocusProxy(m_view.get());
    m_view->reportHeader().setSizingRule([this](int column) { return maySize(column); });
    connect(m_model.get(), &ListModel::changesPending, this, &ListView::synchronise, Qt::QueuedConnection);
    connect(m_view.get(), &ReportView::userInput, this, &ListView::synchronise);
    connect(m_view.get(), &ReportView::clickedAnywhere, this, &ListView::Click);
    connect(m_view.get(), &ReportView::rowClicked, this, [this](int row) { Q_EMIT ItemClick(row + 1); });
    connect(m_view.get(), &ReportView::doubleClickedAnywhere, this, &ListView::DblClick);
    connect(m_view.get(), &ReportView::mouseUp, this, &ListView::MouseUp);
    connect(m_view->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            [this](const QItemSelection& selected, const QItemSelection& deselected) {
                m_model->noteSelection(deselected, false);
                m_model->noteSelection(selected, true);
            });
}

ListView::~ListView() = default;

bool ListView::HideColumnHeaders() const {
    return !m_view->isHeaderShown();
}
void ListView::SetHideColumnHeaders(bool hidden) {
    m_view->setHeaderShown(!hidden);
}

bool ListView::MultiSelect() const {
    return m_view->selectionMode() != QAbstractItemView::SingleSelection;
}
void ListView::SetMultiSelect(bool multiple) {
    m_view->setSelectionMode(multiple ? QAbstractItemView::ExtendedSelection
                                      : QAbstractItemView::SingleSelection);
}

void ListView::SetSmallIcons(const ImageList& images) {
    m_model->setSmallIcons(images);
    m_view->fitColumns();
}

void ListView::SetAccessibleName(const QString& name) {
    setAccessibleName(name);
    m_view->setAccessibleName(name);
}

std::optional<ListItem> ListView::SelectedItem() {
    synchronise();
    const QModelIndex current = m_view->currentIndex();
    if (!current.isValid() || !m_model->rows().flags(current.row()).selected)
        return std::nullopt;
    return ListItem(*m_model, current.row());
}

void ListView::SetSelectedItem(const ListItem& item) {
    synchronise();
    const QModelIndex index = m_model->index(item.Index() - 1, 0);
    const auto command = MultiSelect() ? QItemSelectionModel::Select : QItemSelectionModel::ClearAndSelect;
    m_view->selectionModel()->setCurrentIndex(index, command | QItemSelectionModel::Rows);
}

void ListView::EnsureVisible(const ListItem& item) {
    synchronise();
    m_view->scrollTo(m_model->index(item.Index() - 1, 0));
}

void ListView::Refresh() {
    synchronise();
    m_view->viewport()->update();
}

void ListView::synchronise() {
    m_model->announce();
    if (m_model->takeSelectionChanged())
        m_view->selectionModel()->select(m_model->selection(), QItemSelectionModel::ClearAndSelect);
}

std::intptr_t ListView::sendMessage(std::uint32_t message, std::intptr_t wParam, std::intptr_t lParam) {
    switch (message) {
    case LVM_SETEXTENDEDLISTVIEWSTYLE:
        return setExtendedStyle(static_cast<std::uint32_t>(wParam), static_cast<std::uint32_t>(lParam));
    case LVM_GETEXTENDEDLISTVIEWSTYLE:
        return m_extendedStyle;
    case LVM_GETITEMSTATE:
        return itemState(wParam) & static_cast<std::uint32_t>(lParam);
    case LVM_SETITEMSTATE:
        // NOLINTNEXTLINE(performance-no-int-to-ptr): the message's parameter is defined as an address
        return setItemState(wParam, *reinterpret_cast<const ListItemState*>(lParam)) ? 1 : 0;
    default:
        return 0;
    }
}

void ListView::setNotificationHook(NotificationHook hook) {
    m_notificationHook = std::move(hook);
}

// A mask of 0 means every bit.
std::uint32_t ListView::setExtendedStyle(std::uint32_t mask, std::uint32_t style) {
    const std::uint32_t previous = m_extendedStyle;
    const std::uint32_t changed = mask == 0 ? ~std::uint32_t{0} : mask;
    m_extendedStyle = ((previous & ~changed) | (style & changed)) & kKnownStyles;
    m_view->setFullRowSelect((m_extendedStyle & LVS_EX_FULLROWSELECT) != 0);
    m_model->showCheckBoxes((m_extendedStyle & LVS_EX_CHECKBOXES) != 0);
    return previous;
}

std::uint32_t ListView::itemState(std::intptr_t row) {
    synchronise();
    if (row < 0 || row >= m_listItems.Count())
        return 0;
    const RowFlags& flags = m_model->rows().flags(static_cast<int>(row));
    std::uint32_t state = flags.selected ? LVIS_SELECTED : 0;
    if (m_view->currentIndex().row() == row)
        state |= LVIS_FOCUSED;
    if (flags.ghosted)
        state |= LVIS_CUT;
    if ((m_extendedStyle & LVS_EX_CHECKBOXES) != 0)
        state |= flags.isChecked ? kCheckedState : kUncheckedState;
    return state;
}

// An item number of -1 means every item.
bool ListView::setItemState(std::intptr_t row, const ListItemState& change) {
    if (row < -1 || row >= m_listItems.Count())
        return false;
    const int first = row < 0 ? 0 : static_cast<int>(row);
    const int last = row < 0 ? m_listItems.Count() - 1 : first;
    for (int i = first; i <= last; ++i)
        changeState(i, change);
    return true;
}

void ListView::changeState(int row, const ListItemState& change) {
    if ((change.stateMask & LVIS_SELECTED) != 0)
        m_model->setSelected(row, (change.state & LVIS_SELECTED) != 0);
    if ((change.stateMask & LVIS_CUT) != 0)
        m_model->setGhosted(row, (change.state & LVIS_CUT) != 0);
    if ((change.stateMask & LVIS_STATEIMAGEMASK) == LVIS_STATEIMAGEMASK)
        m_model->setChecked(row, (change.state & LVIS_STATEIMAGEMASK) == kCheckedState);
}

bool ListView::maySize(int column) const {
    if (!m_notificationHook)
        return true;
    HeaderNotification notification;
    notification.hwndFrom = static_cast<std::uint32_t>(handleOf(m_view->reportHeader()));
    notification.code = HDN_BEGINTRACKW;
    notification.item = column;
    return m_notificationHook(notification) == 0;
}

} // namespace forms
