#include "platform/linux/desktop/DesktopApplication.h"

#include "platform/Platform.h"

#include <QDBusConnection>
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

} // namespace

DesktopApplication::Claim DesktopApplication::claim()
{
    QDBusConnection bus = QDBusConnection::sessionBus();
    // The object first: whoever sees the name may call at once.
    if (!bus.isConnected() ||
        !bus.registerObject(QLatin1String(objectPath), this, QDBusConnection::ExportScriptableSlots))
        return Claim::granted;
    const QString name = QLatin1String(applicationIdentifier);
    const auto reply = bus.interface()->registerService(name, QDBusConnectionInterface::DontQueueService,
                                                        QDBusConnectionInterface::DontAllowReplacement);
    // A bus that lets nobody have the name knows of no other one either.
    if (!reply.isValid() || reply.value() != QDBusConnectionInterface::ServiceNotRegistered)
        return Claim::granted;
    QDBusMessage activate = QDBusMessage::createMethodCall(
        name, QLatin1String(objectPath), QLatin1String(interfaceName), QStringLiteral("Activate"));
    // Without the token of the click that started us, the desktop would not let the other one come up.
    activate << QVariantMap{{QLatin1String(activationToken), qEnvironmentVariable(activationVariable)}};
    const QDBusMessage answer = bus.call(activate, QDBus::Block, answerMilliseconds);
    return answer.type() == QDBusMessage::ReplyMessage ? Claim::handedOver : Claim::unanswered;
}

void DesktopApplication::Activate(const QVariantMap& platformData)
{
    const QString token = platformData.value(QLatin1String(activationToken)).toString();
    if (!token.isEmpty())
        qputenv(activationVariable, token.toUtf8());
    Q_EMIT activated();
}

void DesktopApplication::Open(const QStringList&, const QVariantMap& platformData)
{
    Activate(platformData);
}

void DesktopApplication::ActivateAction(const QString&, const QVariantList&, const QVariantMap&) {}

} // namespace ardeo
