#include "platform/linux/program/BootTimeClock.h"
#include "platform/linux/program/LinuxPlatform.h"
#include "platform/simulated/SimulatedPlatform.h"

#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

using namespace ardeo;
using namespace Qt::StringLiterals;

namespace
{

const QString name = u"Ardeo-IPConfig"_s;
const QString ipv4 = u"IPv4"_s;
const QString dns = u"DNS"_s;
const QString servers = u"ServerAddresses"_s;
const Dictionary dhcp{{u"ConfigMethod"_s, u"DHCP"_s}};

Dictionary manual(const char* address, const char* mask, const char* router = nullptr)
{
    Dictionary dictionary{{u"ConfigMethod"_s, u"Manual"_s},
                          {u"Addresses"_s, QStringList(QString::fromLatin1(address))},
                          {u"SubnetMasks"_s, QStringList(QString::fromLatin1(mask))}};
    if (router)
        dictionary[u"Router"_s] = QString::fromLatin1(router);
    return dictionary;
}

/// The live state that a manual configuration leads to.
Dictionary inForce(Dictionary configuration)
{
    configuration.remove(u"ConfigMethod"_s);
    return configuration;
}

} // namespace

/// What the program relies on, asked of whichever platform it runs on: the simulated machine, or (with
/// ARDEO_CONFORMANCE=networkmanager, in the lab) the real one.
class ConformanceTest : public QObject
{
    Q_OBJECT

    const bool m_real = qEnvironmentVariable("ARDEO_CONFORMANCE") == u"networkmanager"_s;
    const QTemporaryDir m_folder;
    Platform m_platform =
        m_real ? linuxPlatform(u"/bin/true"_s)
               : simulatedPlatform(m_folder.filePath(u"machine.json"_s), std::make_unique<BootTimeClock>());
    SystemConfiguration& m_system = *m_platform.systemConfiguration;
    const QString m_wired = m_real ? u"Wired connection 1"_s : u"Ethernet"_s;
    const QString m_unplugged = m_real ? u"Wired connection 3"_s : u"Thunderbolt Bridge"_s;
    const QString m_vpn = u"Office VPN"_s;

    AuthorizationRef consent() const
    {
        const auto reference = m_platform.authorization->create();
        const bool granted = reference && m_platform.authorization->copyRights(
                                              *reference, u"system.preferences.network"_s, 0x13);
        return granted ? *reference : AuthorizationRef();
    }
    std::unique_ptr<Preferences> open()
    {
        return m_system.createPreferencesWithAuthorization(name, consent());
    }

    static std::shared_ptr<NetworkService> find(Preferences& preferences, const QString& service)
    {
        const auto services = preferences.currentSet()->services();
        for (const auto& candidate : *services) {
            if (candidate->name() == service)
                return candidate;
        }
        return nullptr;
    }
    Dictionary saved(const QString& service, const QString& type)
    {
        const auto preferences = m_system.createPreferences(name);
        return find(*preferences, service)->protocol(type)->configuration()->toMap();
    }
    Dictionary live(const QString& service)
    {
        const auto preferences = m_system.createPreferences(name);
        const QString key =
            u"State:/Network/Service/%1/IPv4"_s.arg(*find(*preferences, service)->serviceID());
        return m_system.createDynamicStore(name)->value(key).value_or(QVariant()).toMap();
    }
    /// The whole transaction; the status of the step that was refused, or 0.
    qint32 write(const QString& service, const Dictionary& addresses, const Dictionary& resolution = {})
    {
        const auto preferences = open();
        if (!preferences->lock(true))
            return m_system.error();
        const auto found = find(*preferences, service);
        found->protocol(ipv4)->setConfiguration(addresses);
        found->protocol(dns)->setConfiguration(resolution);
        const bool done = preferences->commitChanges() && preferences->applyChanges();
        const qint32 status = m_system.error();
        preferences->unlock();
        return done ? 0 : status;
    }

private Q_SLOTS:
    void manualAndAutomaticTakeTurns()
    {
        const Dictionary idle = manual("10.99.0.2", "255.255.255.0");
        for (const QString& service : {m_unplugged, m_vpn}) {
            QCOMPARE(write(service, idle), 0);
            QCOMPARE(saved(service, ipv4), idle);
            QVERIFY(live(service).isEmpty());
        }
        const Dictionary first = manual("10.77.0.60", "255.255.255.0", "10.77.0.1");
        const Dictionary resolution{{servers, QStringList{u"1.1.1.1"_s, u"9.9.9.9"_s}},
                                    {u"SearchDomains"_s, QStringList(u"lab.example"_s)}};
        QCOMPARE(write(m_wired, first, resolution), 0);
        QCOMPARE(saved(m_wired, ipv4), first);
        QCOMPARE(saved(m_wired, dns), resolution);
        QTRY_COMPARE(live(m_wired), inForce(first));
        const Dictionary second = manual("10.77.0.61", "255.255.0.0");
        Dictionary cleared = second;
        cleared[u"Router"_s] = u"..."_s;
        QCOMPARE(write(m_wired, cleared, {{servers, QStringList{u"..."_s, u"1.1.1.1"_s}}}), 0);
        QCOMPARE(saved(m_wired, ipv4), second);
        QCOMPARE(saved(m_wired, dns), (Dictionary{{servers, QStringList(u"1.1.1.1"_s)}}));
        QTRY_COMPARE(live(m_wired), inForce(second));
        QCOMPARE(write(m_wired, dhcp), 0);
        QCOMPARE(saved(m_wired, ipv4), dhcp);
        QCOMPARE(saved(m_wired, dns), Dictionary());
        QTRY_VERIFY(live(m_wired).contains(u"Router"_s));
        const Dictionary leased = live(m_wired);
        QCOMPARE(write(m_wired, dhcp), 0); // the same once more: a fresh lease
        QTRY_VERIFY(live(m_wired).contains(u"Router"_s));
        QVERIFY(m_real || live(m_wired) != leased); // a real server may give the same address
    }

