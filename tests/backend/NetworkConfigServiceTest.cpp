#include "backend/NetworkConfigService.h"
#include "backend/Errors.h"
#include "fakes/FakeSystemConfiguration.h"

#include <QTest>

using namespace ardeo;
using Service = FakeSystemConfiguration::Service;

namespace
{

const QString addresses = u"Addresses"_s;
const QString masks = u"SubnetMasks"_s;
const QString router = u"Router"_s;
const QString method = u"ConfigMethod"_s;
const QString servers = u"ServerAddresses"_s;
const QString domains = u"SearchDomains"_s;
const QString wifiState = u"State:/Network/Service/ID/IPv4"_s;
const QString wifiLink = u"State:/Network/Interface/wlan0/Link"_s;
const QString wifiLease = u"State:/Network/Interface/wlan0/DHCP"_s;

Service wifi()
{
    return {.name = u"Wi-Fi"_s,
            .id = u"ID"_s,
            .enabled = true,
            .interface = {{u"wlan0"_s, u"02:00"_s, u"Card"_s}}};
}

Service named(const char* name)
{
    return {.name = QString::fromUtf8(name), .id = QString::fromUtf8(name)};
}

/// The message that the operation fails with; empty when it succeeds.
QString failureOf(QFuture<void> operation)
{
    try {
        operation.waitForFinished();
    } catch (const ConfigError& error) {
        return error.errorDescription();
    }
    return {};
}

} // namespace

class NetworkConfigServiceTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void listingIsSortedAndStable()
    {
        FakeSystemConfiguration system;
        Service twin = named("E\u0301th"); // equal to the other one when composed
        twin.enabled = false;
        system.services = {named("iPhone USB"), named("Wi-Fi"), named("Éth"), named("Ethernet"), twin,
                           Service{},           wifi()};
        system.state[wifiState] = Dictionary{{addresses, QStringList(u"10.0.0.2"_s)}};
        NetworkConfigService service(system);
        QStringList listed;
        const auto adapters = service.listAdapters().result();
        for (const AdapterInfo& adapter : adapters)
            listed << adapter.serviceName;
        QCOMPARE(listed, (QStringList{u"Wi-Fi"_s, u"Ethernet"_s, u"Wi-Fi"_s, u"iPhone USB"_s, u"Éth"_s,
                                      u"E\u0301th"_s}));
        QVERIFY(adapters.first().isActive);
        QCOMPARE(adapters.first().macAddress, Text(u"02:00"_s));
        QVERIFY(adapters[4].isEnabled && !adapters[5].isEnabled);
        QVERIFY(adapters[1].hardwareName.isEmpty() && !adapters[1].bsdName && !adapters[1].macAddress);
    }

    void listingDegradesToNothing()
    {
        FakeSystemConfiguration system;
        system.services = {wifi()};
        NetworkConfigService service(system);
        system.stateAvailable = false;
        QCOMPARE(service.listAdapters().result().size(), 1);
        system.services.reset();
        QVERIFY(service.listAdapters().result().isEmpty());
        system.setAvailable = false;
        QVERIFY(service.listAdapters().result().isEmpty());
        system.preferencesAvailable = false;
        QVERIFY(service.listAdapters().result().isEmpty());
    }

    void liveStateOfAnotherKindCountsAsMissing()
    {
        const auto check = [](const QVariant& live, const QVariant& link, const char* expected) {
            FakeSystemConfiguration system;
            system.services = {wifi()};
            system.state = {{wifiState, live}, {wifiLink, link}};
            NetworkConfigService service(system);
            const AdapterInfo read = service.listAdapters().result().first();
            const QString duplex = read.fullDuplex ? (*read.fullDuplex ? u"full"_s : u"half"_s) : u"?"_s;
            const QString speed = read.linkSpeedMbps ? QString::number(*read.linkSpeedMbps) : u"?"_s;
            const QString activity = read.isActive ? u"active"_s : u"inactive"_s;
            QCOMPARE((QStringList{activity, speed, duplex}.join(u' ')), QLatin1String(expected));
        };
        const auto link = [](const QVariant& active, const QVariant& speed, const QVariant& duplex) {
            return QVariantMap{{u"Active"_s, active}, {u"Speed"_s, speed}, {u"Duplex"_s, duplex}};
        };
        const QVariantMap up = link(true, 1000, false);
        check(QVariantMap{{addresses, QVariantList{u"1.2.3.4"_s}}}, up, "active 1000 half");
        check(QVariantMap{{addresses, QStringList()}}, up, "inactive 1000 half");
        check(QVariantMap{{addresses, QVariantList{u"1.2.3.4"_s, 5}}}, up, "inactive 1000 half");
        check(u"x"_s, u"x"_s, "inactive ? ?");
        check({}, link(false, 1000, true), "inactive ? ?");
        check({}, link(1, 1000, true), "inactive ? ?"); // 1 is not true, and true is no number
        check({}, link(true, true, 1), "inactive ? ?");
        check({}, link(true, 2.5, true), "inactive ? full");
    }

    void systemRestsWhenNothingFollows()
    {
        FakeSystemConfiguration system;
        {
            NetworkConfigService service(system);
            system.gate.acquire(1000); // so that the second is asked for before the first one has ended
            service.listAdapters();
            service.currentConfig(u"Wi-Fi"_s);
            system.gate.release(1000);
            QTRY_VERIFY(system.rests > 0);
        }
        QCOMPARE(system.rests.load(), 1);
    }

    void configurationIsRead()
    {
        const auto check = [](const QVariant& ipv4, const QVariant& live, const QVariant& dns,
                              const char* expected) {
            FakeSystemConfiguration system;
            Service service = wifi();
            service.protocols = {{u"IPv4"_s, ipv4}, {u"DNS"_s, dns}};
            Service twin = wifi(); // of its name, but not the first one
            twin.protocols[u"IPv4"_s] = Dictionary{{router, u"6.6.6.6"_s}};
            system.services = {service, twin};
            system.state = {{wifiState, live},
                            {wifiLease, QVariantMap{{u"ServerAddress"_s, u"9.9.9.254"_s}}}};
            NetworkConfigService backend(system);
            const auto read = backend.currentConfig(u"Wi-Fi"_s).result();
            const QStringList found(read.searchDomains.begin(), read.searchDomains.end());
            QCOMPARE(
                (QStringList{rawValue(read.ipv4Mode), read.ipAddress, read.subnetMask, read.router,
                             rawValue(read.dnsMode), read.primaryDNS, read.alternateDNS, found.join(u'+')}
                     .join(u' ')),
                QLatin1String(expected));
            QCOMPARE(read.dhcpServer, Text(u"9.9.9.254"_s));
            QCOMPARE(read.computerName, Text(u"Test Machine"_s));
            const auto unknown = backend.currentConfig(u"wi-fi"_s).result();
            QCOMPARE(unknown.computerName, Text(u"Test Machine"_s));
            QVERIFY(unknown.dhcpServer.isEmpty() && unknown.ipAddress.isEmpty());
        };
        const QVariantMap live{{addresses, QStringList(u"9.9.9.9"_s)}, {router, u"9.9.9.1"_s}};
        const QVariantMap saved{{addresses, QStringList(u"1.1.1.2"_s)}, {masks, QStringList(u"255.0.0.0"_s)}};
        QVariantMap manual = saved;
        manual[method] = u"Manual"_s;
        const QVariantMap three{{servers, QStringList{u"8.8.8.8"_s, u"8.8.4.4"_s, u"1.1.1.1"_s}},
                                {domains, QStringList{u"corp.example"_s, u"lab.example"_s}}};
        check(manual, live, {}, "Manual 1.1.1.2 255.0.0.0  Automatic   ");     // ignores the live state
        check(saved, live, {}, "DHCP 9.9.9.9 255.0.0.0 9.9.9.1 Automatic   "); // live values go first
        check(QVariantMap{{method, true}, {addresses, 1}}, QVariantMap{{router, 5}}, u"x"_s,
              "DHCP    Automatic   ");
        check({}, {}, three, "DHCP    Manual 8.8.8.8 8.8.4.4 corp.example+lab.example");
        check({}, {}, QVariantMap{{domains, QStringList(u"a"_s)}}, "DHCP    Automatic   a");
    }

    void dictionariesAreWrittenExactly()
    {
        FakeSystemConfiguration system;
        system.services = {wifi()};
        NetworkConfigService service(system);
        const auto& protocols = system.services->first().protocols;
        const auto check = [&](const NetworkAdapterInfo& record, const Dictionary& ipv4,
                               const Dictionary& dns) {
            system.calls.clear();
            QCOMPARE(failureOf(service.writeConfiguration(u"Wi-Fi"_s, record, {7})), QString());
            QCOMPARE(protocols[u"IPv4"_s]->toMap(), ipv4);
            QCOMPARE(protocols[u"DNS"_s]->toMap(), dns);
            QCOMPARE(system.authorization.handle, 7U);
            QCOMPARE(system.calls.join(u','), u"open,lock,set IPv4,set DNS,commit,apply,unlock"_s);
        };
        const Dictionary dhcp{{method, u"DHCP"_s}};
        NetworkAdapterInfo record{.ipAddress = u"1.1.1.2"_s, .router = u"1.1.1.1"_s};
        record.primaryDNS = u"8.8.8.8"_s;
        record.searchDomains = {u"a"_s};
        check(record, dhcp, {}); // automatic drops the rest
        record.dnsMode = DNSMode::manual;
        record.primaryDNS = Text();
        record.alternateDNS = u"8.8.4.4"_s;
        check(record, dhcp, {{servers, QStringList(u"8.8.4.4"_s)}, {domains, QStringList(u"a"_s)}});
        check({.ipv4Mode = IPv4Mode::manual, .subnetMask = u" x"_s, .dnsMode = DNSMode::manual},
              {{method, u"Manual"_s}, {addresses, QStringList(QString())}, {masks, QStringList(u" x"_s)}},
              {});
    }

    void everyStepFailsInItsOwnWay()
    {
        for (const auto& [step, message, calls] :
             {std::tuple("open", "Cannot open system network preferences.", "open"),
              {"lock", "Cannot acquire preferences lock (SC 1003).", "open,lock"},
              {"set", "Service 'Wi-Fi' not found.", "open,lock,unlock"},
              {"service", "Service 'Wi-Fi' not found.", "open,lock,unlock"},
              {"IPv4", "Protocol IPv4 unavailable.", "open,lock,unlock"},
              {"DNS", "", "open,lock,set IPv4,commit,apply,unlock"},
              {"set IPv4", "", "open,lock,set IPv4,set DNS,commit,apply,unlock"},
              {"commit", "Cannot save changes (SC 1003).", "open,lock,set IPv4,set DNS,commit,unlock"},
              {"apply", "Cannot apply changes (SC 1003).", "open,lock,set IPv4,set DNS,commit,apply,unlock"},
              {"keeping DNS", "", "open,lock,change IPv4,commit,apply,unlock"}}) {
            const QString refused = QLatin1String(step);
            FakeSystemConfiguration system;
            system.services = {wifi()};
            system.preferencesAvailable = refused != u"open"_s;
            system.setAvailable = refused != u"set"_s;
            if (refused == u"service"_s)
                system.services = {named("Ethernet"), Service{}};
            system.services->first().protocols.remove(refused);
            system.refusals = {{refused, 1003}, {u"unlock"_s, -5}}; // the last is too late to be the reason
            NetworkConfigService service(system);
            const auto named =
                refused == u"keeping DNS"_s ? std::optional(Settings(Setting::ipv4Mode)) : std::nullopt;
            QCOMPARE(failureOf(service.writeConfiguration(u"Wi-Fi"_s, {}, {1}, named)),
                     QLatin1String(message));
            QCOMPARE(system.calls.join(u','), QLatin1String(calls));
        }
    }
};

QTEST_GUILESS_MAIN(NetworkConfigServiceTest)
#include "NetworkConfigServiceTest.moc"
