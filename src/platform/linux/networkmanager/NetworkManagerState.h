#pragma once

#include "platform/linux/networkmanager/NetworkManagerSession.h"

namespace ardeo
{

/// The live state of the network, from NetworkManager and the kernel.
class NetworkManagerState final : public DynamicStore
{
public:
    explicit NetworkManagerState(std::shared_ptr<NetworkManagerSession> session);
    std::optional<QVariant> value(const QString& key) override;
    std::optional<QString> computerName() override;

private:
    std::optional<QVariant> serviceState(const QString& serviceID);
    static std::optional<QVariant> linkState(NMDevice* device);
    static std::optional<QVariant> leaseState(NMDevice* device);

    std::shared_ptr<NetworkManagerSession> m_session;
};

} // namespace ardeo
