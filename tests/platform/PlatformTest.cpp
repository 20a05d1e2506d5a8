#include "platform/Platform.h"
#include "platform/FileUserDefaults.h"
#include "platform/ProtocolConfiguration.h"
#include "platform/ServiceChanges.h"
#include "platform/linux/desktop/RemoteSession.h"
#include "platform/linux/program/BootTimeClock.h"
#include "platform/linux/program/XdgLoginItem.h"
#include "platform/simulated/SimulatedPlatform.h"

#include <QDBusMessage>
#include <QDBusVirtualObject>
#include <QJsonDocument>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>
#include <QThread>

#include <csignal>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace ardeo;
using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace
{

/// What logind tells of the session that asks.
class Logind final : public QDBusVirtualObject
{
public:
    QVariantMap session;

    QString introspect(const QString&) const override { return {}; }
    bool handleMessage(const QDBusMessage& question, const QDBusConnection& bus) override
    {
        return bus.send(question.createReply(session));
    }
};

} // namespace

class PlatformTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void settingsAreChecked()
    {
        const struct {
            const char *reason, *address, *mask, *router = "", *server = "8.8.8.8";
        } rows[]{{"", "10.0.0.2", "255.255.255.0", "10.0.0.1"},
                 {"", "10.0.0.0", "255.255.255.255", "...", "..."},
                 {"", "10.0.0.1", "255.255.255.254", "10.0.0.0"},
                 {"", "10.0.0.2", "128.0.0.0", "", "127.0.0.1"},
                 {"300.1.1.1 is not an IPv4 address.", "300.1.1.1", "255.0.0.0"},
                 {"The IP address is missing.", "", "255.0.0.0"},
                 {"The IP address is missing.", "...", "255.0.0.0"},
                 {"The IP address is not complete.", "10.0.0", "255.0.0.0"},
                 {"The IP address is not complete.", "10..0.1", "255.0.255.0"},
                 {"10.0.0.02 is not an IPv4 address.", "10.0.0.02", "255.0.0.0"},
                 {"0.0.0.0 cannot be the address of a computer.", "0.0.0.0", "255.0.0.0"},
                 {"224.0.0.1 cannot be the address of a computer.", "224.0.0.1", "255.0.0.0"},
                 {"10.0.0.0 is the address of the network itself.", "10.0.0.0", "255.255.255.252"},
                 {"10.0.0.3 is the broadcast address of the network.", "10.0.0.3", "255.255.255.252"},
                 {"255.0.255.0 is not a subnet mask.", "10.0.0.2", "255.0.255.0"},
                 {"0.0.0.0 is not a subnet mask.", "10.0.0.2", "0.0.0.0"},
                 {"The subnet mask is missing.", "10.0.0.2", "..."},
                 {"The gateway is not complete.", "10.0.0.2", "255.0.0.0", "10.0."},
                 {"The gateway is the address itself.", "10.0.0.2", "255.0.0.0", "10.0.0.2"},
                 {"fe80::1 is not an IPv4 address.", "10.0.0.2", "255.0.0.0", "", "fe80::1"},
                 {"The DNS server is not complete.", "10.0.0.2", "255.0.0.0", "", "8.8.8."},
                 {"The preferred DNS server is not complete.", "10.0.0.2", "255.0.0.0", "", "8.8..8,..."},
                 {"The alternate DNS server is not complete.", "10.0.0.2", "255.0.0.0", "", "1.1.1.1,8."}};
        for (const auto& row : rows) {
            const auto list = [](const char* text) { return QString::fromLatin1(text).split(u','); };
            const auto ipv4 = checkedIPv4({{u"ConfigMethod"_s, u"Manual"_s},
                                           {u"Addresses"_s, list(row.address)},
                                           {u"SubnetMasks"_s, list(row.mask)},
                                           {u"Router"_s, QLatin1String(row.router)}});
            const auto dns = checkedDNS({{u"ServerAddresses"_s, list(row.server)}});
            const auto fault = ipv4 ? dns.fault() : ipv4.fault();
            QCOMPARE(fault.value_or(SettingFault()).reason, QLatin1String(row.reason));
        }
        QVERIFY(!checkedDNS({{u"SearchDomains"_s, QStringList(u"a\nnameserver 6.6.6.6"_s)}}));
        // What is there already is nobody's fault.
        const Dictionary odd{{u"ConfigMethod"_s, u"Manual"_s},
                             {u"Addresses"_s, QStringList{u"10.0.0.2"_s, u"10.88.0.0"_s}},
                             {u"SubnetMasks"_s, QStringList{u"255.0.0.0"_s, u"255.255.255.0"_s}}};
        QCOMPARE(checkedIPv4Changes(odd, {{u"Router"_s, u"10.0.0.1"_s}})->router, u"10.0.0.1"_s);
        QVERIFY(!checkedIPv4Changes(odd, {{u"Router"_s, u"10.0.0.2"_s}}));
        QVERIFY(!checkedIPv4Changes(odd, {{u"Addresses"_s, odd[u"Addresses"_s]}}));
    }

    void aFormChangesOnlyWhatItShows()
    {
        // What there is, what the form asks for, and what comes of it.
        const struct {
            Dictionary (*differences)(const Dictionary&, const Dictionary&);
            const char *present, *wanted, *result;
        } rows[]{
            {&ipv4Differences, "{'ConfigMethod':'shared'}", "{'ConfigMethod':'DHCP'}",
             "{'ConfigMethod':'shared'}"},
            {&ipv4Differences, "{'ConfigMethod':'DHCP','Addresses':['1.1.1.1'],'SubnetMasks':['255.0.0.0']}",
             "{'ConfigMethod':'Manual','Addresses':['1.1.1.2'],'SubnetMasks':['255.0.0.0']}",
             "{'ConfigMethod':'Manual','Addresses':['1.1.1.2'],'SubnetMasks':['255.0.0.0']}"},
            {&ipv4Differences,
             "{'ConfigMethod':'Manual','Addresses':['1.1.1.1','1.1.1.2'],'SubnetMasks':['255.0.0.0','255.0.0."
             "0'],'Router':'1.1.1.9'}",
             "{'ConfigMethod':'Manual','Addresses':['1.1.1.1'],'SubnetMasks':['255.0.0.0']}",
             "{'ConfigMethod':'Manual','Addresses':['1.1.1.1','1.1.1.2'],'SubnetMasks':['255.0.0.0','255.0.0."
             "0']}"},
            {&ipv4Differences,
             "{'ConfigMethod':'Manual','Addresses':['1.1.1.1','1.1.1.2'],'SubnetMasks':['255.0.0.0','255.0.0."
             "0']}",
             "{'ConfigMethod':'Manual','Addresses':['1.1.1.1'],'SubnetMasks':['255.255.0.0']}",
             "{'ConfigMethod':'Manual','Addresses':['1.1.1.1'],'SubnetMasks':['255.255.0.0']}"},
            {&dnsDifferences, "{'ServerAddresses':['1.1.1.1','2.2.2.2','3.3.3.3'],'SearchDomains':['a']}",
             "{'ServerAddresses':['1.1.1.1','2.2.2.2'],'SearchDomains':['b']}",
             "{'ServerAddresses':['1.1.1.1','2.2.2.2','3.3.3.3'],'SearchDomains':['b']}"},
            {&dnsDifferences, "{'ServerAddresses':['1.1.1.1'],'SearchDomains':['a']}", "{}", "{}"},
            {&dnsDifferences, "{'SearchDomains':['a']}", "{}", "{'SearchDomains':['a']}"},
        };
        for (const auto& row : rows) {
            const auto asRead = [](const char* json) {
                Dictionary read =
                    QJsonDocument::fromJson(QByteArray(json).replace('\'', '"')).toVariant().toMap();
                for (QVariant& value : read)
                    value = value.typeId() == QMetaType::QVariantList ? value.toStringList() : value;
                return read;
            };
            const Dictionary present = asRead(row.present);
            QCOMPARE(changed(present, row.differences(present, asRead(row.wanted))), asRead(row.result));
        }
    }

    void whatCannotBeStoredIsToldOnceAndLeavesWhatIsThere()
    {
        const QTemporaryDir place;
        const QDir folder(place.path());
        const QString key = u"key"_s;
        const QByteArray old("o\0d", 3);
        for (const QDir& where : {QDir(place.filePath(u"not/there/yet"_s)), folder}) {
            QVERIFY(!FileUserDefaults(where).data(key));
            FileUserDefaults(where).set(old, key);
            QCOMPARE(FileUserDefaults(where).data(key), old);
        }
        chmod(QFile::encodeName(folder.filePath(key)).constData(), 0444);
        const auto told = [&](const auto& hinder) {
            FileUserDefaults defaults(folder);
            QString sentences;
            defaults.couldNotStore = [&](const QString& sentence) { sentences += sentence; };
            hinder(true);
            defaults.set("newer", key);
            defaults.set("newest", key);
            hinder(false);
            return sentences.replace(u"Your profiles could not be saved: "_s, QString());
        };
        std::signal(SIGXFSZ, SIG_IGN);
        const auto full = [](bool now) {
            const rlimit limit{now ? 3 : RLIM_INFINITY, RLIM_INFINITY};
            setrlimit(RLIMIT_FSIZE, &limit);
        };
        const auto readOnly = [&](bool now) { // root writes everywhere; somebody else does not
            chmod(QFile::encodeName(folder.path()).constData(), now ? 0555 : 0700);
            QVERIFY(seteuid(now && getuid() == 0 ? 65534 : getuid()) == 0);
        };
        QCOMPARE(told(full), u"File too large."_s);
        QCOMPARE(told(readOnly), u"Permission denied."_s);
        QCOMPARE(FileUserDefaults(folder).data(key), old);
        QCOMPARE(folder.entryList(QDir::Files), QStringList(key));
        const auto replaceBy = [&](const auto& make) {
            const QString file = folder.filePath(key);
            QVERIFY((QFile::remove(file) || QDir().rmdir(file)) &&
                    make(QFile::encodeName(file).constData()) == 0);
            QCOMPARE(told([](bool) {}), u"those stored before cannot be read."_s);
        };
        replaceBy([](const char* file) { return mkdir(file, 0700); });
        replaceBy([](const char* file) { return symlink(file, file); }); // which cannot even be looked at
        replaceBy([](const char* file) { return mkfifo(file, 0600); });  // which would be read for ever
    }

    void nobodyElsesFileIsWrittenOrReadableThroughOurs()
    {
        const QTemporaryDir folder;
        const auto place = [&](const char* name) { return folder.filePath(QLatin1String(name)); };
        QVERIFY(QDir(folder.path()).mkdir(u"machine.defaults"_s));
        const QStringList links{place("machine"), place("machine.defaults/key"), place("machine.login-item"),
                                place("machine.lock")};
        for (const QString& link : links)
            QVERIFY(QFile::link(place("victim"), link));
        Platform platform = simulatedPlatform(place("machine"), std::make_unique<BootTimeClock>());
        QVERIFY(!QFile::exists(place("victim")));
        FileUserDefaults victim(QDir(folder.path()));
        victim.set("theirs", u"victim"_s);
        platform.userDefaults->set("own", u"key"_s);
        QVERIFY(!platform.loginItem->registerItem());
        const auto preferences =
            platform.systemConfiguration->createPreferencesWithAuthorization({}, AuthorizationRef{1});
        QVERIFY(!preferences->lock(true)); // a link is not taken for the lock
        QCOMPARE(victim.data(u"victim"_s), QByteArray("theirs"));
        QVERIFY(QFile::remove(links.last()) && preferences->lock(true));
        for (const QString& file : links) {
            struct stat found = {};
            QVERIFY(lstat(QFile::encodeName(file).constData(), &found) == 0);
            QCOMPARE(found.st_mode, mode_t(S_IFREG | S_IRUSR | S_IWUSR));
        }
    }

    void loginItemIsAnAutostartEntry()
    {
        const QTemporaryDir folder;
        const QString program = u"/opt/a b/50%/$x\\\"y\""_s;
        XdgLoginItem item(QDir(folder.filePath(u"autostart"_s)), program);
        const QString entry =
            folder.filePath(u"autostart/%1.desktop"_s.arg(QLatin1String(applicationIdentifier)));
        QCOMPARE(item.status(), LoginItem::Status::notRegistered);
        QVERIFY(item.unregisterItem());
        QVERIFY(!item.registerItem());
        QCOMPARE(item.status(), LoginItem::Status::enabled);

        QFile file(entry);
        QVERIFY(file.open(QIODevice::ReadWrite));
        const QByteArray good = file.readAll();
        QVERIFY2(good.contains(R"(Exec="/opt/a b/50%%/\\$x\\\\\\"y\\"")"), good.constData());
        const auto statusWith = [&](const QByteArray& text) {
            file.resize(0);
            file.seek(0);
            file.write(text);
            file.flush();
            return item.status();
        };
        QCOMPARE(statusWith(good + "Hidden=true\n"), LoginItem::Status::requiresApproval);
        QCOMPARE(statusWith(QByteArray(good).replace("enabled=true", "enabled=false")),
                 LoginItem::Status::requiresApproval);
        QCOMPARE(statusWith("[Desktop Entry]\nExec=/bin/other\n"), LoginItem::Status::notFound);
        QCOMPARE(statusWith("nonsense"), LoginItem::Status::notFound);
        QVERIFY(!item.unregisterItem());
        QCOMPARE(item.status(), LoginItem::Status::notRegistered);
    }

    void theWayOfWhoIsElsewhereIsKnown()
    {
        const QString bus = u"ardeo-test"_s;
        const auto way = [&] { return remoteInterface(QDBusConnection(bus)).value_or(u"none"_s); };
        const std::pair<const char*, const char*> connections[]{{"127.0.0.9 50000 127.0.0.1 22", "lo"},
                                                                {"203.0.113.1 50000 203.0.113.2 22", "none"},
                                                                {"127.0.0.1 22", "none"},
                                                                {"", "none"}};
        for (const auto& [connection, interface] : connections) {
            qputenv("SSH_CONNECTION", connection);
            QCOMPARE(way(), QLatin1String(interface));
        }
        qunsetenv("SSH_CONNECTION");
        QProcess daemon;
        daemon.start(u"dbus-daemon"_s, {u"--session"_s, u"--nofork"_s, u"--print-address"_s});
        QVERIFY(daemon.waitForReadyRead());
        const QString address = QString::fromUtf8(daemon.readLine().trimmed());
        QThread thread; // which answers while the question blocks
        Logind logind;
        auto server = QDBusConnection::connectToBus(address, u"ardeo-logind"_s);
        QVERIFY(server.registerVirtualObject(u"/org/freedesktop/login1/session/auto"_s, &logind));
        QVERIFY(server.registerService(u"org.freedesktop.login1"_s));
        QDBusConnection::connectToBus(address, bus);
        logind.moveToThread(&thread);
        thread.start();
        const std::pair<QVariantMap, const char*> sessions[]{
            {{{u"Remote"_s, true}, {u"RemoteHost"_s, u"127.0.0.1"_s}}, "lo"},
            {{{u"Remote"_s, false}, {u"RemoteHost"_s, u"127.0.0.1"_s}}, "none"},
            {{{u"Remote"_s, true}, {u"RemoteHost"_s, u"a.name.example"_s}}, "none"},
        };
        for (const auto& [session, interface] : sessions) {
            logind.session = session;
            QCOMPARE(way(), QLatin1String(interface));
        }
        thread.quit();
        thread.wait();
        QDBusConnection::disconnectFromBus(bus);
        QDBusConnection::disconnectFromBus(u"ardeo-logind"_s);
        daemon.kill();
        daemon.waitForFinished();
    }

    void clockFinishesItsWaits()
    {
        BootTimeClock clock;
        const auto start = clock.continuousTime();
        const QFuture<void> none = clock.sleep(0ms);
        const QFuture<void> some = clock.sleep(20ms);
        QTRY_VERIFY(none.isFinished() && some.isFinished());
        QVERIFY(clock.continuousTime() >= start + 20ms);
    }
};

QTEST_GUILESS_MAIN(PlatformTest)
#include "PlatformTest.moc"
