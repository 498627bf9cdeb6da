// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// One tool of a command bar's band: a menu item, a toolbar button, a separator, or the place of a widget of
// the program's own. The same name may stand in several bands; each occurrence is a tool of its own, and
// changing one changes no other. Texts are UTF-8, "&" marks the access key of a caption. In a toolbar a tool
// with a picture shows only that. Owned by its band; user-interface thread.

#include <QKeySequence>
#include <QList>
#include <QObject>
#include <QPointer>
#include <QString>
#include <QWidget>

#include <string>
#include <string_view>

class QAction;
class QIcon;

namespace forms {

// The name that makes a tool a separator.
inline constexpr std::string_view kSeparatorName = "miSep";

class Tool : public QObject {
    Q_OBJECT
public:
    Tool(std::string_view name, std::string_view caption, bool inToolbar, QObject* parent);
    ~Tool() override;

    const std::string& Name() const noexcept { return m_name; }
    const std::string& Caption() const noexcept { return m_caption; }
    void SetCaption(std::string_view caption);
    const std::string& ToolTipText() const noexcept { return m_toolTipText; }
    void SetToolTipText(std::string_view text);
    // Shown where the window has room for it while the mouse or the menu's cursor is on the tool.
    const std::string& Description() const noexcept { return m_description; }
    void SetDescription(std::string_view text);
    bool Enabled() const noexcept { return m_enabled; }
    void SetEnabled(bool enabled);
    // Shown pressed. Only the program changes it, a click does not.
    bool Checked() const noexcept { return m_checked; }
    void SetChecked(bool pressed);
    void SetPicture(const QIcon& picture);
    // Keys that click the tool; a menu shows the first ones. In the whole window, or while the focus is in
    // `within`.
    void SetShortcuts(const QList<QKeySequence>& keys, QWidget* within = nullptr);
    // What assistive programs call a button without a text; the tool tip when there is none.
    void SetAccessibleName(const QString& name);

    // The band that opens below the tool; its name may be that of a band that is added later.
    const std::string& SubBand() const noexcept { return m_subBand; }
    void SetSubBand(std::string_view bandName);

    // The program's widget in the tool's place in a toolbar, where it takes the room that is left. Null takes
    // it out again; it then is a hidden child of the window it was in. It stays its owner's; the same one may
    // be set again at any time, also after it went elsewhere. Error 5 in a band that is no toolbar.
    QWidget* Custom() const { return m_custom; }
    void SetCustom(QWidget* widget);

    QAction* action() const noexcept { return m_action; }

Q_SIGNALS:
    void clicked();
    void subBandChanged();
    void customChanged(QWidget* former);

private:
    void renewAction();

    std::string m_name;
    std::string m_caption;
    std::string m_toolTipText;
    std::string m_description;
    std::string m_subBand;
    QString m_accessibleName;
    bool m_inToolbar;
    bool m_enabled = true; // the toolkit's own flag goes with what is not drawn
    bool m_checked = false;
    QAction* m_action;
    QPointer<QWidget> m_custom;
};

} // namespace forms
