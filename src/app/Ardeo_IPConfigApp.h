#pragma once

#include "app/AppDelegate.h"
#include "model/MainViewModel.h"
#include "platform/NotificationCenter.h"

#include <QCoreApplication>
#include <QMainWindow>

namespace ardeo
{

/// The application: the one model of the process, the main window, and the two windows beside it. Made after
/// the QApplication; the platform outlives it.
class Ardeo_IPConfigApp final
{
    Q_DECLARE_TR_FUNCTIONS(ardeo::Ardeo_IPConfigApp)

public:
    explicit Ardeo_IPConfigApp(Platform& platform);
    ~Ardeo_IPConfigApp();
    Ardeo_IPConfigApp(const Ardeo_IPConfigApp&) = delete;
    Ardeo_IPConfigApp& operator=(const Ardeo_IPConfigApp&) = delete;

    AppDelegate appDelegate;
    std::shared_ptr<MainViewModel> vm;
    NotificationCenter notifications;

    /// Opens the window with that identifier ("help" or "shortcuts"), or brings it to the front.
    void openWindow(const QString& id);

private:
    void setUpMainWindow();
    void showAboutPanel();

    Platform& m_platform;
    QMainWindow m_mainWindow;
    QPointer<QWidget> m_aboutPanel;
    /// The other windows by their identifiers; ours to delete, unless the user has closed them.
    QHash<QString, QPointer<QWidget>> m_windows;
};

} // namespace ardeo
