// Whatever a system hands out, under whatever key: the backend takes what is right and leaves the rest.

#include "backend/Errors.h"
#include "backend/NetworkConfigService.h"
#include "fakes/FakeSystemConfiguration.h"
#include "fuzz/Fuzzing.h"
#include "platform/ProtocolConfiguration.h"

using namespace ardeo;

int LLVMFuzzerTestOneInput(const uchar* data, size_t size)
{
    static FakeSystemConfiguration system;
    static NetworkConfigService service(system);
    Invention invention(data, size);
    system.calls.clear();
    system.state.clear();
    system.services.emplace();
    system.computerName = invention.optionalText();
    for (int left = invention.number(4); left > 0; --left) {
        FakeSystemConfiguration::Service made{.name = invention.optionalText(),
                                              .id = invention.optionalText()};
        if (invention.number(4) > 0)
            made.interface = {invention.optionalText(), invention.optionalText(), invention.optionalText()};
        for (auto& protocol : made.protocols)
            protocol = invention.value();
        const QString interface = QStringLiteral("State:/Network/Interface/") +
                                  (made.interface ? made.interface->bsdName.value_or(QString()) : QString());
        system.state[QStringLiteral("State:/Network/Service/%1/IPv4").arg(made.id.value_or(QString()))] =
            invention.value();
        system.state[interface + QStringLiteral("/Link")] = invention.value();
        system.state[interface + QStringLiteral("/DHCP")] = invention.value();
        system.services->append(made);
    }

    const QList<AdapterInfo> adapters = service.listAdapters().result();
    promise(std::ranges::is_sorted(adapters, std::greater(), &AdapterInfo::isActive));
    for (const AdapterInfo& adapter : adapters) {
        const NetworkAdapterInfo settings = service.currentConfig(adapter.serviceName).result();
        promise(settings.dnsMode == DNSMode::manual || settings.alternateDNS.isEmpty());
        service.writeConfiguration(adapter.serviceName, settings, {}).waitForFinished();
        promise(service.currentConfig(adapter.serviceName).result().ipv4Mode == settings.ipv4Mode);
    }
    const Dictionary dictionary = invention.dictionary();
    if (const auto ipv4 = checkedIPv4(dictionary))
        promise(ipv4->manual != ipv4->addresses.isEmpty());
    if (const auto dns = checkedDNS(dictionary))
        promise(!dns->serverAddresses.contains(QString()));
    return 0;
}
