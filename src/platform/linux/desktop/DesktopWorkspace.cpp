#include "platform/linux/desktop/DesktopWorkspace.h"

#include <QProcess>
#include <QStandardPaths>

#include <algorithm>
#include <array>

namespace ardeo
{

namespace
{

struct Command {
    SystemTool tool;
    /// As XDG_CURRENT_DESKTOP names it; empty for a program of no desktop in particular.
    const char* desktop;
    const char* line;
};

constexpr auto commands = std::to_array<Command>({
    {SystemTool::networkSettings, "GNOME", "gnome-control-center network"},
    {SystemTool::networkSettings, "KDE", "systemsettings kcm_networkmanagement"},
    {SystemTool::networkSettings, "KDE", "systemsettings5 kcm_networkmanagement"},
    {SystemTool::networkSettings, "XFCE", "nm-connection-editor"},
    {SystemTool::networkSettings, "X-Cinnamon", "cinnamon-settings network"},
    {SystemTool::networkSettings, "MATE", "nm-connection-editor"},
    {SystemTool::networkSettings, "LXQt", "nm-connection-editor"},
    {SystemTool::activityMonitor, "GNOME", "gnome-system-monitor"},
    {SystemTool::activityMonitor, "KDE", "plasma-systemmonitor"},
    {SystemTool::activityMonitor, "KDE", "ksysguard"},
    {SystemTool::activityMonitor, "XFCE", "xfce4-taskmanager"},
    {SystemTool::activityMonitor, "X-Cinnamon", "gnome-system-monitor"},
    {SystemTool::activityMonitor, "MATE", "mate-system-monitor"},
    {SystemTool::activityMonitor, "LXQt", "qps"},
    {SystemTool::activityMonitor, "", "lxtask"},
    {SystemTool::activityMonitor, "", "x-terminal-emulator -e top"},
});

} // namespace

bool DesktopWorkspace::open(SystemTool tool)
{
    // A desktop may name its ancestors too, after itself.
    const QStringList desktops = qEnvironmentVariable("XDG_CURRENT_DESKTOP").split(u':', Qt::SkipEmptyParts);
    const auto rank = [&desktops](const Command& command) {
        const qsizetype position = desktops.indexOf(QLatin1String(command.desktop));
        return position < 0 ? desktops.size() : position;
    };
    QList<Command> candidates;
    std::ranges::copy_if(commands, std::back_inserter(candidates),
                         [tool](const Command& command) { return command.tool == tool; });
    std::ranges::stable_sort(candidates, {}, rank);
    return std::ranges::any_of(candidates, [](const Command& command) {
        const QStringList words = QProcess::splitCommand(QString::fromLatin1(command.line));
        const QString program = QStandardPaths::findExecutable(words.first());
        return !program.isEmpty() && QProcess::startDetached(program, words.sliced(1));
    });
}

} // namespace ardeo
