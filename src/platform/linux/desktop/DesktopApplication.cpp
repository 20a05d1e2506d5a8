#include "platform/linux/desktop/DesktopApplication.h"

#include "platform/Platform.h"
#include "platform/linux/desktop/X11Desktop.h"

#include <QDBusConnectionInterface>
#include <QDBusMessage>

namespace ardeo
{

namespace
{

constexpr auto interfaceName = "org.freedesktop.Application";
constexpr auto objectPath = "/org/ardeo/IPConfig";
constexpr int answerMilliseconds = 5'000;

constexpr auto activationToken = "activation-token";
constexpr auto activationVariable = "XDG_ACTIVATION_TOKEN";
/// The same on X11, and where launchers are old.
constexpr auto startupIdentifier = "desktop-startup-id";
constexpr auto startupVariable = "DESKTOP_STARTUP_ID";

} // namespace

DesktopApplication::DesktopApplication() : m_startupIdentifier(qEnvironmentVariable(startupVariable)) {}

DesktopApplication::Claim DesktopApplication::claim()
{
    QDBusConnection bus = QDBusConnection::sessionBus();
    // The object first: whoever sees the name may call at once.
    if (!bus.isConnected() ||
        !bus.registerObject(QLatin1String(objectPath), this, QDBusConnection::ExportScriptableSlots))
        return Claim::granted;
    return claimName(bus);
}

DesktopApplication::Claim DesktopApplication::claimName(QDBusConnection& bus) const
{
    const QString name = QLatin1String(applicationIdentifier);
    const auto reply = bus.interface()->registerService(name, QDBusConnectionInterface::DontQueueService,
                                                        QDBusConnectionInterface::DontAllowReplacement);
    // A bus that lets nobody have the name knows of no other one either.
    if (!reply.isValid() || reply.value() != QDBusConnectionInterface::ServiceNotRegistered)
        return Claim::granted;
    QDBusMessage activate = QDBusMessage::createMethodCall(
        name, QLatin1String(objectPath), QLatin1String(interfaceName), QStringLiteral("Activate"));
    activate.setAutoStartService(false);
    // Without the token of the click that started us, the desktop would not let the other one come up.
    activate << QVariantMap{{QLatin1String(activationToken), qEnvironmentVariable(activationVariable)},
                            {QLatin1String(startupIdentifier), m_startupIdentifier}};
    const QDBusMessage answer = bus.call(activate, QDBus::Block, answerMilliseconds);
    if (answer.type() == QDBusMessage::ReplyMessage)
        return Claim::handedOver;
    // The other one may have ended meanwhile.
    return bus.interface()->isServiceRegistered(name) ? Claim::unanswered : claimName(bus);
}

void DesktopApplication::Activate(const QVariantMap& platformData)
{
    const QString identifier = platformData.value(QLatin1String(startupIdentifier)).toString();
    const QString token = platformData.value(QLatin1String(activationToken), identifier).toString();
    if (!token.isEmpty())
        qputenv(activationVariable, token.toUtf8());
    Q_EMIT activated();
    endStartup(identifier.toUtf8());
}

void DesktopApplication::Open(const QStringList&, const QVariantMap& platformData)
{
    Activate(platformData);
}

void DesktopApplication::ActivateAction(const QString&, const QVariantList&, const QVariantMap&) {}

} // namespace ardeo
