// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The platform's list view in report form. Rows live in a model, so that a list of any length fills and
// scrolls at once: what the program adds is shown, in one piece, when the event loop turns. Texts are plain,
// whatever they hold; line breaks and tabs in a cell are drawn as blanks and kept in the data. Refilling
// leaves nothing selected. Widths are logical properties in twips: what is drawn is never narrower than an
// icon, a header's text or a usual cell, and a single column without header spans the view.
//
// Events come from the user only, never from what the program does. User-interface thread; a QObject parent
// destroys it.

#include "platform/forms/ListCollections.h"
#include "platform/forms/ListViewMessages.h"

#include <QWidget>

#include <functional>
#include <memory>
#include <optional>

namespace forms {

class ImageList;
class ReportView;

class ListView : public QWidget {
    Q_OBJECT
public:
    explicit ListView(QWidget* parent = nullptr);
    ~ListView() override;

    ColumnHeaderCollection& ColumnHeaders() { return m_columnHeaders; }
    ListItemCollection& ListItems() { return m_listItems; }

    bool HideColumnHeaders() const;
    void SetHideColumnHeaders(bool hidden);
    bool MultiSelect() const;
    void SetMultiSelect(bool multiple);
    void SetSmallIcons(const ImageList& images);
    // The name under which assistive programs know the list.
    void SetAccessibleName(const QString& name);

    // The item that has the focus and is selected; none when there is no such item.
    std::optional<ListItem> SelectedItem();
    // Focuses and selects the item; without multiple selection it becomes the only one.
    void SetSelectedItem(const ListItem& item);
    void EnsureVisible(const ListItem& item);
    // Shows what was changed at once instead of at the next turn of the event loop.
    void Refresh();

    // The messages of ListViewMessages.h; any other answers 0. Item numbers count from 0 here.
    std::intptr_t sendMessage(std::uint32_t message, std::intptr_t wParam, std::intptr_t lParam);

    // Who answers the notifications that the header sends to its list; no one by default. An answer other
    // than 0 refuses.
    using NotificationHook = std::function<std::intptr_t(const HeaderNotification&)>;
    void setNotificationHook(NotificationHook hook);

Q_SIGNALS:
    void Click();
    // An item was clicked with any button or reached by keyboard; `index` counts from 1.
    void ItemClick(int index);
    void DblClick();
    // A button of MouseButtons.h; also over the empty part. The context-menu key and Shift+F10 count as the
    // right button.
    void MouseUp(int button, QPoint globalPos);

private:
    void synchronise();
    std::uint32_t setExtendedStyle(std::uint32_t mask, std::uint32_t style);
    std::uint32_t itemState(std::intptr_t row);
    bool setItemState(std::intptr_t row, const ListItemState& change);
    void changeState(int row, const ListItemState& change);
    bool maySize(int column) const;

    std::unique_ptr<ListModel> m_model;
    ColumnHeaderCollection m_columnHeaders;
    ListItemCollection m_listItems;
    NotificationHook m_notificationHook;
    std::uint32_t m_extendedStyle = 0;
    // The view goes before the model that it looks at.
    std::unique_ptr<ReportView> m_view;
};

} // namespace forms
