#include "platform/Platform.h"
#include "platform/FileUserDefaults.h"
#include "platform/ProtocolConfiguration.h"
#include "platform/linux/BootTimeClock.h"
#include "platform/linux/XdgLoginItem.h"
#include "platform/simulated/SimulatedPlatform.h"

#include <QFutureWatcher>
#include <QTemporaryDir>
#include <QTest>

#include <csignal>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace ardeo;
using namespace std::chrono_literals;

class PlatformTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void settingsAreChecked_data()
    {
        QTest::addColumn<QString>("address");
        QTest::addColumn<QString>("mask");
        QTest::addColumn<QString>("router");
        QTest::addColumn<QString>("server");
        QTest::addColumn<bool>("accepted");
        const auto row = [](const char* address, const char* mask, const char* router, const char* server,
                            bool accepted) {
            QTest::addRow("%s %s %s %s", address, mask, router, server)
                << QString::fromLatin1(address) << QString::fromLatin1(mask) << QString::fromLatin1(router)
                << QString::fromLatin1(server) << accepted;
        };
        row("10.0.0.2", "255.255.255.0", "10.0.0.1", "8.8.8.8", true);
        row("10.0.0.2", "255.255.255.255", "...", "...", true);
        row("10.0.0.2", "128.0.0.0", "", "127.0.0.1", true);
        row("300.1.1.1", "255.0.0.0", "", "8.8.8.8", false);
        row("abc", "255.0.0.0", "", "8.8.8.8", false);
        row("", "255.0.0.0", "", "8.8.8.8", false);
        row("...", "255.0.0.0", "", "8.8.8.8", false);
        row("10.0.0", "255.0.0.0", "", "8.8.8.8", false);
        row("10.0.0.02", "255.0.0.0", "", "8.8.8.8", false);
        row("0.0.0.0", "255.0.0.0", "", "8.8.8.8", false);
        row("224.0.0.1", "255.0.0.0", "", "8.8.8.8", false);
        row("10.0.0.2", "255.0.255.0", "", "8.8.8.8", false);
        row("10.0.0.2", "0.0.0.0", "", "8.8.8.8", false);
        row("10.0.0.2", "...", "", "8.8.8.8", false);
        row("10.0.0.2", "255.0.0.0", "10.0.", "8.8.8.8", false);
        row("10.0.0.2", "255.0.0.0", "", "fe80::1", false);
        row("10.0.0.2", "255.0.0.0", "", "8.8.8", false);
    }
    void settingsAreChecked()
    {
        QFETCH(QString, address);
        QFETCH(QString, mask);
        QFETCH(QString, router);
        QFETCH(QString, server);
        const bool ipv4 = checkedIPv4({{QStringLiteral("ConfigMethod"), QStringLiteral("Manual")},
                                       {QStringLiteral("Addresses"), QStringList(address)},
                                       {QStringLiteral("SubnetMasks"), QStringList(mask)},
                                       {QStringLiteral("Router"), router}})
                              .has_value();
        const bool dns = checkedDNS({{QStringLiteral("ServerAddresses"), QStringList(server)}}).has_value();
        QTEST(ipv4 && dns, "accepted");
        QVERIFY(!checkedDNS(
            {{QStringLiteral("SearchDomains"), QStringList(QStringLiteral("a\nnameserver 6.6.6.6"))}}));
    }

    void userDefaultsKeepOneFilePerKey()
    {
        const QTemporaryDir folder;
        const QDir place(folder.filePath(QStringLiteral("new/place")));
        const QString key = QStringLiteral("key");
        FileUserDefaults defaults(place);
        QVERIFY(!defaults.data(key));
        defaults.set(QByteArray("a\0b", 3), key);
        QCOMPARE(FileUserDefaults(place).data(key), QByteArray("a\0b", 3));
        QCOMPARE(QFile::permissions(place.filePath(key)) & (QFile::ReadGroup | QFile::ReadOther),
                 QFile::Permissions());
        defaults.set({}, key);
        QCOMPARE(defaults.data(key), QByteArray());
    }

    void whatCannotBeStoredIsToldOnceAndLeavesWhatIsThere()
    {
        const QTemporaryDir place;
        const QDir folder(place.path());
        const QString key = QStringLiteral("key");
        FileUserDefaults(folder).set("old", key);
        chmod(QFile::encodeName(folder.filePath(key)).constData(), 0444);
        const auto told = [&](const auto& hinder) {
            FileUserDefaults defaults(folder);
            QString sentences;
            defaults.couldNotStore = [&](const QString& sentence) { sentences += sentence; };
            hinder(true);
            defaults.set("newer", key);
            defaults.set("newest", key);
            hinder(false);
            return sentences.replace(QStringLiteral("Your profiles could not be saved: "), QString());
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
        QCOMPARE(told(full), QStringLiteral("File too large."));
        QCOMPARE(told(readOnly), QStringLiteral("Permission denied."));
        QCOMPARE(FileUserDefaults(folder).data(key), QByteArray("old"));
        QCOMPARE(folder.entryList(QDir::Files), QStringList(key));
        QVERIFY(QFile::remove(folder.filePath(key)) && folder.mkdir(key));
        QCOMPARE(told([](bool) {}), QStringLiteral("those stored before cannot be read."));
    }

    void nobodyElsesFileIsWrittenOrReadableThroughOurs()
    {
        const QTemporaryDir folder;
        const auto place = [&](const char* name) { return folder.filePath(QLatin1String(name)); };
        QVERIFY(QDir(folder.path()).mkdir(QStringLiteral("machine.defaults")));
        const QStringList links{place("machine"), place("machine.defaults/key"), place("machine.login-item"),
                                place("machine.lock")};
        for (const QString& link : links)
            QVERIFY(QFile::link(place("victim"), link));
        Platform platform = simulatedPlatform(place("machine"), std::make_unique<BootTimeClock>());
        QVERIFY(!QFile::exists(place("victim")));
        FileUserDefaults victim(QDir(folder.path()));
        victim.set("theirs", QStringLiteral("victim"));
        platform.userDefaults->set("own", QStringLiteral("key"));
        QVERIFY(!platform.loginItem->registerItem());
        const auto preferences =
            platform.systemConfiguration->createPreferencesWithAuthorization({}, AuthorizationRef{1});
        QVERIFY(!preferences->lock(true)); // a link is not taken for the lock
        QCOMPARE(victim.data(QStringLiteral("victim")), QByteArray("theirs"));
        QVERIFY(QFile::remove(links.last()) && preferences->lock(true));
        for (const QString& file : links) {
            struct stat found {
            };
            QVERIFY(lstat(QFile::encodeName(file).constData(), &found) == 0);
            QCOMPARE(found.st_mode, mode_t(S_IFREG | S_IRUSR | S_IWUSR));
        }
    }

    void loginItemIsAnAutostartEntry()
    {
        const QTemporaryDir folder;
        const QString program = QStringLiteral("/opt/a b/50%/$x\\\"y\"");
        XdgLoginItem item(QDir(folder.filePath(QStringLiteral("autostart"))), program);
        const QString entry =
            folder.filePath(QStringLiteral("autostart/%1.desktop").arg(QLatin1String(applicationIdentifier)));
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

    void clockFinishesItsWaits()
    {
        BootTimeClock clock;
        const auto start = clock.continuousTime();
        QFutureWatcher<void> none;
        QFutureWatcher<void> some;
        none.setFuture(clock.sleep(0ms));
        some.setFuture(clock.sleep(20ms));
        QTRY_VERIFY(none.isFinished() && some.isFinished());
        QVERIFY(clock.continuousTime() >= start + 20ms);
    }
};

QTEST_GUILESS_MAIN(PlatformTest)
#include "PlatformTest.moc"
