// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// A band of a command bar: its tools in order, drawn as the window's menu bar, a menu or a toolbar. Tools are
// addressed by index from 0, separators counting, or by name (the first of that name). Owned by its command
// bar; user-interface thread.

#include "platform/forms/Tool.h"

#include <QObject>

#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

class QHBoxLayout;
class QMainWindow;
class QMenu;
class QToolBar;

namespace forms {

enum class BandKind { Toolbar, MenuBar, DropDown, ContextMenu };

class Band : public QObject {
    Q_OBJECT
public:
    Band(std::string_view name, std::string_view caption, BandKind kind, QMainWindow& window);
    ~Band() override;

    const std::string& Name() const noexcept { return m_name; }
    BandKind Kind() const noexcept { return m_kind; }
    const std::string& Caption() const noexcept { return m_caption; }
    void SetCaption(std::string_view caption);

    Tool& AddTool(std::string_view name, std::string_view caption = {});
    Tool& AddSeparator() { return AddTool(kSeparatorName); }
    int ToolCount() const noexcept { return static_cast<int>(m_tools.size()); }
    // Error 35601 for an index or a name that is not there.
    Tool& Tools(int index) const;
    Tool& Tools(std::string_view name) const;

    // Null unless the band is of the kind that is drawn so.
    QMenu* menu() const noexcept { return m_menu; }
    QToolBar* toolBar() const noexcept { return m_toolBar; }

Q_SIGNALS:
    void toolClicked(forms::Tool& tool);
    void toolSubBandChanged(forms::Tool& tool);

private:
    void draw();
    void openFirstMenu();
    void show(Tool& tool);
    void host(Tool& tool, QWidget* former);
    QHBoxLayout& placeOf(Tool& tool);

    std::string m_name;
    std::string m_caption;
    BandKind m_kind;
    QMainWindow& m_window;
    QMenu* m_menu = nullptr;
    QToolBar* m_toolBar = nullptr;
    std::vector<std::unique_ptr<Tool>> m_tools;
    std::map<const Tool*, QHBoxLayout*> m_places;
};

} // namespace forms
