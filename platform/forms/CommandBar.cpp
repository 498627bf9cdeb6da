// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/forms/CommandBar.h"

#include "platform/basic/RuntimeError.h"
#include "platform/forms/DescriptionLabel.h"

#include <QAction>
#include <QMainWindow>
#include <QMenu>

#include <algorithm>

namespace forms {

CommandBar::CommandBar(QMainWindow& window) : m_window(window) {}
CommandBar::~CommandBar() = default;

Band& CommandBar::AddBand(std::string_view name, std::string_view caption, BandKind kind) {
    m_bands.push_back(std::make_unique<Band>(name, caption, kind, m_window));
    Band& band = *m_bands.back();
    connect(&band, &Band::toolClicked, this, &CommandBar::ToolClick);
    connect(&band, &Band::toolSubBandChanged, this, &CommandBar::openSubBand);
    openWaitingSubBands(band);
    return band;
}

Band& CommandBar::Bands(int index) const {
    if (index < 0 || index >= BandCount())
        throw basic::RuntimeError(basic::kElementNotFound);
    return *m_bands[static_cast<std::size_t>(index)];
}

Band& CommandBar::Bands(std::string_view name) const {
    const auto found = std::find_if(m_bands.begin(), m_bands.end(),
                                    [name](const auto& band) { return band->Name() == name; });
    if (found == m_bands.end())
        throw basic::RuntimeError(basic::kElementNotFound);
    return **found;
}

void CommandBar::SetClientAreaControl(QWidget* control) {
    m_window.setCentralWidget(control);
}
QWidget* CommandBar::ClientAreaControl() const {
    return m_window.centralWidget();
}

void CommandBar::ShowDescriptionsIn(Tool& tool) {
    tool.SetCustom(new DescriptionLabel(m_window));
}

void CommandBar::PopupMenu(std::string_view bandName, const QPoint& globalPos) {
    QMenu* menu = Bands(bandName).menu();
    if (menu == nullptr)
        throw basic::RuntimeError(basic::kInvalidProcedureCall);
    menu->popup(globalPos);
}

void CommandBar::openSubBand(Tool& tool) {
    const auto found = std::find_if(m_bands.begin(), m_bands.end(),
                                    [&](const auto& band) { return band->Name() == tool.SubBand(); });
    tool.action()->setMenu(found == m_bands.end() ? nullptr : (*found)->menu());
}

void CommandBar::openWaitingSubBands(const Band& band) {
    for (const auto& other : m_bands) {
        for (int i = 0; i < other->ToolCount(); ++i) {
            if (other->Tools(i).SubBand() == band.Name())
                openSubBand(other->Tools(i));
        }
    }
}

} // namespace forms
