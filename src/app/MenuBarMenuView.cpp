#include "app/MenuBarMenuView.h"

#include "app/MainMenu.h"
#include "app/SystemTools.h"
#include "ui/elements/Binding.h"
#include "ui/elements/TextLabel.h"
#include "ui/windows/ContentView.h"

#include <QApplication>
#include <QCoroFuture>
#include <QWidgetAction>

namespace ardeo
{

namespace
{

using namespace std::chrono_literals;

/// The main window needs a moment to come up before another one may come before it.
constexpr auto shortcutsDelay = 150ms;

} // namespace

template <typename Read>
void MenuBarMenuView::addText(const QFont& font, Emphasis emphasis, Read read)
{
    // The desktop draws the menu from the entries' texts; where we draw it, the label stands in for the
    // entry.
    auto* entry = new QWidgetAction(this);
    auto* label = new TextLabel(QString(), font, emphasis);
    label->setMargin(4);
    label->setIndent(23); // where the other entries begin
    entry->setDefaultWidget(label);
    addAction(entry);
    bind(entry, read, [entry, label](const QString& text) {
        entry->setText(text);
        entry->setVisible(!text.isEmpty());
        label->setText(text);
    });
}

MenuBarMenuView::MenuBarMenuView(MainViewModel& model, AppDelegate& appDelegate,
                                 NotificationCenter& notifications, Platform& platform)
    : vm(model)
    , m_appDelegate(appDelegate)
    , m_notifications(notifications)
    , m_clock(*platform.clock)
{
    addText(look::font(TextStyle::callout, QFont::DemiBold), Emphasis::primary, [this] {
        const std::optional<AdapterInfo> selected = vm.selectedAdapter.value();
        return selected ? selected->serviceName.string() : QString();
    });
    addText(look::monospacedFont(TextStyle::callout), Emphasis::secondary, [this] {
        const QString address = vm.currentConfig.value().ipAddress.string();
        return vm.selectedAdapter.value() ? address : QString();
    });
    QAction* divider = addSeparator();
    bind(
        divider, [this] { return vm.selectedAdapter.value().has_value(); },
        [divider](bool shown) { divider->setVisible(shown); });

    addAction(QStringLiteral("Open Ardeo IP Config"), this, [this] { m_appDelegate.showMainWindow(); });
    addAction(QStringLiteral("Keyboard Shortcuts…"), this, [this] { openShortcuts(); });
    addSeparator();
    Workspace& workspace = *platform.workspace;
    addAction(QStringLiteral("Network Settings…"), this, [&workspace] { openNetworkSettings(workspace); });
    addAction(QStringLiteral("Activity Monitor…"), this, [&workspace] { openActivityMonitor(workspace); });
    addSeparator();
    QAction* loginItem = addAction(QString(), this, [this] { vm.toggleLoginItem(); });
    bind(
        loginItem, [this] { return loginItemTitle(vm.isLoginItem.value()); },
        [loginItem](const QString& title) { loginItem->setText(title); });
    addSeparator();
    addAction(QStringLiteral("Quit"), this, &quit);
}

QCoro::Task<> MenuBarMenuView::openShortcuts()
{
    m_appDelegate.showMainWindow();
    co_await m_clock.sleep(shortcutsDelay);
    m_notifications.post(openShortcutsNotification);
}

} // namespace ardeo
