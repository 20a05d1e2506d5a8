#pragma once

#include "app/MenuBarMenuView.h"
#include "platform/linux/desktop/StatusArea.h"

#include <QSystemTrayIcon>

#include <memory>

namespace ardeo
{

/// The program's icon in the desktop's status area, with its menu. It appears as soon as there is a place for
/// it, also long after the start, and again whenever that comes back.
class MenuBarExtra final : public QObject
{
    Q_OBJECT

public:
    /// The menu and the delegate outlive it.
    MenuBarExtra(QMenu& menu, AppDelegate& appDelegate, const QString& toolTip);

    /// Whether the icon has a place on the desktop, at this moment.
    bool isPresent() const;

private:
    void followArea();
    void makeIcon();

    QMenu& m_menu;
    AppDelegate& m_appDelegate;
    QString m_toolTip;
    StatusArea m_area;
    std::unique_ptr<QSystemTrayIcon> m_icon;
    /// Whether the icon is one for the X11 tray; else it is one for the status notifier host.
    bool m_isInTray = false;
};

} // namespace ardeo