    void badSettingsAreRefusedWhole()
    {
        const Dictionary before = live(m_wired);
        // Which addresses are good is checked for both by the same function.
        for (const Dictionary& settings :
             {manual("10.77.0.62", "255.0.255.0"), Dictionary{{u"ConfigMethod"_s, u"BOOTP"_s}}, Dictionary()})
            QCOMPARE(write(m_wired, settings), qint32(SystemStatus::invalidArgument));
        QCOMPARE(
            write(m_wired, manual("10.77.0.62", "255.255.255.0"), {{servers, QStringList(u"fe80::1"_s)}}),
            qint32(SystemStatus::invalidArgument));
        QCOMPARE(saved(m_wired, ipv4), dhcp);
        QCOMPARE(live(m_wired), before);
    }

    void transactionsExcludeEachOther()
    {
        const auto refusal = [this](bool done) { return done ? 0 : m_system.error(); };
        QCOMPARE(refusal(m_system.createPreferences(name)->lock(true)), qint32(SystemStatus::accessError));
        auto first = open();
        QCOMPARE(refusal(first->commitChanges()), qint32(SystemStatus::needLock));
        QCOMPARE(refusal(first->unlock()), qint32(SystemStatus::needLock));
        QVERIFY(first->lock(true));
        QCOMPARE(refusal(first->lock(true)), qint32(SystemStatus::locked));
        const auto second = open();
        QCOMPARE(refusal(second->lock(false)), qint32(SystemStatus::preferencesBusy));
        find(*second, m_vpn)->protocol(ipv4)->setConfiguration(dhcp);
        find(*first, m_vpn)->protocol(ipv4)->setConfiguration(manual("10.99.0.3", "255.255.255.0"));
        QVERIFY(first->commitChanges());
        first.reset(); // gives its lock up
        QVERIFY(second->lock(false));
        QCOMPARE(refusal(second->commitChanges()), qint32(SystemStatus::stale));
    }

    void whatOthersDoIsSeenAtOnce()
    {
        if (!m_real)
            return; // there the file is read each time
        const auto others = [](const QStringList& change) {
            return QProcess::execute(u"nmcli"_s, QStringList(u"connection"_s) + change) == 0;
        };
        const QString copy = u"Copy"_s;
        for (int round = 0; round < 5; ++round) {
            const QString address = u"10.66.0.%1"_s.arg(round + 1);
            QVERIFY(others({u"modify"_s, m_unplugged, u"ipv4.method"_s, u"manual"_s, u"ipv4.addresses"_s,
                            address + u"/24"_s}));
            QCOMPARE(saved(m_unplugged, ipv4)[u"Addresses"_s], QVariant(QStringList(address)));
            QVERIFY(others({u"clone"_s, m_unplugged, copy}));
            QVERIFY(find(*m_system.createPreferences(name), copy));
            QVERIFY(others({u"delete"_s, copy}));
            QVERIFY(!find(*m_system.createPreferences(name), copy));
        }
    }
};

QTEST_GUILESS_MAIN(ConformanceTest)
#include "ConformanceTest.moc"
