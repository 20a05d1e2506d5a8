#pragma once

#include "app/AppDelegate.h"
#include "model/MainViewModel.h"
#include "platform/NotificationCenter.h"

#include <QMenuBar>

namespace ardeo
{

/// What the commands of the main menu work on; all of it outlives the menu.
struct MainMenuTargets {
    MainViewModel& vm;
    NotificationCenter& notifications;
    Workspace& workspace;
    std::function<void()> showAboutPanel;
};

/// The main menu. Its shortcuts work in every window of the program, and its items show what can be done at
/// the moment.
QMenuBar* makeMainMenu(const MainMenuTargets& targets);

/// The title of the command that switches starting at login.
QString loginItemTitle(bool isLoginItem);

} // namespace ardeo
