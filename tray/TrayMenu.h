// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The hidden menu mnuPopup with its control array mnuSysTray, indexed from 0. Element 0 exists from the start
// and can never be destroyed; it shows with the first item added. Every element has a caption and a key; the
// caption "-" makes a separator. One QMenu for the component's life, changed only where something changes:
// panels keep copies of it. User-interface thread.

#include <QMenu>
#include <QObject>
#include <QString>

#include <cstdint>

namespace tray {

class TrayMenu : public QObject {
    Q_OBJECT
public:
    TrayMenu();

    QMenu& popup() { return m_mnuPopup; }
    std::int16_t upperBound() const;
    bool isValid(std::int16_t index) const { return index >= 0 && index <= upperBound(); }

    std::int16_t add(const QString& caption, const QString& key);
    void remove(std::int16_t index);
    void setEnabled(std::int16_t index, bool isEnabled);
    // Shows the item as the menu's default; no item for an index without one.
    void markDefault(std::int16_t index);

Q_SIGNALS:
    void clicked(std::int16_t index, const QString& key);

private:
    QAction* appendElement();
    QAction* element(std::int16_t index) const;

    QMenu m_mnuPopup;
    bool m_isUsed = false; // false until the first add()
};

} // namespace tray
