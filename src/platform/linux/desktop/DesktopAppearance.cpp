#include "platform/linux/desktop/DesktopAppearance.h"

#include <QDBusArgument>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QFontDatabase>
#include <QGuiApplication>

#include <algorithm>

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
constexpr auto kdeGeneralGroup = "org.kde.kdeglobals.General";

/// The sizes of text, in typographic points, that desktops come with.
constexpr double gnomePoints = 11;
constexpr double kdePoints = 10;
constexpr double leastUsualPoints = 9;

/// Beyond these nothing can be read, or has a place.
constexpr double leastTextScale = 0.6;
constexpr double mostTextScale = 3;

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
    call << QStringList{QLatin1String(appearanceGroup), QLatin1String(gnomeGroup), QLatin1String(kdeGroup),
                        QLatin1String(kdeGeneralGroup)};
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

double DesktopAppearance::textScale() const
{
    // "Cantarell 11", or "Noto Sans,10,-1,5,50,0,0,0,0,0".
    const double gnome = setting(gnomeGroup, "font-name").toString().section(u' ', -1).toDouble();
    const double kde = setting(kdeGeneralGroup, "font").toString().section(u',', 1, 1).toDouble();
    const double toolkit = QFontDatabase::systemFont(QFontDatabase::GeneralFont).pointSizeF();
    double scale = 1;
    if (gnome > 0)
        scale = gnome / gnomePoints;
    else if (kde > 0)
        scale = kde / kdePoints;
    else if (toolkit < leastUsualPoints || toolkit > gnomePoints) // else it is one of what desktops come with
        scale = toolkit / kdePoints;
    // On X11 this factor is a part of the screen's scale already.
    if (QGuiApplication::platformName().startsWith(QStringLiteral("wayland"))) {
        if (const double factor = setting(gnomeGroup, "text-scaling-factor").toDouble(); factor > 0)
            scale *= factor;
    }
    return std::clamp(scale, leastTextScale, mostTextScale);
}

} // namespace ardeo
