#pragma once

#include "app/MenuBarMenuView.h"
#include "platform/linux/desktop/StatusArea.h"

#include <QSystemTrayIcon>

#include <memory>

namespace ardeo
{

/// The program's icon in the desktop's status area, with its menu. It appears as soon as there is a place for
/// it, also long after the start.
class MenuBarExtra final : public QObject
{
    Q_OBJECT

public:
    /// The menu and the delegate outlive it.
    MenuBarExtra(QMenu& menu, AppDelegate& appDelegate, Clock& clock, const QString& toolTip);

    /// Whether the desktop has a place for the icon, at this moment.
    bool isPresent() const { return m_area.isPresent(); }

private:
    void showIcon();

    QMenu& m_menu;
    AppDelegate& m_appDelegate;
    QString m_toolTip;
    StatusArea m_area;
    std::unique_ptr<QSystemTrayIcon> m_icon;
};

} // namespace ardeo
