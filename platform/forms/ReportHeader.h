// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The header row of a list view. Before the user drags a divider it asks whether that column may be sized; a
// refused one shows no resize cursor and does not move, neither by dragging nor by a double click. Part of
// ReportView; user-interface thread.

#include <QHeaderView>

#include <functional>

namespace forms {

class ReportHeader : public QHeaderView {
    Q_OBJECT
public:
    // True when the column, counted from 0, may be sized.
    using SizingRule = std::function<bool(int column)>;

    explicit ReportHeader(QWidget* parent);

    void setSizingRule(SizingRule rule) { m_rule = std::move(rule); }
    // The user has hold of a divider.
    bool isSizing() const noexcept { return m_sizing; }

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;

private:
    int dividerAt(const QMouseEvent& event) const;
    bool refuses(int column) const;

    SizingRule m_rule;
    int m_hovered = -1;
    bool m_hoveredRefused = false;
    bool m_sizing = false;
};

} // namespace forms
