// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The D-Bus face of one tray icon, org.kde.StatusNotifierItem: properties that panels read, signals when they
// change, and the methods that panels call for clicks. Left click is Activate; ContextMenu is called only by
// panels that cannot show the exported menu, with the place on the screen. The middle button and the wheel do
// nothing. Lives on its parent, the exported object.

#include "platform/shell/StatusNotifierTypes.h"

#include <QDBusAbstractAdaptor>
#include <QDBusObjectPath>
#include <QIcon>
#include <QPoint>

#include <functional>

namespace shell {

inline constexpr char16_t kStatusNotifierMenuPath[] = u"/MenuBar";

class StatusNotifierItem : public QDBusAbstractAdaptor {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.kde.StatusNotifierItem")
    Q_PROPERTY(QString Category READ category CONSTANT)
    Q_PROPERTY(QString Id READ id CONSTANT)
    Q_PROPERTY(QString Title READ title)
    Q_PROPERTY(QString Status READ status CONSTANT)
    Q_PROPERTY(int WindowId READ windowId CONSTANT)
    Q_PROPERTY(bool ItemIsMenu READ itemIsMenu CONSTANT)
    Q_PROPERTY(QDBusObjectPath Menu READ menu CONSTANT)
    Q_PROPERTY(QString IconName READ iconName CONSTANT)
    Q_PROPERTY(shell::SniPictures IconPixmap READ iconPixmap)
    Q_PROPERTY(QString OverlayIconName READ iconName CONSTANT)
    Q_PROPERTY(shell::SniPictures OverlayIconPixmap READ noPixmap CONSTANT)
    Q_PROPERTY(QString AttentionIconName READ iconName CONSTANT)
    Q_PROPERTY(shell::SniPictures AttentionIconPixmap READ noPixmap CONSTANT)
    Q_PROPERTY(shell::SniToolTip ToolTip READ toolTip)
public:
    struct Clicks {
        std::function<void()> activate;
        std::function<void(QPoint)> contextMenu;
    };
    StatusNotifierItem(QObject* parent, const QIcon& icon, QString tip, Clicks clicks);

    void setIcon(const QIcon& icon);
    void setTip(const QString& tip);

    QString category() const { return QStringLiteral("Communications"); }
    QString id() const;
    QString title() const;
    QString status() const { return QStringLiteral("Active"); }
    int windowId() const { return 0; }
    bool itemIsMenu() const { return false; }
    QDBusObjectPath menu() const;
    QString iconName() const { return {}; }
    shell::SniPictures iconPixmap() const { return m_pictures; }
    shell::SniPictures noPixmap() const { return {}; }
    shell::SniToolTip toolTip() const;

public Q_SLOTS:
    void Activate(int x, int y);
    void SecondaryActivate(int x, int y);
    void ContextMenu(int x, int y);
    void Scroll(int delta, const QString& orientation);

Q_SIGNALS:
    void NewTitle();
    void NewIcon();
    void NewAttentionIcon();
    void NewOverlayIcon();
    void NewToolTip();
    void NewStatus(const QString& status);

private:
    Clicks m_clicks;
    SniPictures m_pictures;
    QString m_tip;
};

} // namespace shell
