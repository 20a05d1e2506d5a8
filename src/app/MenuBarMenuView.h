#pragma once

#include "app/AppDelegate.h"
#include "model/MainViewModel.h"
#include "platform/NotificationCenter.h"
#include "ui/elements/Style.h"

#include <QMenu>

namespace ardeo
{

/// The menu behind the tray icon: what the selected service is and has, and the ways into the program.
/// It follows the model while it lives, and everything that it is given outlives it.
class MenuBarMenuView final : public QMenu
{
    Q_OBJECT

public:
    MenuBarMenuView(MainViewModel& model, AppDelegate& appDelegate, NotificationCenter& notifications,
                    Platform& platform);

private:
    /// A line of the menu that only says something, while there is something to say.
    template <typename Read>
    void addText(const QFont& font, Emphasis emphasis, Read read);
    QCoro::Task<> openShortcuts();

    MainViewModel& vm;
    AppDelegate& m_appDelegate;
    NotificationCenter& m_notifications;
    Clock& m_clock;
};

} // namespace ardeo
