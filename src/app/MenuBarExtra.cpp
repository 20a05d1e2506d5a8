#include "app/MenuBarExtra.h"

#include "platform/linux/desktop/X11Desktop.h"
#include "ui/elements/Symbol.h"

#include <QCursor>
#include <QGuiApplication>

namespace ardeo
{

namespace
{

using namespace std::chrono_literals;

/// By then a session that has just begun has its panels.
constexpr auto patience = 30s;

} // namespace

MenuBarExtra::MenuBarExtra(QMenu& menu, AppDelegate& appDelegate, Clock& clock, const QString& toolTip)
    : m_menu(menu)
    , m_appDelegate(appDelegate)
    , m_toolTip(toolTip)
{
    // The toolkit settles once and for all, when the first icon is made, for a status notifier host or for
    // X11's tray. So nothing is made before one of them is seen, or has had
    // the time to come.
    connect(&m_area, &StatusArea::hostKnown, this, [this](bool present) {
        if (present || hasX11Tray())
            showIcon();
    });
    // An icon for X11's tray then waits for that by itself.
    clock.sleep(patience).then(this, [this] { showIcon(); });
}

void MenuBarExtra::showIcon()
{
    if (m_icon)
        return;
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
