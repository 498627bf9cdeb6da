// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/forms/Band.h"

#include "platform/basic/RuntimeError.h"
#include "platform/forms/Text.h"

#include <QAction>
#include <QHBoxLayout>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QShortcut>
#include <QToolBar>

#include <algorithm>

namespace forms {

Band::Band(std::string_view name, std::string_view caption, BandKind kind, QMainWindow& window)
    : m_name(name), m_caption(caption), m_kind(kind), m_window(window) {
    draw();
    SetCaption(caption);
}

// The program's own widgets must not go with the toolbar that shows them.
Band::~Band() {
    for (const auto& tool : m_tools)
        tool->SetCustom(nullptr);
}

void Band::draw() {
    if (m_kind == BandKind::Toolbar) {
        m_toolBar = new QToolBar(&m_window);
        m_toolBar->setObjectName(toQString(m_name));
        m_toolBar->setMovable(false);
        m_toolBar->setContextMenuPolicy(Qt::PreventContextMenu);
        m_toolBar->setFocusPolicy(Qt::NoFocus);
        m_window.addToolBar(Qt::BottomToolBarArea, m_toolBar);
    } else if (m_kind == BandKind::MenuBar) {
        auto* open = new QShortcut(QKeySequence(Qt::Key_F10), m_window.menuBar());
        connect(open, &QShortcut::activated, this, &Band::openFirstMenu);
    } else {
        m_menu = new QMenu(&m_window);
        m_menu->setObjectName(toQString(m_name));
    }
}

// Not every theme lets the bare Alt key open the menu bar, and captions may have no access key.
void Band::openFirstMenu() {
    const QList<QAction*> actions = m_window.menuBar()->actions();
    if (actions.isEmpty())
        return;
    m_window.menuBar()->setActiveAction(actions.first());
    QMenu* menu = actions.first()->menu();
    if (menu != nullptr && !menu->isEmpty())
        menu->setActiveAction(menu->actions().first());
}

void Band::SetCaption(std::string_view caption) {
    m_caption = caption;
    if (m_toolBar != nullptr) {
        m_toolBar->setWindowTitle(toQString(caption));
        m_toolBar->setAccessibleName(toQString(caption));
    }
    if (m_menu != nullptr)
        m_menu->setAccessibleName(toQString(caption));
}

Tool& Band::AddTool(std::string_view name, std::string_view caption) {
    m_tools.push_back(std::make_unique<Tool>(name, caption, m_toolBar != nullptr, nullptr));
    Tool& tool = *m_tools.back();
    connect(&tool, &Tool::clicked, this, [this, &tool] { Q_EMIT toolClicked(tool); });
    connect(&tool, &Tool::subBandChanged, this, [this, &tool] { Q_EMIT toolSubBandChanged(tool); });
    connect(&tool, &Tool::customChanged, this, [this, &tool](QWidget* former) { host(tool, former); });
    show(tool);
    return tool;
}

void Band::show(Tool& tool) {
    if (m_kind == BandKind::MenuBar) {
        m_window.menuBar()->addAction(tool.action());
    } else if (m_menu != nullptr) {
        m_menu->addAction(tool.action());
    } else {
        m_toolBar->addAction(tool.action());
        // Buttons of a toolbar are out of reach of the keyboard by default, and some commands stand nowhere
        // else.
        if (QWidget* button = m_toolBar->widgetForAction(tool.action()))
            button->setFocusPolicy(Qt::TabFocus);
    }
}

Tool& Band::Tools(int index) const {
    if (index < 0 || index >= ToolCount())
        throw basic::RuntimeError(basic::kElementNotFound);
    return *m_tools[static_cast<std::size_t>(index)];
}

Tool& Band::Tools(std::string_view name) const {
    const auto found = std::find_if(m_tools.begin(), m_tools.end(),
                                    [name](const auto& tool) { return tool->Name() == name; });
    if (found == m_tools.end())
        throw basic::RuntimeError(basic::kElementNotFound);
    return **found;
}

// The toolkit deletes a widget that is put into a toolbar with the toolbar, so the program's widget lies in a
// frame that stays there.
void Band::host(Tool& tool, QWidget* former) {
    QWidget* custom = tool.Custom();
    if (former != nullptr && former != custom) {
        former->hide();
        former->setParent(&m_window);
    }
    if (custom == nullptr)
        return;
    QHBoxLayout& place = placeOf(tool);
    if (place.indexOf(custom) < 0)
        place.addWidget(custom);
    const bool isLimited = custom->sizePolicy().horizontalPolicy() == QSizePolicy::Maximum;
    place.parentWidget()->setSizePolicy(isLimited ? QSizePolicy::Maximum : QSizePolicy::Expanding,
                                        QSizePolicy::Preferred);
    custom->show();
}

QHBoxLayout& Band::placeOf(Tool& tool) {
    QHBoxLayout*& place = m_places[&tool];
    if (place == nullptr) {
        auto* frame = new QWidget(m_toolBar);
        place = new QHBoxLayout(frame);
        place->setContentsMargins({});
        m_toolBar->insertWidget(tool.action(), frame);
        tool.action()->setVisible(false);
    }
    return *place;
}

} // namespace forms
