#include "app/MenuBarExtra.h"

#include "ui/elements/Symbol.h"

#include <QCursor>
#include <QGuiApplication>

namespace ardeo
{

MenuBarExtra::MenuBarExtra(QMenu& menu, AppDelegate& appDelegate, const QString& toolTip)
    : m_menu(menu)
    , m_appDelegate(appDelegate)
    , m_toolTip(toolTip)
{
    connect(&m_area, &StatusArea::changed, this, &MenuBarExtra::followArea);
}

bool MenuBarExtra::isPresent() const
{
    return m_icon && (m_isInTray ? StatusArea::hasTray() : m_area.hasNotifierHost());
}

void MenuBarExtra::followArea()
{
    // The toolkit settles once and for all, when the first icon is made, for a status notifier host or for
    // X11's tray. So nothing is made before one of them is there; later it comes and goes with that one.
    if (!m_icon && (m_area.hasNotifierHost() || StatusArea::hasTray()))
        makeIcon();
    if (!isPresent())
        m_appDelegate.menuBarExtraDidVanish();
}

void MenuBarExtra::makeIcon()
{
    m_isInTray = !m_area.hasNotifierHost();
    // A colour that stands out from light panels as well as from dark ones: which it will be, nobody tells.
    const QColor colour = look::colours(ColorScheme::light).accent;
    m_icon = std::make_unique<QSystemTrayIcon>(
        symbolIcon(QStringLiteral("network.badge.shield.half.filled"), colour));
    m_icon->setToolTip(m_toolTip);
    m_icon->setContextMenu(&m_menu);
    connect(m_icon.get(), &QSystemTrayIcon::activated, this,
            [this](QSystemTrayIcon::ActivationReason reason) {
                if (reason != QSystemTrayIcon::Trigger)
                    return;
                // Either button opens the menu, the right one by itself. On Wayland a menu of ours has no
                // place to be.
                if (QGuiApplication::platformName() == QStringLiteral("xcb"))
                    m_menu.popup(QCursor::pos());
                else
                    m_appDelegate.showMainWindow();
            });
    m_icon->show();
}

} // namespace ardeo
