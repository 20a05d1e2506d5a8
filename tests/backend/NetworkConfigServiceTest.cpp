#include "backend/NetworkConfigService.h"
#include "backend/Errors.h"
#include "fakes/FakeSystemConfiguration.h"

#include <QTest>

using namespace ardeo;
using Service = FakeSystemConfiguration::Service;

namespace
{

const QString addresses = QStringLiteral("Addresses");
const QString masks = QStringLiteral("SubnetMasks");
const QString router = QStringLiteral("Router");
const QString method = QStringLiteral("ConfigMethod");
const QString servers = QStringLiteral("ServerAddresses");
const QString domains = QStringLiteral("SearchDomains");
const QString wifiState = QStringLiteral("State:/Network/Service/ID/IPv4");
const QString wifiLink = QStringLiteral("State:/Network/Interface/wlan0/Link");
const QString wifiLease = QStringLiteral("State:/Network/Interface/wlan0/DHCP");

Service wifi()
{
    return {.name = QStringLiteral("Wi-Fi"),
            .id = QStringLiteral("ID"),
            .enabled = true,
            .interface = {{QStringLiteral("wlan0"), QStringLiteral("02:00"), QStringLiteral("Card")}}};
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
        system.state[wifiState] = Dictionary{{addresses, QStringList(QStringLiteral("10.0.0.2"))}};
        NetworkConfigService service(system);
        QStringList listed;
        const auto adapters = service.listAdapters().result();
        for (const AdapterInfo& adapter : adapters)
            listed << adapter.serviceName;
        QCOMPARE(listed, (QStringList{QStringLiteral("Wi-Fi"), QStringLiteral("Ethernet"),
                                      QStringLiteral("Wi-Fi"), QStringLiteral("iPhone USB"),
                                      QStringLiteral("Éth"), QStringLiteral("E\u0301th")}));
        QVERIFY(adapters.first().isActive);
        QCOMPARE(adapters.first().macAddress, Text(QStringLiteral("02:00")));
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

    void liveStateOfAnotherKindCountsAsMissing_data()
    {
        QTest::addColumn<QVariant>("live");
        QTest::addColumn<QVariant>("link");
        QTest::addColumn<QString>("read");
        const auto row = [](const char* name, const QVariant& live, const QVariant& link, const char* read) {
            QTest::newRow(name) << live << link << QString::fromLatin1(read);
        };
        const QString active = QStringLiteral("Active");
        const QString speed = QStringLiteral("Speed");
        const QString duplex = QStringLiteral("Duplex");
        const QVariantMap up{{active, true}, {speed, 1000}, {duplex, false}};
        row("all there", QVariantMap{{addresses, QVariantList{QStringLiteral("1.2.3.4")}}}, up,
            "active 1000 half");
        row("empty list", QVariantMap{{addresses, QStringList()}}, up, "inactive 1000 half");
        row("mixed list", QVariantMap{{addresses, QVariantList{QStringLiteral("1.2.3.4"), 5}}}, up,
            "inactive 1000 half");
        row("text for a list", QVariantMap{{addresses, QStringLiteral("1.2.3.4")}}, up, "inactive 1000 half");
        row("text for a dictionary", QStringLiteral("x"), QStringLiteral("x"), "inactive ? ?");
        row("link down", {}, QVariantMap{{active, false}, {speed, 1000}, {duplex, true}}, "inactive ? ?");
        row("1 is not true", {}, QVariantMap{{active, 1}, {speed, 1000}, {duplex, true}}, "inactive ? ?");
        row("true is not a speed", {}, QVariantMap{{active, true}, {speed, true}, {duplex, 1}},
            "inactive ? ?");
        row("no speed", {}, QVariantMap{{active, true}, {duplex, true}}, "inactive ? full");
        row("fractional speed", {}, QVariantMap{{active, true}, {speed, 2.5}}, "inactive ? ?");
    }
    void liveStateOfAnotherKindCountsAsMissing()
    {
        QFETCH(QVariant, live);
        QFETCH(QVariant, link);
        FakeSystemConfiguration system;
        system.services = {wifi()};
        system.state = {{wifiState, live}, {wifiLink, link}};
        NetworkConfigService service(system);
        const AdapterInfo read = service.listAdapters().result().first();
        const QString duplex = read.fullDuplex
                                   ? (*read.fullDuplex ? QStringLiteral("full") : QStringLiteral("half"))
                                   : QStringLiteral("?");
        const QString speed = read.linkSpeedMbps ? QString::number(*read.linkSpeedMbps) : QStringLiteral("?");
        const QString activity = read.isActive ? QStringLiteral("active") : QStringLiteral("inactive");
        QTEST((QStringList{activity, speed, duplex}.join(u' ')), "read");
    }

    void configurationIsRead_data()
    {
        QTest::addColumn<QVariant>("ipv4");
        QTest::addColumn<QVariant>("live");
        QTest::addColumn<QVariant>("dns");
        QTest::addColumn<QString>("read");
        const QVariantMap live{{addresses, QStringList(QStringLiteral("9.9.9.9"))},
                               {router, QStringLiteral("9.9.9.1")}};
        const QVariantMap saved{{addresses, QStringList(QStringLiteral("1.1.1.2"))},
                                {masks, QStringList(QStringLiteral("255.0.0.0"))}};
        QVariantMap manual = saved;
        manual[method] = QStringLiteral("Manual");
        const QVariantMap three{
            {servers,
             QStringList{QStringLiteral("8.8.8.8"), QStringLiteral("8.8.4.4"), QStringLiteral("1.1.1.1")}},
            {domains, QStringList{QStringLiteral("corp.example"), QStringLiteral("lab.example")}}};
        const auto row = [](const char* name, const QVariant& ipv4, const QVariant& state,
                            const QVariant& dns, const char* read) {
            QTest::newRow(name) << ipv4 << state << dns << QString::fromLatin1(read);
        };
        row("manual ignores the live state", manual, live, {}, "Manual 1.1.1.2 255.0.0.0  Automatic   ");
        row("live values go first", saved, live, {}, "DHCP 9.9.9.9 255.0.0.0 9.9.9.1 Automatic   ");
        row("DHCP that is down", QVariantMap{{method, QStringLiteral("DHCP")}}, {}, {},
            "DHCP    Automatic   ");
        row("other kinds", QVariantMap{{method, true}, {addresses, 1}}, QVariantMap{{router, 5}},
            QStringLiteral("x"), "DHCP    Automatic   ");
        row("three servers", {}, {}, three, "DHCP    Manual 8.8.8.8 8.8.4.4 corp.example+lab.example");
        row("domains alone", {}, {}, QVariantMap{{domains, QStringList(QStringLiteral("a"))}},
            "DHCP    Automatic   a");
    }
    void configurationIsRead()
    {
        QFETCH(QVariant, ipv4);
        QFETCH(QVariant, live);
        QFETCH(QVariant, dns);
        FakeSystemConfiguration system;
        Service service = wifi();
        service.protocols = {{QStringLiteral("IPv4"), ipv4}, {QStringLiteral("DNS"), dns}};
        system.services = {service};
        system.state = {
            {wifiState, live},
            {wifiLease, QVariantMap{{QStringLiteral("ServerAddress"), QStringLiteral("9.9.9.254")}}}};
        NetworkConfigService backend(system);
        const auto read = backend.currentConfig(QStringLiteral("Wi-Fi")).result();
        QTEST((QStringList{rawValue(read.ipv4Mode), read.ipAddress, read.subnetMask, read.router,
                           rawValue(read.dnsMode), read.primaryDNS, read.alternateDNS,
                           QStringList(read.searchDomains.begin(), read.searchDomains.end()).join(u'+')}
                   .join(u' ')),
              "read");
        QCOMPARE(read.dhcpServer, Text(QStringLiteral("9.9.9.254")));
        QCOMPARE(read.computerName, Text(QStringLiteral("Test Machine")));
        const auto unknown = backend.currentConfig(QStringLiteral("wi-fi")).result();
        QCOMPARE(unknown.computerName, Text(QStringLiteral("Test Machine")));
        QVERIFY(unknown.dhcpServer.isEmpty() && unknown.ipAddress.isEmpty());
    }

    void dictionariesAreWrittenExactly_data()
    {
        QTest::addColumn<NetworkAdapterInfo>("record");
        QTest::addColumn<QVariantMap>("ipv4");
        QTest::addColumn<QVariantMap>("dns");
        const QVariantMap dhcp{{method, QStringLiteral("DHCP")}};
        NetworkAdapterInfo record{.ipAddress = QStringLiteral("1.1.1.2"),
                                  .router = QStringLiteral("1.1.1.1")};
        record.primaryDNS = QStringLiteral("8.8.8.8");
        record.searchDomains = {QStringLiteral("a")};
        QTest::newRow("automatic drops the rest") << record << dhcp << QVariantMap();
        record.dnsMode = DNSMode::manual;
        record.primaryDNS = Text();
        record.alternateDNS = QStringLiteral("8.8.4.4");
        QTest::newRow("alternate server alone")
            << record << dhcp
            << QVariantMap{{servers, QStringList(QStringLiteral("8.8.4.4"))},
                           {domains, QStringList(QStringLiteral("a"))}};
        record = {
            .ipv4Mode = IPv4Mode::manual, .subnetMask = QStringLiteral(" x"), .dnsMode = DNSMode::manual};
        QTest::newRow("texts as they stand") << record
                                             << QVariantMap{{method, QStringLiteral("Manual")},
                                                            {addresses, QStringList(QString())},
                                                            {masks, QStringList(QStringLiteral(" x"))}}
                                             << QVariantMap();
    }
    void dictionariesAreWrittenExactly()
    {
        QFETCH(NetworkAdapterInfo, record);
        FakeSystemConfiguration system;
        system.services = {wifi()};
        NetworkConfigService service(system);
        QCOMPARE(failureOf(service.writeConfiguration(QStringLiteral("Wi-Fi"), record, {7})), QString());
        const auto& protocols = system.services->first().protocols;
        QTEST(protocols[QStringLiteral("IPv4")]->toMap(), "ipv4");
        QTEST(protocols[QStringLiteral("DNS")]->toMap(), "dns");
        QCOMPARE(system.authorization.handle, 7U);
        QCOMPARE(system.calls.join(u','), QStringLiteral("open,lock,set IPv4,set DNS,commit,apply,unlock"));
    }

    void everyStepFailsInItsOwnWay_data()
    {
        QTest::addColumn<QString>("refused");
        QTest::addColumn<QString>("message");
        QTest::addColumn<QString>("calls");
        const auto row = [](const char* refused, const char* message, const char* calls) {
            QTest::newRow(refused) << QString::fromLatin1(refused) << QString::fromLatin1(message)
                                   << QString::fromLatin1(calls);
        };
        row("open", "Cannot open system network preferences.", "open");
        row("lock", "Cannot acquire preferences lock (SC 1003).", "open,lock");
        row("set", "Service 'Wi-Fi' not found.", "open,lock,unlock");
        row("service", "Service 'Wi-Fi' not found.", "open,lock,unlock");
        row("IPv4", "Protocol IPv4 unavailable.", "open,lock,unlock");
        row("DNS", "", "open,lock,set IPv4,commit,apply,unlock");
        row("set IPv4", "", "open,lock,set IPv4,set DNS,commit,apply,unlock");
        row("commit", "Cannot save changes (SC 1003).", "open,lock,set IPv4,set DNS,commit,unlock");
        row("apply", "Cannot apply changes (SC 1003).", "open,lock,set IPv4,set DNS,commit,apply,unlock");
        row("keeping DNS", "", "open,lock,set IPv4,commit,apply,unlock");
    }
    void everyStepFailsInItsOwnWay()
    {
        QFETCH(QString, refused);
        FakeSystemConfiguration system;
        system.services = {wifi()};
        system.preferencesAvailable = refused != QStringLiteral("open");
        system.setAvailable = refused != QStringLiteral("set");
        if (refused == QStringLiteral("service"))
            system.services = {named("Ethernet"), Service{}};
        system.services->first().protocols.remove(refused);
        system.refusals[refused] = 1003;
        system.refusals[QStringLiteral("unlock")] = -5; // too late to be the reason for anything
        NetworkConfigService service(system);
        const auto dns = refused == QStringLiteral("keeping DNS")
                             ? NetworkConfigService::DNSHandling::keep
                             : NetworkConfigService::DNSHandling::replace;
        const QString message = failureOf(service.writeConfiguration(QStringLiteral("Wi-Fi"), {}, {1}, dns));
        QTEST(message, "message");
        QTEST(system.calls.join(u','), "calls");
    }

    void serviceIsSwitchedInTheSameTransaction()
    {
        FakeSystemConfiguration system;
        system.services = {wifi()};
        NetworkConfigService service(system);
        QCOMPARE(failureOf(service.setServiceEnabled(false, QStringLiteral("Wi-Fi"), {1})), QString());
        QVERIFY(!system.services->first().enabled);
        QCOMPARE(system.calls.join(u','), QStringLiteral("open,lock,enable,commit,apply,unlock"));
        system.refusals[QStringLiteral("commit")] = 3005;
        QCOMPARE(failureOf(service.setServiceEnabled(true, QStringLiteral("Wi-Fi"), {1})),
                 QStringLiteral("Cannot save changes (SC 3005)."));
    }
};

QTEST_GUILESS_MAIN(NetworkConfigServiceTest)
#include "NetworkConfigServiceTest.moc"
