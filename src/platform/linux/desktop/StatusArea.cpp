#include "platform/linux/desktop/StatusArea.h"

#include "platform/linux/desktop/X11Desktop.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusServiceWatcher>
#include <QDBusVariant>
#include <QGuiApplication>

namespace ardeo
{

namespace
{

constexpr auto watcherService = "org.kde.StatusNotifierWatcher";
constexpr auto watcherPath = "/StatusNotifierWatcher";

} // namespace

StatusArea::StatusArea(QObject* parent) : QObject(parent)
{
    QDBusConnection bus = QDBusConnection::sessionBus();
    auto* presence = new QDBusServiceWatcher(QLatin1String(watcherService), bus,
                                             QDBusServiceWatcher::WatchForOwnerChange, this);
    connect(presence, &QDBusServiceWatcher::serviceOwnerChanged, this, &StatusArea::askForHost);
    for (const char* change : {"StatusNotifierHostRegistered", "StatusNotifierHostUnregistered"})
        bus.connect(QLatin1String(watcherService), QLatin1String(watcherPath), QLatin1String(watcherService),
                    QLatin1String(change), this, SLOT(askForHost()));
    m_trayEvent = watchX11Tray();
    if (m_trayEvent != 0)
        qGuiApp->installNativeEventFilter(this);
    askForHost();
}

bool StatusArea::hasTray()
{
    return hasX11Tray();
}

void StatusArea::askForHost()
{
    QDBusMessage question = QDBusMessage::createMethodCall(
        QLatin1String(watcherService), QLatin1String(watcherPath),
        QStringLiteral("org.freedesktop.DBus.Properties"), QStringLiteral("Get"));
    question << QLatin1String(watcherService) << QStringLiteral("IsStatusNotifierHostRegistered");
    auto* answer = new QDBusPendingCallWatcher(QDBusConnection::sessionBus().asyncCall(question), this);
    connect(answer, &QDBusPendingCallWatcher::finished, this, [this, answer] {
        answer->deleteLater();
        const QVariantList values = answer->reply().arguments();
        m_isHostKnown = true;
        m_hasNotifierHost = answer->reply().type() == QDBusMessage::ReplyMessage && !values.isEmpty() &&
                            values.first().value<QDBusVariant>().variant().toBool();
        Q_EMIT changed();
    });
}

bool StatusArea::nativeEventFilter(const QByteArray&, void* message, qintptr*)
{
    if (isX11Event(message, m_trayEvent) && m_isHostKnown)
        Q_EMIT changed();
    return false;
}

} // namespace ardeo
