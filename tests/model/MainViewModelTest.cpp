#include "model/MainViewModel.h"
#include "fakes/Fakes.h"

#include <QRandomGenerator>
#include <QTemporaryDir>
#include <QTest>

#include <functional>
#include <sys/stat.h>

using namespace ardeo;
using namespace std::chrono_literals;

namespace
{

/// A model over fakes, with three services of which the second is active.
struct Fixture : FakePlatform {
    std::shared_ptr<MainViewModel> model;

    explicit Fixture(bool listed = true)
    {
        for (const char* name : {"Ethernet", "Wi-Fi", "iPhone USB"})
            system->services.append({.name = QLatin1String(name), .id = QLatin1String(name)});
        system->state[u"State:/Network/Service/Wi-Fi/IPv4"_s] =
            Dictionary{{u"Addresses"_s, QStringList(u"10.0.0.2"_s)}};
        model = MainViewModel::create(platform);
        if (listed)
            QCoro::waitFor(model->loadAdapters());
    }
    ~Fixture() { letGo(model, *clock); }
    Q_DISABLE_COPY(Fixture)

    QString selected() const
    {
        return model->selectedAdapter.value().value_or(AdapterInfo()).serviceName.string();
    }
    Dictionary written(const QString& protocol) const
    {
        return system->services[1].protocols[protocol]->toMap();
    }
    /// Starts an action and lets it run until it waits for the clock or has ended.
    void start(const std::function<QCoro::Task<>()>& action)
    {
        action();
        settle();
    }
    void settle() { QTRY_VERIFY(clock->sleepers() > 0 || !model->isApplying.value()); }
};

} // namespace

class MainViewModelTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void listingSelectsTheFirstActiveServiceOrElseTheFirst()
    {
        Fixture fixture(false);
        MainViewModel& model = *fixture.model;
        auto services = std::exchange(fixture.system->services, {});
        QCoro::waitFor(model.loadAdapters());
        QVERIFY(!model.selectedAdapter.value() && model.currentConfig.value().computerName.isEmpty());
        fixture.system->services = services;
        QCoro::waitFor(model.refreshAdapters());
        QVERIFY(!model.selectedAdapter.value());
        QCoro::waitFor(model.loadAdapters());
        QCOMPARE(fixture.selected(), u"Wi-Fi"_s);
        QCOMPARE(model.ipAddress.value(), Text(u"10.0.0.2"_s));
        QVERIFY(!model.isLoading.value() && !model.hasChanges());
        Fixture idle(false);
        idle.system->state.clear();
        QCoro::waitFor(idle.model->loadAdapters());
        QCOMPARE(idle.selected(), u"Ethernet"_s);
    }

    void refreshFollowsTheSelectedServiceAsLongAsItIsThere()
    {
        Fixture fixture;
        MainViewModel& model = *fixture.model;
        model.ipAddress = u"1.2.3.4"_s;
        fixture.system->services[1].enabled = false;
        QCoro::waitFor(model.refreshAdapters());
        QVERIFY(!model.selectedAdapter.value()->isEnabled);
        QCOMPARE(model.ipAddress.value(), Text(u"10.0.0.2"_s));

        fixture.system->services.removeAt(1);
        model.ipAddress = u"1.2.3.4"_s;
        QCoro::waitFor(model.refreshAdapters());
        QCOMPARE(fixture.selected(), u"Wi-Fi"_s);
        QCOMPARE(model.ipAddress.value(), Text(u"1.2.3.4"_s));
        QCOMPARE(model.adapters.value().size(), 2);
    }

    void formIsFilledFromProfilesAndReverted()
    {
        Fixture fixture;
        MainViewModel& model = *fixture.model;
        model.populateForm({.searchDomains = {u"corp.example"_s, u"lab.example"_s}});
        QCOMPARE(model.searchDomains.value(), Text(u"corp.example lab.example"_s));
        for (Observed<Text>* field : {&model.ipAddress, &model.subnetMask, &model.router, &model.primaryDNS,
                                      &model.alternateDNS, &model.searchDomains}) {
            model.revertForm();
            QVERIFY(!model.hasChanges());
            *field = u"x"_s;
            QCOMPARE(model.hasChanges(), field != &model.searchDomains);
        }
        model.revertForm();
        model.dnsMode = DNSMode::manual;
        QVERIFY(model.hasChanges());
        model.revertForm();
        model.ipv4Mode = IPv4Mode::manual;
        QVERIFY(model.hasChanges());

        NetworkPreset preset{QUuid(),      u"Office"_s,  u"Ethernet"_s, IPv4Mode::manual,
                             u"1.1.1.1"_s, u"2.2.2.2"_s, u"3.3.3.3"_s,  DNSMode::manual,
                             u"4.4.4.4"_s, u"5.5.5.5"_s, u" a  b "_s};
        model.applyError = Text(u"stays"_s);
        model.loadPreset(preset);
        QVERIFY(model.applyError.value());
        model.savePreset(u"Office"_s);
        const NetworkPreset saved = model.presetStore.presets().last();
        preset.id = saved.id;
        preset.serviceName = u"Wi-Fi"_s;
        QCOMPARE(saved, preset);
        model.revertForm();
        QVERIFY(!model.applyError.value() && !model.hasChanges());
    }

    void fieldsTellOnlyOfDifferencesButTheConfigurationAlways()
    {
        Fixture fixture(false);
        int names = 0;
        int readings = 0;
        const auto onName = fixture.model->router.addNotifier([&names] { ++names; });
        const auto onReading = fixture.model->currentConfig.addNotifier([&readings] { ++readings; });
        fixture.model->router = u"\u00E9"_s;
        fixture.model->router = u"e\u0301"_s;
        QCOMPARE(fixture.model->router.value().string().size(), 2); // kept as it was given all the same
        QCoro::waitFor(fixture.model->loadAdapters());
        QCoro::waitFor(fixture.model->refreshAdapters());
        QCOMPARE(std::pair(names, readings), std::pair(2, 2)); // the first reading has cleared the field
    }

    void applyWritesTheFormAndReadsTwice()
    {
        Fixture fixture(false);
        MainViewModel& model = *fixture.model;
        fixture.start([&] { return fixture.model->applyConfiguration(); });
        QCOMPARE(fixture.authorization->prompts, 0); // nothing selected yet, nothing happens
        QCoro::waitFor(model.loadAdapters());
        model.ipv4Mode = IPv4Mode::manual;
        model.ipAddress = u"10.0.0.9"_s;
        model.dnsMode = DNSMode::manual;
        model.primaryDNS = u"8.8.8.8"_s;
        model.alternateDNS = u"9.9.9.9"_s;
        model.searchDomains = u"  corp.example\t\tlab.example\u2003x\ny  "_s;
        model.applyError = Text(u"old"_s);
        fixture.start([&] { return fixture.model->applyConfiguration(); });
        QVERIFY(model.isApplying.value() && !model.applyError.value());
        const QStringList domains{u"corp.example"_s, u"lab.example"_s, u"x\ny"_s};
        const Dictionary resolution{{u"ServerAddresses"_s, QStringList{u"8.8.8.8"_s, u"9.9.9.9"_s}},
                                    {u"SearchDomains"_s, domains}};
        QCOMPARE(fixture.written(u"DNS"_s), resolution);
        QCOMPARE(fixture.written(u"IPv4"_s)[u"Addresses"_s], QStringList(u"10.0.0.9"_s));

        model.router = u"typed meanwhile"_s;
        fixture.clock->advance(1s);
        QTRY_VERIFY(!model.isApplying.value());
        QVERIFY(model.applySuccess.value());
        QVERIFY(model.router.value().isEmpty());
        model.router = u"typed after"_s;
        fixture.clock->advance(3s);
        QTRY_VERIFY(model.router.value().isEmpty());
        QVERIFY(model.applySuccess.value());
        QCOMPARE(fixture.clock->asked, (QList<qint64>{1000, 3000}));
        model.applyError = Text(u"of another one"_s);
        QCoro::waitFor(model.selectAdapter(*model.selectedAdapter.value()));
        QVERIFY(!model.applySuccess.value() && !model.applyError.value());

        model.ipv4Mode = IPv4Mode::manual; // in the form, which has no part in a renewal
        model.primaryDNS = u"edited"_s;
        fixture.start([&] { return fixture.model->renewDHCPLease(); });
        QCOMPARE(fixture.written(u"DNS"_s), resolution);
        QCOMPARE(fixture.written(u"IPv4"_s), (Dictionary{{u"ConfigMethod"_s, u"DHCP"_s}}));
    }

    void whatOthersChangeIsFollowedButEditsStay()
    {
        Fixture fixture;
        MainViewModel& model = *fixture.model;
        FakeSystemConfiguration& system = *fixture.system;
        const auto setAddress = [&system](const QString& address) {
            const Dictionary live{{u"Addresses"_s, QStringList(address)}};
            system.state[u"State:/Network/Service/Wi-Fi/IPv4"_s] = address.isEmpty() ? QVariant() : live;
            system.change();
        };
        const auto isRead = [&model](const char* address) {
            return model.currentConfig.value().ipAddress == Text(QLatin1String(address));
        };
        const auto neverLoading = model.isLoading.addNotifier([] { QFAIL("shown as loading"); });
        setAddress(u"10.0.0.3"_s);
        model.follow(this, true);
        QTRY_VERIFY(isRead("10.0.0.3") && !model.hasChanges());
        model.router = u"..."_s; // the editor's writing of an empty one
        setAddress(u"10.0.0.4"_s);
        QTRY_COMPARE(model.ipAddress.value(), Text(u"10.0.0.4"_s));
        model.router = u"edited"_s;
        setAddress(u"10.0.0.5"_s);
        QTRY_VERIFY(isRead("10.0.0.5"));
        QCOMPARE(model.ipAddress.value(), Text(u"10.0.0.4"_s));
        QCOMPARE(model.router.value(), Text(u"edited"_s));
        model.isApplying = true;
        setAddress(u""_s);
        QVERIFY(!QTest::qWaitFor([&] { return isRead(""); }, 500));
        model.isApplying = false;
        QTRY_VERIFY(isRead("") && !model.selectedAdapter.value()->isActive);
        setAddress(u"10.0.0.6"_s);
        QTRY_VERIFY(isRead("10.0.0.6") && model.selectedAdapter.value()->isActive);
        const auto service = system.services.takeAt(1);
        system.change();
        QTRY_VERIFY(model.selectedIsGone.value() && !model.selectedAdapter.value()->isActive);
        QCOMPARE(fixture.selected(), u"Wi-Fi"_s);
        system.services.append(service);
        system.change();
        QTRY_VERIFY(!model.selectedIsGone.value() && isRead("10.0.0.6"));
        const int rests = system.rests;
        model.follow(this, false);
        QTRY_COMPARE(system.rests.load(), rests + 1); // and not before
    }

    void consentIsAskedForOnceUntilSomethingFails()
    {
        Fixture fixture;
        MainViewModel& model = *fixture.model;
        FakeAuthorization& authorization = *fixture.authorization;
        const auto attempt = [&](qint32 status) {
            fixture.system->refusals[u"commit"_s] = status;
            fixture.start([&] { return fixture.model->applyConfiguration(); });
            fixture.clock->advance(10s);
            QTRY_VERIFY(!model.isApplying.value());
            fixture.clock->advance(10s); // the follow-up too
            QTRY_COMPARE(fixture.clock->sleepers(), 0);
        };
        attempt(0);
        attempt(0);
        QCOMPARE(authorization.prompts, 1);
        QCOMPARE(authorization.flags, 0x13U);
        attempt(1003);
        QCOMPARE(model.applyError.value(), Text(u"Cannot save changes (SC 1003)."_s));
        QVERIFY(!model.applySuccess.value() && authorization.live.isEmpty());
        attempt(0);
        QCOMPARE(authorization.prompts, 2);
        QVERIFY(!model.applyError.value());
        QCOMPARE(fixture.system->authorization.handle, authorization.live.first());
        fixture.system->services[1].personal = true;
        attempt(0); // lists it so
        attempt(0);
        QCOMPARE(authorization.rights.mid(2), QStringList(u"user.preferences.network"_s));
        QCOMPARE(authorization.live.size(), 1);

        model.authService.invalidate();
        authorization.granted = false;
        attempt(0);
        QVERIFY(authorization.live.isEmpty());
        authorization.available = false;
        attempt(0);
        QCOMPARE(model.applyError.value(), Text(u"Cannot create authorization reference."_s));
    }

    void switchingReadsOnceAndReportsNoSuccess()
    {
        Fixture fixture;
        MainViewModel& model = *fixture.model;
        model.setAdapterEnabled(false);
        fixture.settle();
        QVERIFY(model.isApplying.value() && model.selectedAdapter.value()->isEnabled);
        fixture.clock->advance(500ms);
        QTRY_VERIFY(!model.isApplying.value());
        QVERIFY(!model.selectedAdapter.value()->isEnabled && !model.applySuccess.value());
        QCOMPARE(fixture.clock->asked, QList<qint64>{500});
        model.setAdapterEnabled(true, 30s); // of the service that was selected then
        QCoro::waitFor(model.selectAdapter(model.adapters.value().last()));
        fixture.settle();
        QVERIFY(fixture.system->services[1].enabled && fixture.system->calls.contains(u"try 30 s"_s));
        QCOMPARE(fixture.selected(), u"iPhone USB"_s);
        QCOMPARE(fixture.authorization->rights.last(), QLatin1String(trialRight));
    }

    void profilesTravelThroughFiles()
    {
        Fixture fixture;
        MainViewModel& model = *fixture.model;
        const QTemporaryDir folder;
        const QString place = folder.filePath(u"file"_s);
        const auto import = [&](const QByteArray& content) {
            QFile file(place);
            QVERIFY(file.open(QIODevice::WriteOnly) && file.write(content) == content.size());
            file.close();
            model.importPresets();
        };
        fixture.filePanels->place = place;
        model.savePreset(u"Office"_s);
        model.savePreset(u"Office"_s);
        const auto presets = model.presetStore.presets();
        import("old");
        QCOMPARE(model.applyError.value(), Text(u"Could not read profiles file."_s));
        model.applyError = std::nullopt;
        QVERIFY(model.exportPresets());
        model.presetStore.setPresets({presets.last()});
        model.importPresets();
        QCOMPARE(model.presetStore.presets(), (QList{presets.last(), presets.first()}));
        model.presetStore.setPresets({});
        import("\xEF\xBB\xBF" + *encodePresets({presets.first()}));
        QCOMPARE(model.presetStore.presets(), QList{presets.first()});
        QVERIFY(!model.applyError.value());
        const QString pipe = folder.filePath(u"pipe"_s); // which would be read for ever
        QCOMPARE(mkfifo(pipe.toUtf8().constData(), 0600), 0);
        for (const QString& other : {folder.path(), pipe}) {
            model.applyError = std::nullopt;
            fixture.filePanels->place = other;
            model.importPresets();
            QVERIFY(model.applyError.value());
        }
        fixture.filePanels->place = folder.path();
        QVERIFY(!model.exportPresets());
        fixture.userDefaults->unreadable = {u"org.ardeo.IPConfig.presets"_s};
        fixture.filePanels->place = place;
        const qint64 size = QFileInfo(place).size();
        QVERIFY(!MainViewModel::create(fixture.platform)->exportPresets());
        QCOMPARE(QFileInfo(place).size(), size);
    }

    void startingAtLoginIsWhatTheSystemSays()
    {
        Fixture fixture(false);
        FakeLoginItem& item = *fixture.loginItem;
        using enum LoginItem::Status;
        for (const auto& [fails, afterwards, shown] : {std::tuple(false, enabled, true),
                                                       {true, enabled, true},
                                                       {false, requiresApproval, false},
                                                       {true, notFound, false}}) {
            fixture.model->applyError = std::nullopt;
            item.failure = fails ? std::optional(u"no"_s) : std::nullopt;
            item.next = afterwards;
            fixture.model->toggleLoginItem();
            QCOMPARE(fixture.model->isLoginItem.value(), shown);
            QCOMPARE(fixture.model->applyError.value().value_or(Text()).string(),
                     fails ? u"Start at login: no"_s : QString());
        }
        QCOMPARE(item.calls.join(u','), u"register,unregister,unregister,register"_s);
    }

    void noActionWaitsForTheSystemOnTheMainThread()
    {
        Fixture fixture;
        MainViewModel& model = *fixture.model;
        const auto busy = [&model] { return model.isLoading.value() || model.isApplying.value(); };
        const std::function<QCoro::Task<>()> actions[]{
            [&] { return model.loadAdapters(); },
            [&] { return model.refreshAdapters(); },
            [&] { return model.selectAdapter(model.adapters.value().last()); },
            [&] { return model.applyConfiguration(); },
            [&] { return model.renewDHCPLease(); },
            [&] { return model.setAdapterEnabled(false); },
        };
        for (const auto& action : actions) {
            fixture.system->gate.acquire(1000);
            action(); // comes back although the system does not answer
            QVERIFY(busy());
            fixture.system->gate.release(1000);
            QVERIFY(QTest::qWaitFor([&] {
                fixture.clock->advance(10s);
                return !busy();
            }));
        }
    }

    /// ARDEO_ROUNDS is how often, ARDEO_SEED where to start; what is asserted must hold however they
    /// interleave.
    void actionsInterleaveAtRandom()
    {
        const int rounds = qEnvironmentVariable("ARDEO_ROUNDS", u"50"_s).toInt();
        const uint first = qEnvironmentVariable("ARDEO_SEED", u"1"_s).toUInt();
        for (uint seed = first; seed < first + static_cast<uint>(rounds); ++seed) {
            qInfo("ARDEO_ROUNDS=1 ARDEO_SEED=%u", seed);
            QRandomGenerator random(seed);
            const auto once = [&](int of) { return random.bounded(of) == 0; };
            Fixture fixture(false);
            FakeSystemConfiguration& system = *fixture.system;
            if (once(3))
                system.refusals[once(2) ? u"commit"_s : u"lock"_s] = 1003;
            MainViewModel& model = *fixture.model;
            const std::array<std::function<void()>, 9> actions{
                [&] { model.follow(&model.configService, once(2)); },
                [&] { system.change(); },
                [&] { model.refreshAdapters(); },
                [&] { model.loadAdapters(); },
                [&] { model.applyConfiguration(); },
                [&] { model.renewDHCPLease(); },
                [&] { model.setAdapterEnabled(once(2)); },
                [&] { fixture.clock->advance(std::chrono::milliseconds(random.bounded(2000))); },
                [&] {
                    if (const auto adapters = model.adapters.value(); !adapters.isEmpty())
                        model.selectAdapter(adapters.at(random.bounded(adapters.size())));
                }};
            for (int step = random.bounded(60); step > 0; --step) {
                actions.at(random.bounded(9U))();
                if (once(2))
                    QCoreApplication::processEvents(QEventLoop::AllEvents, 5);
            }
            if (once(2))
                continue;                         // quits amid all of it
            QCoro::waitFor(model.loadAdapters()); // chooses where nothing was chosen
            do {
                fixture.clock->advance(10s);
                QCoro::waitFor(model.refreshAdapters());
            } while (fixture.clock->sleepers() > 0 || model.isApplying.value() || model.isLoading.value());
            QVERIFY(fixture.authorization->live.size() <= 1);
            QCOMPARE(model.adapters.value(), model.configService.listAdapters().result());
            QVERIFY(model.adapters.value().contains(*model.selectedAdapter.value()) && !model.hasChanges());
            QVERIFY(!model.applyError.value() || !system.refusals.isEmpty());
            QCOMPARE(system.calls.count(u"unlock"_s),
                     system.refusals.contains(u"lock"_s) ? 0 : system.calls.count(u"lock"_s));
        }
    }
};

QTEST_GUILESS_MAIN(MainViewModelTest)
#include "MainViewModelTest.moc"
