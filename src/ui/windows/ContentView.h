#pragma once

#include "model/MainViewModel.h"
#include "platform/NotificationCenter.h"

#include <QWidget>

#include <functional>

namespace ardeo
{

inline const QString openHelpNotification = QStringLiteral("ardeoIPConfigOpenHelp");
inline const QString openShortcutsNotification = QStringLiteral("ardeoIPConfigOpenShortcuts");

/// The main window's content: the sidebar and the detail area. When it appears, the model lists the services;
/// coming back from being hidden or minimised is no appearance. It opens the windows that the two
/// notifications ask for.
class ContentView final : public QWidget
{
    Q_OBJECT

public:
    /// Opens a window of the application by its identifier.
    using OpenWindow = std::function<void(const QString& id)>;

    ContentView(MainViewModel& model, Clock& clock, NotificationCenter& notifications, OpenWindow openWindow,
                QWidget* parent = nullptr);

protected:
    void showEvent(QShowEvent* event) override;

private:
    MainViewModel& vm;
    bool m_hasAppeared = false;
};

} // namespace ardeo
