#include "platform/linux/networkmanager/PolkitAuthorization.h"

#include "platform/linux/networkmanager/PolkitRights.h"

namespace ardeo
{

namespace
{

/// What polkit may take to answer when it needs to ask nobody.
QDeadlineTimer promptly()
{
    return QDeadlineTimer(10'000);
}

} // namespace

std::optional<AuthorizationRef> PolkitAuthorization::create()
{
    GLibLoop loop;
    if (!polkitAnswers(loop, promptly()))
        return std::nullopt;
    return AuthorizationRef{++m_lastHandle};
}

bool PolkitAuthorization::copyRights(AuthorizationRef authorization, const QString& right, quint32 flags)
{
    const QHash<QString, QList<const char*>> actionsOfRights{
        {QLatin1String(systemNetworkRight), {modifySystemAction, networkControlAction}},
        {QLatin1String(personalNetworkRight), {modifyOwnAction, networkControlAction}},
        {QLatin1String(trialRight), {checkpointAction}}};
    const auto actions = actionsOfRights.constFind(right);
    if (actions == actionsOfRights.constEnd())
        return false;
    GLibLoop loop;
    for (const char* action : *actions) {
        auto answer = askPolkit(loop, promptly(), action, false);
        if (answer && !answer->authorized && (flags & interactionAllowed) != 0) {
            answer = askPolkit(loop, QDeadlineTimer(QDeadlineTimer::Forever), action, true);
            if (answer && answer->temporaryAuthorization)
                m_ownConsents[authorization.handle].append(*answer->temporaryAuthorization);
        }
        if (!answer || !answer->authorized)
            return false;
    }
    return true;
}

void PolkitAuthorization::free(AuthorizationRef authorization, quint32 /*flags*/)
{
    GLibLoop loop;
    for (const QString& consent : m_ownConsents.take(authorization.handle))
        revokeTemporaryAuthorization(loop, promptly(), consent);
}

} // namespace ardeo
