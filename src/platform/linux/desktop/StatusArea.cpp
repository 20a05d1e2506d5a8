#include "platform/linux/desktop/StatusArea.h"

#include "platform/linux/desktop/X11Desktop.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusServiceWatcher>
#include <QDBusVariant>

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
    askForHost();
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
        m_hasHost = answer->reply().type() == QDBusMessage::ReplyMessage && !values.isEmpty() &&
                    values.first().value<QDBusVariant>().variant().toBool();
        Q_EMIT hostKnown(m_hasHost);
    });
}

bool StatusArea::isPresent() const
{
    return m_hasHost || hasX11Tray();
}

} // namespace ardeo
