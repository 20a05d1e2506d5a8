#include "backend/NetworkConfigService.h"
#include "backend/Errors.h"
#include "fakes/FakeSystemConfiguration.h"

#include <QJsonDocument>
#include <QTest>

using namespace ardeo;
using Service = FakeSystemConfiguration::Service;

namespace
{

const QString wifiState = u"State:/Network/Service/ID/IPv4"_s;
const QString wifiLink = u"State:/Network/Interface/wlan0/Link"_s;
const QString wifiLease = u"State:/Network/Interface/wlan0/DHCP"_s;

/// What stands there in JSON, with apostrophes instead of quotation marks.
QVariant value(const char* json)
{
    return QJsonDocument::fromJson(QByteArray(json).replace('\'', '"')).toVariant();
}

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
        system.services = {named("iPhone USB"), named("Wi-Fi"), named("Éth"),        named("Ethernet"), twin,
                           Service{},           wifi(),         named("\U0001F310"), named("\uFF21")};
        system.state[wifiState] = Dictionary{{u"Addresses"_s, QStringList(u"10.0.0.2"_s)}};
        NetworkConfigService service(system);
        QStringList listed;
        const auto adapters = service.listAdapters().result();
        for (const AdapterInfo& adapter : adapters)
            listed << adapter.serviceName;
        QCOMPARE(listed, (QStringList{u"Wi-Fi"_s, u"Ethernet"_s, u"Wi-Fi"_s, u"iPhone USB"_s, u"Éth"_s,
                                      u"E\u0301th"_s, u"\uFF21"_s, u"\U0001F310"_s}));
        QVERIFY(adapters.first().isActive);
        QCOMPARE(adapters.first().macAddress, Text(u"02:00"_s));
        QVERIFY(adapters[4].isEnabled && !adapters[5].isEnabled);
        QVERIFY(adapters[1].hardwareName.isEmpty() && !adapters[1].bsdName && !adapters[1].macAddress);
    }

    void listingDegradesToNothing()
    {
        for (const auto& [missing, listed] :
             {std::pair("state", 1), {"services", 0}, {"set", 0}, {"preferences", 0}}) {
            FakeSystemConfiguration system;
            system.services = {wifi()};
            system.missing = {QLatin1String(missing)};
            NetworkConfigService service(system);
            QCOMPARE(service.listAdapters().result().size(), listed);
        }
    }

    void whatIsOfAnotherKindCountsAsMissing()
    {
        const char* const live = "{'Addresses':['9.9.9.9'],'Router':'9.9.9.1'}";
        const char* const up = "{'Active':true,'Speed':1000,'Duplex':false}";
        const struct {
            const char *expected, *ipv4 = "", *live = "", *link = "", *dns = "";
        } rows[]{
            // The live state goes before what is saved, but not where that is manual.
            {"active 1000 half DHCP 9.9.9.9 255.0.0.0 9.9.9.1 Automatic   ",
             "{'Addresses':['1.1.1.2'],'SubnetMasks':['255.0.0.0']}", live, up},
            {"active ? ? Manual 1.1.1.2 255.0.0.0  Automatic   ",
             "{'ConfigMethod':'Manual','Addresses':['1.1.1.2'],'SubnetMasks':['255.0.0.0']}", live},
            {"inactive 1000 half DHCP    Automatic   ", "", "{'Addresses':[]}", up},
            {"inactive 1000 half DHCP    Automatic   ", "", "{'Addresses':['1.2.3.4',5],'Router':5}", up},
            {"inactive ? ? DHCP    Automatic   ", "['x']", "['x']", "['x']", "['x']"},
            {"inactive ? ? DHCP    Automatic   ", "{'ConfigMethod':true,'Addresses':1}", "",
             "{'Active':false,'Speed':1000,'Duplex':true}"},
            // 1 is not true, and true is no number.
            {"inactive ? ? DHCP    Automatic   ", "", "", "{'Active':1,'Speed':1000,'Duplex':true}"},
            {"inactive ? ? DHCP    Automatic   ", "", "", "{'Active':true,'Speed':true,'Duplex':1}"},
            {"inactive ? full DHCP    Automatic   ", "", "", "{'Active':true,'Speed':2.5,'Duplex':true}"},
            {"inactive ? ? DHCP    Manual 8.8.8.8 8.8.4.4 a+b", "", "", "",
             "{'ServerAddresses':['8.8.8.8','8.8.4.4','1.1.1.1'],'SearchDomains':['a','b']}"},
            {"inactive ? ? DHCP    Automatic   a", "", "", "", "{'SearchDomains':['a']}"},
        };
        for (const auto& row : rows) {
            FakeSystemConfiguration system;
            Service service = wifi();
            service.protocols = {{u"IPv4"_s, value(row.ipv4)}, {u"DNS"_s, value(row.dns)}};
            Service twin = wifi(); // of its name, but not the first one
            twin.protocols[u"IPv4"_s] = Dictionary{{u"Router"_s, u"6.6.6.6"_s}};
            system.services = {service, twin};
            system.state = {{wifiState, value(row.live)},
                            {wifiLink, value(row.link)},
                            {wifiLease, value("{'ServerAddress':'9.9.9.254'}")}};
            NetworkConfigService backend(system);
            const AdapterInfo adapter = backend.listAdapters().result().first();
            const auto read = backend.currentConfig(u"Wi-Fi"_s).result();
            const QStringList domains(read.searchDomains.begin(), read.searchDomains.end());
            const QString speed = adapter.linkSpeedMbps ? QString::number(*adapter.linkSpeedMbps) : u"?"_s;
            const QString duplex =
                adapter.fullDuplex ? (*adapter.fullDuplex ? u"full"_s : u"half"_s) : u"?"_s;
            const QStringList found{adapter.isActive ? u"active"_s : u"inactive"_s,
                                    speed,
                                    duplex,
                                    rawValue(read.ipv4Mode),
                                    read.ipAddress,
                                    read.subnetMask,
                                    read.router,
                                    rawValue(read.dnsMode),
                                    read.primaryDNS,
                                    read.alternateDNS,
                                    domains.join(u'+')};
            QCOMPARE(found.join(u' '), QLatin1String(row.expected));
            QCOMPARE(read.dhcpServer, Text(u"9.9.9.254"_s));
            const auto unknown = backend.currentConfig(u"wi-fi"_s).result();
            QCOMPARE(unknown.computerName, Text(u"Test Machine"_s));
            QVERIFY(unknown.dhcpServer.isEmpty() && unknown.ipAddress.isEmpty());
        }
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

    void everyStepFailsInItsOwnWay()
    {
        for (const auto& [step, message, calls] :
             {std::tuple("preferences", "Cannot open system network preferences.", "open"),
              {"lock", "Cannot acquire preferences lock (SC 1003).", "open,lock"},
              {"set", "Service 'Wi-Fi' not found.", "open,lock,unlock"},
              {"services", "Service 'Wi-Fi' not found.", "open,lock,unlock"},
              {"IPv4", "Protocol IPv4 unavailable.", "open,lock,unlock"},
              {"DNS", "", "open,lock,set IPv4,commit,apply,unlock"},
              {"set IPv4", "", "open,lock,set IPv4,set DNS,commit,apply,unlock"},
              {"commit", "Cannot save changes (SC 1003).", "open,lock,set IPv4,set DNS,commit,unlock"},
              {"apply", "Cannot apply changes (SC 1003).", "open,lock,set IPv4,set DNS,commit,apply,unlock"},
              {"keeping DNS", "", "open,lock,change IPv4,commit,apply,unlock"}}) {
            const QString refused = QLatin1String(step);
            FakeSystemConfiguration system;
            system.services = {wifi()};
            system.missing = {refused};
            system.services.first().protocols.remove(refused);
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
