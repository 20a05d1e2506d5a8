#pragma once

#include "platform/Authorization.h"

#include <QHash>
#include <QStringList>

namespace ardeo
{

/// Administrator rights through polkit and the desktop's own agent.
class PolkitAuthorization final : public Authorization
{
public:
    std::optional<AuthorizationRef> create() override;
    bool copyRights(AuthorizationRef authorization, const QString& right, quint32 flags) override;
    void free(AuthorizationRef authorization, quint32 flags) override;

private:
    quint64 m_lastHandle = 0;
    /// The consents that the user gave to us; those that were there before are not ours to take back.
    QHash<quint64, QStringList> m_ownConsents;
};

} // namespace ardeo
