#pragma once

#include "platform/linux/networkmanager/NetworkManagerSession.h"

#include <memory>

namespace ardeo
{

/// The network configuration as NetworkManager keeps it: its connection profiles are the services.
class NetworkManagerConfiguration final : public SystemConfiguration
{
public:
    std::unique_ptr<Preferences> createPreferences(const QString& name) override;
    std::unique_ptr<Preferences> createPreferencesWithAuthorization(const QString& name,
                                                                    AuthorizationRef authorization) override;
    std::unique_ptr<DynamicStore> createDynamicStore(const QString& name) override;
    void rest() override;
    bool awaitChange() override;
    void interrupt() override;
    qint32 error() const override { return static_cast<qint32>(m_status); }
    QString errorReason() const override { return m_view.refusal; }

    /// How the daemon was found the last time. May be called from any thread.
    DaemonPresence presence() const { return m_view.presence; }

private:
    /// Handles that live at the same time belong to one operation and share its snapshot.
    std::shared_ptr<NetworkManagerSession> session();

    DaemonView m_view;
    std::weak_ptr<NetworkManagerSession> m_session;
    std::atomic<bool> m_isInterrupted = false;
    SystemStatus m_status = SystemStatus::ok;
};

} // namespace ardeo
