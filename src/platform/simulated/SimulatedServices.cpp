#include "platform/simulated/SimulatedServices.h"

#include "platform/ConfigurationKeys.h"
#include "platform/PendingServices.h"

#include <utility>

namespace ardeo
{

namespace
{

class SimulatedInterface final : public NetworkInterface
{
public:
    explicit SimulatedInterface(Json interface) : m_interface(std::move(interface)) {}
    std::optional<QString> bsdName() const override { return textMember(m_interface, "bsdName"); }
    std::optional<QString> hardwareAddressString() const override
    {
        return textMember(m_interface, "macAddress");
    }
    std::optional<QString> localizedDisplayName() const override
    {
        return textMember(m_interface, "hardwareName");
    }

private:
    Json m_interface;
};

class SimulatedService final : public NetworkService
{
public:
    explicit SimulatedService(std::shared_ptr<ServiceRecord> record) : m_record(std::move(record)) {}
    std::optional<QString> name() const override { return textMember(m_record->seen, "name"); }
    std::optional<QString> serviceID() const override { return textMember(m_record->seen, "id"); }
    bool isEnabled() const override
    {
        return m_record->changes.enabled.value_or(flagMember(m_record->seen, "enabled", true));
    }
    bool setEnabled(bool enabled) override
    {
        m_record->changes.enabled = enabled;
        return true;
    }
    bool hasChanges() const override
    {
        const ServiceRecord unchanged{.seen = m_record->seen};
        const SimulatedService saved(std::make_shared<ServiceRecord>(unchanged));
        const auto isOther = [&](const QString& type) {
            const auto protocol = this->protocol(type);
            return protocol && protocol->configuration() != saved.protocol(type)->configuration();
        };
        return isEnabled() != saved.isEnabled() || isOther(ipv4Type) || isOther(dnsType);
    }
    std::optional<std::chrono::milliseconds> confirmBy() const override
    {
        return confirmationDeadline(m_record->seen);
    }
    std::shared_ptr<NetworkInterface> interface() const override
    {
        const Json* interface = member(m_record->seen, "interface");
        return interface ? std::make_shared<SimulatedInterface>(*interface) : nullptr;
    }
    std::shared_ptr<NetworkProtocol> protocol(const QString& type) const override
    {
        if (type == ipv4Type)
            return protocol("IPv4", &ipv4Differences, m_record->changes.ipv4);
        if (type == dnsType)
            return protocol("DNS", &dnsDifferences, m_record->changes.dns);
        return nullptr;
    }

private:
    std::shared_ptr<NetworkProtocol> protocol(const char* type, PendingProtocol::Differences differences,
                                              std::optional<Dictionary>& pending) const
    {
        const Json* protocols = member(m_record->seen, "protocols");
        if (!protocols || !member(*protocols, type))
            return nullptr;
        return std::make_shared<PendingProtocol>(
            [record = m_record, type] {
                return std::optional(valueFromJson(record->seen["protocols"][type]));
            },
            differences, std::shared_ptr<std::optional<Dictionary>>(m_record, &pending), [] {});
    }

    std::shared_ptr<ServiceRecord> m_record;
};

} // namespace

std::shared_ptr<NetworkService> serviceOf(const std::shared_ptr<ServiceRecord>& record)
{
    return std::make_shared<SimulatedService>(record);
}

} // namespace ardeo
