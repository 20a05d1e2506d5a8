#include "platform/linux/desktop/FileChooserPortal.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusServiceWatcher>
#include <QFile>
#include <QUrl>
#include <QUuid>

namespace ardeo
{

namespace
{

constexpr auto portalService = "org.freedesktop.portal.Desktop";
constexpr auto portalPath = "/org/freedesktop/portal/desktop";

} // namespace

void FileChooserPortal::askWhatToOpen(const QString& window, const QString& title)
{
    ask(QStringLiteral("OpenFile"), window, title, {});
}

void FileChooserPortal::askWhereToSave(const QString& window, const QString& title, const QString& folder,
                                       const QString& name)
{
    // A path goes as bytes with a zero at their end.
    ask(QStringLiteral("SaveFile"), window, title,
        {{QStringLiteral("current_name"), name},
         {QStringLiteral("current_folder"), QFile::encodeName(folder) + '\0'}});
}

void FileChooserPortal::ask(const QString& method, const QString& window, const QString& title,
                            QVariantMap options)
{
    QDBusConnection bus = QDBusConnection::sessionBus();
    const QString token = QStringLiteral("ardeo") + QUuid::createUuid().toString(QUuid::Id128);
    options[QStringLiteral("handle_token")] = token;
    options[QStringLiteral("modal")] = true;
    // The answer can come before the call's own reply, so it is listened for where it will come from.
    const QString sender = bus.baseService().mid(1).replace(u'.', u'_');
    bus.connect(QLatin1String(portalService),
                QStringLiteral("%1/request/%2/%3").arg(QLatin1String(portalPath), sender, token),
                QStringLiteral("org.freedesktop.portal.Request"), QStringLiteral("Response"), this,
                SLOT(takeResponse(uint, QVariantMap)));
    QDBusMessage call =
        QDBusMessage::createMethodCall(QLatin1String(portalService), QLatin1String(portalPath),
                                       QStringLiteral("org.freedesktop.portal.FileChooser"), method);
    call << window << title << options;
    auto* answer = new QDBusPendingCallWatcher(bus.asyncCall(call), this);
    connect(answer, &QDBusPendingCallWatcher::finished, this, [this, answer] {
        if (answer->isError())
            Q_EMIT unavailable();
    });
    // A portal that dies takes its panel with it.
    auto* presence = new QDBusServiceWatcher(QLatin1String(portalService), bus,
                                             QDBusServiceWatcher::WatchForUnregistration, this);
    connect(presence, &QDBusServiceWatcher::serviceUnregistered, this,
            [this] { Q_EMIT chosen(std::nullopt); });
}

void FileChooserPortal::takeResponse(uint response, const QVariantMap& results)
{
    const QStringList places = results.value(QStringLiteral("uris")).toStringList();
    const bool confirmed = response == 0 && !places.isEmpty();
    Q_EMIT chosen(confirmed ? std::optional(QUrl(places.first()).toLocalFile()) : std::nullopt);
}

} // namespace ardeo
