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

const QString manualMethod = QStringLiteral("Manual");

QString stateKey(const QString& service)
{
    return QStringLiteral("State:/Network/Service/%1/IPv4").arg(service);
}

/// A model over fakes, with three services of which the second is active.
struct Fixture {
    FakePlatform fakes;
    std::shared_ptr<MainViewModel> model;

    Fixture()
    {
        for (const char* name : {"Ethernet", "Wi-Fi", "iPhone USB"})
            fakes.system->services->append(
                {.name = QString::fromLatin1(name), .id = QString::fromLatin1(name)});
        setAddress(QStringLiteral("Wi-Fi"), QStringLiteral("10.0.0.2"));
        model = MainViewModel::create(fakes.platform);
    }
    ~Fixture()
    {
        const std::weak_ptr<MainViewModel> alive = model;
        model.reset();
        while (!alive.expired()) {
            fakes.clock->advance(10s);
            QCoreApplication::processEvents(QEventLoop::AllEvents, 10);
            QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        }
    }
    Fixture(const Fixture&) = delete;
    Fixture& operator=(const Fixture&) = delete;

    void setAddress(const QString& service, const QString& address) const
    {
        fakes.system->state[stateKey(service)] =
            Dictionary{{QStringLiteral("Addresses"), QStringList(address)}};
    }
    QString selected() const
    {
        const auto adapter = model->selectedAdapter.value();
        return adapter ? adapter->serviceName.string() : QString();
    }
    Dictionary written(const QString& protocol) const
    {
        return (*fakes.system->services)[1].protocols[protocol]->toMap();
    }
    /// Starts an action and lets it run until it waits for the clock or has ended.
    template <typename Action>
    void start(Action action)
    {
        (model.get()->*action)();
        settle();
    }
    void settle() { QTRY_VERIFY(fakes.clock->sleepers() > 0 || !model->isApplying.value()); }
};

} // namespace

class MainViewModelTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void firstListingSelectsTheFirstActiveService()
    {
        Fixture fixture;
        QVERIFY(fixture.fakes.system->calls.isEmpty());
        QCoro::waitFor(fixture.model->loadAdapters());
        QCOMPARE(fixture.model->adapters.value().size(), 3);
        QCOMPARE(fixture.selected(), QStringLiteral("Wi-Fi"));
        QCOMPARE(fixture.model->ipAddress.value(), Text(QStringLiteral("10.0.0.2")));
        QVERIFY(!fixture.model->isLoading.value());
        QVERIFY(!fixture.model->hasChanges());
    }

    void withoutActiveServicesTheFirstIsSelectedAndWithoutAnyNone()
    {
        Fixture fixture;
        fixture.fakes.system->state.clear();
        auto services = std::exchange(*fixture.fakes.system->services, {});
        QCoro::waitFor(fixture.model->loadAdapters());
        QVERIFY(!fixture.model->selectedAdapter.value());
        QVERIFY(fixture.model->currentConfig.value().computerName.isEmpty());
        QVERIFY(!fixture.model->isLoading.value());
        *fixture.fakes.system->services = services;
        QCoro::waitFor(fixture.model->refreshAdapters());
        QVERIFY(!fixture.model->selectedAdapter.value());
        QCoro::waitFor(fixture.model->loadAdapters());
        QCOMPARE(fixture.selected(), QStringLiteral("Ethernet"));
    }

    void refreshFollowsTheSelectedServiceAsLongAsItIsThere()
    {
        Fixture fixture;
        MainViewModel& model = *fixture.model;
        QCoro::waitFor(model.loadAdapters());
        model.ipAddress = QStringLiteral("1.2.3.4");
        QVERIFY(model.hasChanges());
        (*fixture.fakes.system->services)[1].enabled = false;
        QCoro::waitFor(model.refreshAdapters());
        QVERIFY(!model.selectedAdapter.value()->isEnabled);
        QCOMPARE(model.ipAddress.value(), Text(QStringLiteral("10.0.0.2")));

        fixture.fakes.system->services->removeAt(1);
        model.ipAddress = QStringLiteral("1.2.3.4");
        QCoro::waitFor(model.refreshAdapters());
        QCOMPARE(fixture.selected(), QStringLiteral("Wi-Fi"));
        QCOMPARE(model.ipAddress.value(), Text(QStringLiteral("1.2.3.4")));
        QCOMPARE(model.adapters.value().size(), 2);
    }

    void formIsFilledFromProfilesAndReverted()
    {
        Fixture fixture;
        MainViewModel& model = *fixture.model;
        QCoro::waitFor(model.loadAdapters());
        model.populateForm(
            {.searchDomains = {QStringLiteral("corp.example"), QStringLiteral("lab.example")}});
        QCOMPARE(model.searchDomains.value(), Text(QStringLiteral("corp.example lab.example")));
        QVERIFY(model.hasChanges());
        model.revertForm();
        model.searchDomains = QStringLiteral("x");
        QVERIFY(!model.hasChanges());

        const NetworkPreset preset{.serviceName = QStringLiteral("Ethernet"),
                                   .dnsMode = DNSMode::manual,
                                   .searchDomains = QStringLiteral(" a  b ")};
        model.applyError = Text(QStringLiteral("stays"));
        model.loadPreset(preset);
        QCOMPARE(model.searchDomains.value(), preset.searchDomains);
        QCOMPARE(fixture.selected(), QStringLiteral("Wi-Fi"));
        QVERIFY(model.applyError.value() && model.hasChanges());
        QCOMPARE(model.currentConfig.value().dnsMode, DNSMode::automatic);
        model.savePreset(QStringLiteral("Office"));
        NetworkPreset saved = model.presetStore.presets().last();
        QCOMPARE(saved.id.version(), QUuid::Random);
        QCOMPARE(saved.serviceName, Text(QStringLiteral("Wi-Fi")));
        QCOMPARE(saved.searchDomains, preset.searchDomains);
        model.revertForm();
        QVERIFY(!model.applyError.value() && !model.hasChanges());
    }

    void fieldsTellOnlyOfDifferencesButTheConfigurationAlways()
    {
        Fixture fixture;
        int names = 0;
        int readings = 0;
        const auto onName = fixture.model->router.addNotifier([&names] { ++names; });
        const auto onReading = fixture.model->currentConfig.addNotifier([&readings] { ++readings; });
        fixture.model->router = QStringLiteral("\u00E9");
        fixture.model->router = QStringLiteral("e\u0301");
        QCOMPARE(names, 1);
        QCOMPARE(fixture.model->router.value().string().size(), 2); // kept as it was given all the same
        QCoro::waitFor(fixture.model->loadAdapters());
        QCoro::waitFor(fixture.model->refreshAdapters());
        QCOMPARE(readings, 2);
    }

    void applyWritesTheFormAndReadsTwice()
    {
        Fixture fixture;
        MainViewModel& model = *fixture.model;
        fixture.start(&MainViewModel::applyConfiguration);
        QCOMPARE(fixture.fakes.authorization->prompts, 0); // nothing selected yet, nothing happens
        QCoro::waitFor(model.loadAdapters());
        model.ipv4Mode = IPv4Mode::manual;
        model.ipAddress = QStringLiteral("10.0.0.9");
        model.dnsMode = DNSMode::manual;
        model.searchDomains = QStringLiteral("  corp.example\t\tlab.example\u2003x\ny  ");
        model.applyError = Text(QStringLiteral("old"));
        fixture.start(&MainViewModel::applyConfiguration);
        QVERIFY(model.isApplying.value() && !model.applyError.value());
        const QStringList domains{QStringLiteral("corp.example"), QStringLiteral("lab.example"),
                                  QStringLiteral("x\ny")};
        QCOMPARE(fixture.written(QStringLiteral("DNS")),
                 (Dictionary{{QStringLiteral("SearchDomains"), domains}}));
        QCOMPARE(fixture.written(QStringLiteral("IPv4"))[QStringLiteral("Addresses")],
                 QStringList(QStringLiteral("10.0.0.9")));

        model.router = QStringLiteral("typed meanwhile");
        fixture.fakes.clock->advance(999ms);
        QCOMPARE(model.router.value(), Text(QStringLiteral("typed meanwhile")));
        fixture.fakes.clock->advance(1ms);
        QTRY_VERIFY(!model.isApplying.value());
        QVERIFY(model.applySuccess.value());
        QVERIFY(model.router.value().isEmpty());
        model.router = QStringLiteral("typed after");
        fixture.fakes.clock->advance(3s);
        QTRY_VERIFY(model.router.value().isEmpty());
        QVERIFY(model.applySuccess.value());
        QCOMPARE(fixture.fakes.clock->sleepers(), 0);
        QCoro::waitFor(model.selectAdapter(*model.selectedAdapter.value()));
        QVERIFY(!model.applySuccess.value());
    }

    void consentIsAskedForOnceUntilSomethingFails()
    {
        Fixture fixture;
        MainViewModel& model = *fixture.model;
        FakeAuthorization& authorization = *fixture.fakes.authorization;
        QCoro::waitFor(model.loadAdapters());
        const auto attempt = [&](qint32 status) {
            fixture.fakes.system->refusals[QStringLiteral("commit")] = status;
            fixture.start(&MainViewModel::applyConfiguration);
            fixture.fakes.clock->advance(10s);
            QTRY_VERIFY(!model.isApplying.value());
            fixture.fakes.clock->advance(10s); // the follow-up too
            QTRY_COMPARE(fixture.fakes.clock->sleepers(), 0);
        };
        attempt(0);
        attempt(0);
        QCOMPARE(authorization.prompts, 1);
        QCOMPARE(authorization.flags, 0x13U);
        attempt(1003);
        QCOMPARE(model.applyError.value(), Text(QStringLiteral("Cannot save changes (SC 1003).")));
        QVERIFY(!model.applySuccess.value() && authorization.live.isEmpty());
        attempt(0);
        QCOMPARE(authorization.prompts, 2);
        QVERIFY(!model.applyError.value());
        QCOMPARE(fixture.fakes.system->authorization.handle, authorization.live.first());

        model.authService.invalidate();
        authorization.granted = false;
        attempt(0);
        QCOMPARE(model.applyError.value(),
                 Text(QStringLiteral("Admin authorization was denied or cancelled.")));
        QVERIFY(authorization.live.isEmpty());
        authorization.available = false;
        attempt(0);
        QCOMPARE(model.applyError.value(), Text(QStringLiteral("Cannot create authorization reference.")));
    }

    void renewKeepsTheDNSConfiguration()
    {
        Fixture fixture;
        const QVariantMap dns{
            {QStringLiteral("ServerAddresses"),
             QStringList{QStringLiteral("1.1.1.1"), QStringLiteral("8.8.8.8"), QStringLiteral("9.9.9.9")}}};
        auto& protocols = (*fixture.fakes.system->services)[1].protocols;
        protocols[QStringLiteral("DNS")] = dns;
        protocols[QStringLiteral("IPv4")] = Dictionary{{QStringLiteral("ConfigMethod"), manualMethod}};
        QCoro::waitFor(fixture.model->loadAdapters());
        fixture.model->primaryDNS = QStringLiteral("edited");
        fixture.start(&MainViewModel::renewDHCPLease);
        QCOMPARE(fixture.written(QStringLiteral("DNS")), dns);
        QCOMPARE(fixture.written(QStringLiteral("IPv4")),
                 (Dictionary{{QStringLiteral("ConfigMethod"), QStringLiteral("DHCP")}}));
        fixture.fakes.clock->advance(1s);
        QTRY_VERIFY(fixture.model->applySuccess.value());
    }

    void switchingReadsOnceAndReportsNoSuccess()
    {
        Fixture fixture;
        MainViewModel& model = *fixture.model;
        QCoro::waitFor(model.loadAdapters());
        model.setAdapterEnabled(false);
        fixture.settle();
        QVERIFY(model.isApplying.value() && model.selectedAdapter.value()->isEnabled);
        fixture.fakes.clock->advance(500ms);
        QTRY_VERIFY(!model.isApplying.value());
        QVERIFY(!model.selectedAdapter.value()->isEnabled && !model.applySuccess.value());
        QCOMPARE(fixture.fakes.clock->sleepers(), 0);
    }

    void selectionMayChangeDuringAnAction()
    {
        Fixture fixture;
        MainViewModel& model = *fixture.model;
        QCoro::waitFor(model.loadAdapters());
        model.setAdapterEnabled(false);
        QCoro::waitFor(model.selectAdapter(model.adapters.value().last()));
        fixture.settle();
        QVERIFY(!(*fixture.fakes.system->services)[1].enabled);
        QVERIFY(model.selectedAdapter.value()->isEnabled);
    }

    void profilesTravelThroughFiles()
    {
        Fixture fixture;
        MainViewModel& model = *fixture.model;
        const QTemporaryDir folder;
        const auto file = [&](const QByteArray& content) {
            fixture.fakes.filePanels->place = folder.filePath(QStringLiteral("file"));
            QFile out(*fixture.fakes.filePanels->place);
            QVERIFY(out.open(QIODevice::WriteOnly));
            out.write(content);
        };
        QCoro::waitFor(model.loadAdapters());
        model.savePreset(QStringLiteral("Office"));
        model.savePreset(QStringLiteral("Office"));
        const auto presets = model.presetStore.presets();
        file("old");
        QVERIFY(model.exportPresets());
        model.importPresets();
        QCOMPARE(model.presetStore.presets(), presets);
        model.presetStore.setPresets({presets.last()});
        model.importPresets();
        QCOMPARE(model.presetStore.presets(), (QList{presets.last(), presets.first()}));
        QVERIFY(!model.applyError.value());
        const QByteArray good = *encodePresets({presets.first()});
        const auto with = [&good](const char* before, const char* after) {
            QByteArray changed = good;
            changed.replace(before, after);
            return changed;
        };
        const QByteArray lowerCaseId = presets.first().id.toString(QUuid::WithoutBraces).toLower().toLatin1();
        QElapsedTimer time;
        time.start();
        for (const QByteArray& bad :
             {QByteArray(), QByteArray("{}"), QByteArray("[{}]"), with(R"("router":"",)", ""),
              with(R"("router":"")", R"("router":null)"), with(R"("router":"")", R"("router":1)"),
              with(R"("DHCP")", R"("dhcp")"), QByteArray(100'000'000, '\0')}) {
            model.applyError = std::nullopt;
            file(bad);
            model.importPresets();
            QCOMPARE(model.applyError.value(), Text(QStringLiteral("Could not read profiles file.")));
            QCOMPARE(model.presetStore.presets().size(), 2);
        }
        const QString pipe = folder.filePath(QStringLiteral("pipe"));
        QCOMPARE(mkfifo(pipe.toUtf8().constData(), 0600), 0);
        for (const QString& place : {folder.path(), folder.filePath(QStringLiteral("absent")), pipe}) {
            model.applyError = std::nullopt;
            fixture.fakes.filePanels->place = place;
            model.importPresets();
            QCOMPARE(model.applyError.value(), Text(QStringLiteral("Could not read profiles file.")));
        }
        QVERIFY(time.elapsed() < 5'000);
        model.applyError = std::nullopt;
        for (const QByteArray& fine :
             {good, QByteArray("\xEF\xBB\xBF") + good, with("[{", R"([{"extra":[1],)"),
              with(lowerCaseId.toUpper(), lowerCaseId)}) {
            model.presetStore.setPresets({});
            file(fine);
            model.importPresets();
            QCOMPARE(model.presetStore.presets(), QList{presets.first()});
        }
        QVERIFY(!model.applyError.value());
        fixture.fakes.filePanels->place = folder.path();
        QVERIFY(!model.exportPresets());
    }

    void startingAtLoginIsWhatTheSystemSays()
    {
        Fixture fixture;
        FakeLoginItem& item = *fixture.fakes.loginItem;
        const struct {
            std::optional<QString> failure;
            LoginItem::Status afterwards;
            bool shown;
        } toggles[]{
            {std::nullopt, LoginItem::Status::enabled, true},
            {QStringLiteral("no"), LoginItem::Status::enabled, true},
            {std::nullopt, LoginItem::Status::notRegistered, false},
            {std::nullopt, LoginItem::Status::requiresApproval, false},
            {QStringLiteral("no"), LoginItem::Status::notFound, false},
        };
        for (const auto& toggle : toggles) {
            fixture.model->applyError = std::nullopt;
            item.failure = toggle.failure;
            item.next = toggle.afterwards;
            fixture.model->toggleLoginItem();
            QCOMPARE(fixture.model->isLoginItem.value(), toggle.shown);
            QCOMPARE(fixture.model->applyError.value(),
                     toggle.failure ? std::optional(Text(QStringLiteral("Start at login: no")))
                                    : std::nullopt);
        }
        QCOMPARE(item.calls, (QStringList{QStringLiteral("register"), QStringLiteral("unregister"),
                                          QStringLiteral("unregister"), QStringLiteral("register"),
                                          QStringLiteral("register")}));
    }

    void noActionWaitsForTheSystemOnTheMainThread()
    {
        Fixture fixture;
        MainViewModel& model = *fixture.model;
        QCoro::waitFor(model.loadAdapters());
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
            fixture.fakes.system->gate.acquire(1000);
            action(); // comes back although the system does not answer
            bool turned = false;
            QMetaObject::invokeMethod(
                qApp, [&turned] { turned = true; }, Qt::QueuedConnection);
            QTRY_VERIFY(turned);
            QVERIFY(busy() && !fixture.fakes.system->gaveUp);
            fixture.fakes.system->gate.release(1000);
            QVERIFY(QTest::qWaitFor([&] {
                fixture.fakes.clock->advance(10s);
                return !busy();
            }));
        }
    }

    /// ARDEO_ROUNDS is how often, ARDEO_SEED where to start; what is asserted must hold however they
    /// interleave.
    void actionsInterleaveAtRandom()
    {
        const int rounds = qEnvironmentVariable("ARDEO_ROUNDS", QStringLiteral("50")).toInt();
        const uint first = qEnvironmentVariable("ARDEO_SEED", QStringLiteral("1")).toUInt();
        for (uint seed = first; seed < first + static_cast<uint>(rounds); ++seed) {
            QRandomGenerator random(seed);
            const auto once = [&](int of) { return random.bounded(of) == 0; };
            Fixture fixture;
            FakeSystemConfiguration& system = *fixture.fakes.system;
            if (once(3))
                system.refusals[once(2) ? QStringLiteral("commit") : QStringLiteral("lock")] = 1003;
            MainViewModel& model = *fixture.model;
            const std::array<std::function<void()>, 7> actions{
                [&] { model.refreshAdapters(); },
                [&] { model.loadAdapters(); },
                [&] { model.applyConfiguration(); },
                [&] { model.renewDHCPLease(); },
                [&] { model.setAdapterEnabled(once(2)); },
                [&] { fixture.fakes.clock->advance(std::chrono::milliseconds(random.bounded(2000))); },
                [&] {
                    if (const auto adapters = model.adapters.value(); !adapters.isEmpty())
                        model.selectAdapter(adapters.at(random.bounded(adapters.size())));
                }};
            for (int step = random.bounded(60); step > 0; --step) {
                actions.at(random.bounded(7U))();
                if (once(2))
                    QCoreApplication::processEvents(QEventLoop::AllEvents, 5);
            }
            if (once(2))
                continue; // quits amid all of it
            do {
                fixture.fakes.clock->advance(10s);
                QCoro::waitFor(model.refreshAdapters());
            } while (fixture.fakes.clock->sleepers() > 0 || model.isApplying.value() ||
                     model.isLoading.value());
            QVERIFY(fixture.fakes.authorization->live.size() <= 1);
            QCOMPARE(system.calls.count(QStringLiteral("unlock")),
                     system.refusals.contains(QStringLiteral("lock"))
                         ? 0
                         : system.calls.count(QStringLiteral("lock")));
        }
    }

    void actionsKeepTheModelAlive()
    {
        Fixture fixture;
        QCoro::waitFor(fixture.model->loadAdapters());
        fixture.start(&MainViewModel::applyConfiguration);
        const std::weak_ptr<MainViewModel> alive = fixture.model;
        fixture.model.reset();
        fixture.fakes.clock->advance(1s);
        QTRY_COMPARE(fixture.fakes.clock->sleepers(), 1);
        QVERIFY(!alive.expired());
        fixture.fakes.clock->advance(3s);
        QTRY_VERIFY(alive.expired());
    }
};

QTEST_GUILESS_MAIN(MainViewModelTest)
#include "MainViewModelTest.moc"
