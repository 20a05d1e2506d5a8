#include "app/AppDelegate.h"

#include "app/Notice.h"
#include "platform/linux/desktop/X11Desktop.h"
#include "ui/elements/SystemWords.h"

#include <QApplication>
#include <QBackingStore>
#include <QWindow>

#include <malloc.h>

namespace ardeo
{

void bringToFront(QWidget& window)
{
    // Of a window that is minimised the toolkit may have forgotten that it fills the screen; the desktop has
    // not.
    const QWindow* handle = window.windowHandle();
    window.setWindowState((handle ? handle->windowStates() : window.windowState()) & ~Qt::WindowMinimized);
    window.show();
    window.raise();
    activateIgnoringOtherApps(*window.windowHandle());
}

void quit()
{
    QApplication::exit();
}

void AppDelegate::applicationDidFinishLaunching() const
{
    QApplication::setQuitOnLastWindowClosed(applicationShouldTerminateAfterLastWindowClosed());
    if (mainWindow)
        mainWindow->show();
}

void AppDelegate::showMainWindow() const
{
    if (!mainWindow)
        return;
    restorePlace();
    bringToFront(*mainWindow);
}

void AppDelegate::restorePlace() const
{
    // The place is named once more, or the window manager would not know that it is meant.
    if (mainWindow->isHidden() && mainWindow->restoreGeometry(m_place))
        mainWindow->windowHandle()->setGeometry(mainWindow->geometry());
}

void AppDelegate::hideMainWindow()
{
    if (!mainWindow)
        return;
    if (hasMenuBarExtra()) {
        m_place = mainWindow->saveGeometry();
        mainWindow->hide();
        // Nobody sees it, maybe for days. Its picture is made anew when it is shown and the size is not its
        // own; and what has been freed, 6 MB of 30, would stay ours otherwise.
        if (QBackingStore* picture = mainWindow->backingStore())
            picture->resize(QSize(1, 1));
        malloc_trim(0);
        return;
    }
    mainWindow->showMinimized();
    if (std::exchange(m_hasExplained, true))
        return;
    showNotice(tr("Ardeo IP Config is still running. This desktop shows no tray icons, so its "
                  "window was minimised instead of hidden. %1 ends the program.")
                   .arg(keys::text(keys::quit)));
}

void AppDelegate::menuBarExtraDidVanish() const
{
    if (!mainWindow || !mainWindow->isHidden())
        return;
    restorePlace();
    mainWindow->showMinimized();
}

void AppDelegate::hide()
{
    for (QWidget* window : QApplication::topLevelWidgets()) {
        if (window->isVisible() && window->windowType() == Qt::Window)
            window->showMinimized();
    }
}

} // namespace ardeo
