// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The window's command bar (`ab`): bands of tools, drawn as the menu bar, menus, context menus and toolbars
// of a main window, and one event for all of them. Bands are addressed by index from 0, in the order in which
// they were added, or by name. Owned by the window's owner and gone before the window. User-interface thread.

#include "platform/forms/Band.h"

#include <QObject>
#include <QPoint>

#include <memory>
#include <string_view>
#include <vector>

namespace forms {

class CommandBar : public QObject {
    Q_OBJECT
public:
    explicit CommandBar(QMainWindow& window);
    ~CommandBar() override;

    Band& AddBand(std::string_view name, std::string_view caption, BandKind kind);
    int BandCount() const noexcept { return static_cast<int>(m_bands.size()); }
    // Error 35601 for an index or a name that is not there.
    Band& Bands(int index) const;
    Band& Bands(std::string_view name) const;

    // The control that fills what menus and toolbars leave of the window, which takes it over.
    void SetClientAreaControl(QWidget* control);
    QWidget* ClientAreaControl() const;

    // Makes a toolbar's tool the place where the description of the tool under the mouse is shown.
    void ShowDescriptionsIn(Tool& tool);

    // Opens the band as a context menu and returns at once.
    void PopupMenu(std::string_view bandName, const QPoint& globalPos);

Q_SIGNALS:
    void ToolClick(forms::Tool& tool);

private:
    void openSubBand(Tool& tool);
    void openWaitingSubBands(const Band& band);

    QMainWindow& m_window;
    std::vector<std::unique_ptr<Band>> m_bands;
};

} // namespace forms
