// Any bytes as the simulated machine's file: the backend reads what it can, and what it changes stays a
// machine.

#include "backend/Errors.h"
#include "backend/NetworkConfigService.h"
#include "fuzz/Fuzzing.h"
#include "platform/simulated/SimulatedConfiguration.h"

#include <QTemporaryDir>

using namespace ardeo;

int LLVMFuzzerTestOneInput(const uchar* data, size_t size)
{
    static const QTemporaryDir folder(
        QStringLiteral("/dev/shm/machine-XXXXXX")); // no disk: it is about speed
    static const SimulatedMachine machine(folder.filePath(QStringLiteral("machine.json")));
    static SimulatedConfiguration system(machine);
    static NetworkConfigService service(system);
    QFile file(machine.file());
    promise(file.open(QIODevice::WriteOnly) &&
            file.write(reinterpret_cast<const char*>(data), qint64(size)) >= 0);
    file.close();

    const auto before = machine.read();
    const QList<AdapterInfo> adapters = service.listAdapters().result();
    promise(before || adapters.isEmpty());
    const Text name = adapters.isEmpty() ? Text() : adapters.constLast().serviceName;
    NetworkAdapterInfo settings = service.currentConfig(name).result();
    for (const IPv4Mode mode : ModeTexts<IPv4Mode>::allCases) {
        settings.ipv4Mode = mode;
        settings.dnsMode = DNSMode::manual;
        try {
            service.writeConfiguration(name, settings, AuthorizationRef{1}).waitForFinished();
            service.setServiceEnabled(size % 2 == 0, name, AuthorizationRef{1}).waitForFinished();
            promise(service.currentConfig(name).result().ipv4Mode == mode);
        } catch (const ConfigError&) {
            promise(machine.read().has_value() == before.has_value());
        }
    }
    promise(service.listAdapters().result().size() == adapters.size());
    return 0;
}
