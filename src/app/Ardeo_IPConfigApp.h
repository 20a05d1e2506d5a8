#pragma once

#include "model/MainViewModel.h"
#include "platform/linux/DesktopAppearance.h"
#include "ui/ContentView.h"
#include "ui/Style.h"

#include <QApplication>

namespace ardeo
{

/// The application: the one model of the process, and its main window. Made after the QApplication; the
/// platform outlives it.
class Ardeo_IPConfigApp final
{
public:
    explicit Ardeo_IPConfigApp(Platform& platform);

    void showMainWindow();

private:
    void followAppearance();
    void addShortcuts();

    /// The scheme where the desktop tells nothing about it.
    ColorScheme m_paletteScheme;
    DesktopAppearance m_appearance;
    std::shared_ptr<MainViewModel> vm;
    QWidget m_mainWindow;
};

/// The main window around the content: its title and its sizes.
void setUpMainWindow(QWidget& window, ContentView* content);

} // namespace ardeo
