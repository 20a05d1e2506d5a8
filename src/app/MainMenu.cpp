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

/// Gives the translations of the main menu their place.
struct MainMenu {
    Q_DECLARE_TR_FUNCTIONS(ardeo::MainMenu)
};

template <typename Operation>
QAction* addCommand(QMenu* menu, const QString& title, const QList<QKeySequence>& shortcuts,
                    Operation operation)
{
    QAction* command = menu->addAction(title, operation);
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
    return isLoginItem ? MainMenu::tr("Remove from Login Items") : MainMenu::tr("Start at Login");
}

QMenuBar* makeMainMenu(const MainMenuTargets& targets)
{
    MainViewModel& vm = targets.vm;
    auto* bar = new QMenuBar;

    QMenu* application = bar->addMenu(MainMenu::tr("&Ardeo IP Config"));
    addCommand(application, MainMenu::tr("About Ardeo IP Config"), {}, targets.showAboutPanel);
    application->addSeparator();
    QAction* loginItem = addCommand(application, {}, {}, [&vm] { vm.toggleLoginItem(); });
    bind(
        loginItem, [&vm] { return loginItemTitle(vm.isLoginItem.value()); },
        [loginItem](const QString& title) { loginItem->setText(title); });
    application->addSeparator();
    addCommand(application, MainMenu::tr("Hide Ardeo IP Config"), {keys::hide}, &AppDelegate::hide);
    application->addSeparator();
    addCommand(application, MainMenu::tr("Quit Ardeo IP Config"), {keys::quit}, &quit);

    QMenu* file = bar->addMenu(MainMenu::tr("&File"));
    addCommand(file, MainMenu::tr("Import Profiles…"), {keys::importProfiles}, [&vm] { vm.importPresets(); });
    addCommand(file, MainMenu::tr("Export Profiles…"), {keys::exportProfiles}, [&vm] { vm.exportPresets(); });

    QMenu* tools = bar->addMenu(MainMenu::tr("&Tools"));
    addCommand(tools, MainMenu::tr("Refresh"), {keys::refresh}, [&vm] { vm.refreshAdapters(); });
    QAction* apply = addCommand(tools, MainMenu::tr("Apply"), {keys::apply, keys::applyOnKeypad},
                                [&vm] { vm.applyConfiguration(); });
    enableWhile(apply, [&vm] {
        return !vm.isApplying.value() && !vm.isLoading.value() && vm.selectedAdapter.value().has_value();
    });
    QAction* renew = addCommand(tools, MainMenu::tr("Renew DHCP"), {}, [&vm] { vm.renewDHCPLease(); });
    enableWhile(renew, [&vm] {
        return vm.currentConfig.value().ipv4Mode == IPv4Mode::dhcp && vm.selectedAdapter.value().has_value();
    });
    tools->addSeparator();
    for (const bool enabled : {true, false}) {
        QAction* toggle =
            addCommand(tools, enabled ? MainMenu::tr("Enable Adapter") : MainMenu::tr("Disable Adapter"), {},
                       [&vm, enabled] { vm.setAdapterEnabled(enabled); });
        enableWhile(toggle, [&vm, enabled] {
            const std::optional<AdapterInfo> selected = vm.selectedAdapter.value();
            return selected && selected->isEnabled != enabled;
        });
    }
    tools->addSeparator();
    Workspace& workspace = targets.workspace;
    addCommand(tools, MainMenu::tr("Open Network Settings"), {},
               [&workspace] { openNetworkSettings(workspace); });
    addCommand(tools, MainMenu::tr("Open Activity Monitor"), {},
               [&workspace] { openActivityMonitor(workspace); });

    NotificationCenter& notifications = targets.notifications;
    QMenu* help = bar->addMenu(MainMenu::tr("&Help"));
    addCommand(help, MainMenu::tr("Ardeo IP Config Help"), {keys::help},
               [&notifications] { notifications.post(openHelpNotification); });
    help->addSeparator();
    addCommand(help, MainMenu::tr("Keyboard Shortcuts…"), {},
               [&notifications] { notifications.post(openShortcutsNotification); });
    return bar;
}

} // namespace ardeo
