#include "app/MainMenu.h"

#include "app/SystemTools.h"
#include "ui/elements/Binding.h"
#include "ui/elements/SystemWords.h"
#include "ui/windows/ContentView.h"

#include <QApplication>

namespace ardeo
{

namespace
{

template <typename Operation>
QAction* addCommand(QMenu* menu, const char* title, const QList<QKeySequence>& shortcuts, Operation operation)
{
    QAction* command = menu->addAction(QString::fromUtf8(title), operation);
    command->setShortcuts(shortcuts);
    command->setShortcutContext(Qt::ApplicationShortcut);
    // The desktop's own menu bars move such commands about by their titles otherwise.
    command->setMenuRole(QAction::NoRole);
    return command;
}

template <typename Condition>
void enableWhile(QAction* command, Condition condition)
{
    bind(command, condition, [command](bool enabled) { command->setEnabled(enabled); });
}

} // namespace

QString loginItemTitle(bool isLoginItem)
{
    return isLoginItem ? QStringLiteral("Remove from Login Items") : QStringLiteral("Start at Login");
}

QMenuBar* makeMainMenu(const MainMenuTargets& targets)
{
    MainViewModel& vm = targets.vm;
    auto* bar = new QMenuBar;

    QMenu* application = bar->addMenu(QStringLiteral("&Ardeo IP Config"));
    addCommand(application, "About Ardeo IP Config", {}, targets.showAboutPanel);
    application->addSeparator();
    QAction* loginItem = addCommand(application, "", {}, [&vm] { vm.toggleLoginItem(); });
    bind(
        loginItem, [&vm] { return loginItemTitle(vm.isLoginItem.value()); },
        [loginItem](const QString& title) { loginItem->setText(title); });
    application->addSeparator();
    addCommand(application, "Hide Ardeo IP Config", {keys::hide}, &AppDelegate::hide);
    application->addSeparator();
    addCommand(application, "Quit Ardeo IP Config", {keys::quit}, &quit);

    QMenu* file = bar->addMenu(QStringLiteral("&File"));
    addCommand(file, "Import Profiles…", {keys::importProfiles}, [&vm] { vm.importPresets(); });
    addCommand(file, "Export Profiles…", {keys::exportProfiles}, [&vm] { vm.exportPresets(); });

    QMenu* tools = bar->addMenu(QStringLiteral("&Tools"));
    addCommand(tools, "Refresh", {keys::refresh}, [&vm] { vm.refreshAdapters(); });
    QAction* apply =
        addCommand(tools, "Apply", {keys::apply, keys::applyOnKeypad}, [&vm] { vm.applyConfiguration(); });
    enableWhile(apply, [&vm] {
        return !vm.isApplying.value() && !vm.isLoading.value() && vm.selectedAdapter.value().has_value();
    });
    QAction* renew = addCommand(tools, "Renew DHCP", {}, [&vm] { vm.renewDHCPLease(); });
    enableWhile(renew, [&vm] {
        return vm.currentConfig.value().ipv4Mode == IPv4Mode::dhcp && vm.selectedAdapter.value().has_value();
    });
    tools->addSeparator();
    for (const bool enabled : {true, false}) {
        QAction* toggle = addCommand(tools, enabled ? "Enable Adapter" : "Disable Adapter", {},
                                     [&vm, enabled] { vm.setAdapterEnabled(enabled); });
        enableWhile(toggle, [&vm, enabled] {
            const std::optional<AdapterInfo> selected = vm.selectedAdapter.value();
            return selected && selected->isEnabled != enabled;
        });
    }
    tools->addSeparator();
    Workspace& workspace = targets.workspace;
    addCommand(tools, "Open Network Settings", {}, [&workspace] { openNetworkSettings(workspace); });
    addCommand(tools, "Open Activity Monitor", {}, [&workspace] { openActivityMonitor(workspace); });

    NotificationCenter& notifications = targets.notifications;
    QMenu* help = bar->addMenu(QStringLiteral("&Help"));
    addCommand(help, "Ardeo IP Config Help", {keys::help},
               [&notifications] { notifications.post(openHelpNotification); });
    help->addSeparator();
    addCommand(help, "Keyboard Shortcuts…", {},
               [&notifications] { notifications.post(openShortcutsNotification); });
    return bar;
}

} // namespace ardeo
