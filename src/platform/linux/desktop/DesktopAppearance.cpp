#include "platform/linux/desktop/DesktopAppearance.h"

#include <QDBusArgument>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>

namespace ardeo
{

namespace
{

constexpr auto portalService = "org.freedesktop.portal.Desktop";
constexpr auto portalPath = "/org/freedesktop/portal/desktop";
constexpr auto portalInterface = "org.freedesktop.portal.Settings";

constexpr auto appearanceGroup = "org.freedesktop.appearance";
constexpr auto gnomeGroup = "org.gnome.desktop.interface";
constexpr auto kdeGroup = "org.kde.kdeglobals.KDE";

} // namespace

DesktopAppearance::DesktopAppearance(QObject* parent) : QObject(parent)
{
    qRegisterMetaType<QDBusVariant>(); // or the slot is not found by its name, and nothing is connected
    QDBusConnection::sessionBus().connect(QLatin1String(portalService), QLatin1String(portalPath),
                                          QLatin1String(portalInterface), QStringLiteral("SettingChanged"),
                                          this, SLOT(takeSetting(QString, QString, QDBusVariant)));
    readAll();
}

void DesktopAppearance::readAll()
{
    QDBusMessage call =
        QDBusMessage::createMethodCall(QLatin1String(portalService), QLatin1String(portalPath),
                                       QLatin1String(portalInterface), QStringLiteral("ReadAll"));
    call << QStringList{QLatin1String(appearanceGroup), QLatin1String(gnomeGroup), QLatin1String(kdeGroup)};
    auto* watcher = new QDBusPendingCallWatcher(QDBusConnection::sessionBus().asyncCall(call), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [this, watcher] {
        watcher->deleteLater();
        const QDBusMessage reply = watcher->reply();
        if (reply.type() != QDBusMessage::ReplyMessage || reply.signature() != QStringLiteral("a{sa{sv}}"))
            return;
        QMap<QString, QVariantMap> groups;
        reply.arguments().constFirst().value<QDBusArgument>() >> groups;
        for (auto group = groups.begin(); group != groups.end(); ++group)
            m_settings[group.key()].insert(*group);
        Q_EMIT changed();
    });
}

void DesktopAppearance::takeSetting(const QString& group, const QString& key, const QDBusVariant& value)
{
    m_settings[group][key] = value.variant();
    Q_EMIT changed();
}

QVariant DesktopAppearance::setting(const char* group, const char* key) const
{
    return m_settings.value(QLatin1String(group)).value(QLatin1String(key));
}

std::optional<bool> DesktopAppearance::isDark() const
{
    switch (setting(appearanceGroup, "color-scheme").toUInt()) {
    case 1:
        return true;
    case 2:
        return false;
    default:
        return std::nullopt;
    }
}

bool DesktopAppearance::wantsReducedMotion() const
{
    const QVariant animations = setting(gnomeGroup, "enable-animations");
    const QVariant factor = setting(kdeGroup, "AnimationDurationFactor");
    return setting(appearanceGroup, "reduced-motion").toUInt() == 1 ||
           (animations.isValid() && !animations.toBool()) || (factor.isValid() && factor.toDouble() == 0);
}

} // namespace ardeo
