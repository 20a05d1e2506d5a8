#pragma once

#include <QCoreApplication>
#include <QPointer>
#include <QWidget>

#include <functional>

namespace ardeo
{

/// How the program shows itself on the desktop: with its windows, or with its tray icon alone. Closing
/// the main window never ends it.
class AppDelegate final
{
    Q_DECLARE_TR_FUNCTIONS(ardeo::AppDelegate)

public:
    /// The window that showMainWindow brings back; null until there is one, and when it is destroyed.
    QPointer<QWidget> mainWindow;
    /// Whether the desktop shows the tray icon, without which a hidden program would be lost.
    std::function<bool()> hasMenuBarExtra = [] { return false; };

    /// Shows the program as one with windows.
    void applicationDidFinishLaunching() const;
    static bool applicationShouldTerminateAfterLastWindowClosed() { return false; }

    /// Brings the main window to the front, from wherever it is; a hidden one comes back where it was.
    void showMainWindow() const;
    /// Takes the main window off the screen and the program out of the task switcher. On a desktop that has
    /// no place for the tray icon the window is minimised instead, and the first time this says why.
    void hideMainWindow();
    /// Brings a hidden main window back, minimised: nothing else leads to it any more.
    void menuBarExtraDidVanish() const;
    /// Minimises all windows of the program.
    static void hide();

private:
    void restorePlace() const;

    /// Where the hidden window was: window managers find a new place for what is shown again.
    QByteArray m_place;
    bool m_hasExplained = false;
};

/// Ends the program, whatever it is doing, without asking its windows: the main one would refuse to close.
void quit();

/// Brings a window to the front, also one that is hidden or minimised.
void bringToFront(QWidget& window);

} // namespace ardeo
