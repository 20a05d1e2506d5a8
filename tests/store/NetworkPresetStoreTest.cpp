#include "store/NetworkPresetStore.h"
#include "fakes/Fakes.h"

#include <QSignalSpy>
#include <QTest>

using namespace ardeo;

namespace
{

const QString key = QLatin1String(applicationIdentifier) + u".presets"_s;

NetworkPreset preset(const char* name)
{
    return {.name = QString::fromLatin1(name)};
}

} // namespace

class NetworkPresetStoreTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyChangeIsStoredAndTold()
    {
        FakeUserDefaults defaults;
        NetworkPresetStore store(defaults);
        QSignalSpy before(&store, &NetworkPresetStore::presetsWillChange);
        QSignalSpy after(&store, &NetworkPresetStore::presetsDidChange);
        QVERIFY(store.presets().isEmpty());
        QCOMPARE(defaults.writes, 0);

        const auto check = [&](int changes, int writes) {
            QCOMPARE(before.count(), changes);
            QCOMPARE(after.count(), changes);
            QCOMPARE(defaults.writes, writes);
            QCOMPARE(NetworkPresetStore(defaults).presets(), store.presets());
        };
        NetworkPreset first = preset("Office");
        store.upsert(first);
        check(1, 1);
        store.upsert(preset("Office")); // a name of its own is not needed
        first.name = u"Home"_s;
        store.upsert(first);
        check(3, 3);
        QCOMPARE(store.presets().first().name, Text(u"Home"_s));
        store.remove(QUuid::createUuid());
        check(4, 4);
        QCOMPARE(store.presets().size(), 2);
        store.setPresets(QList<NetworkPreset>(store.presets()));
        check(4, 5);
        store.remove(first.id);
        store.setPresets({});
        check(6, 7);
        store.upsertAll({});
        check(6, 7);
        NetworkPreset later = first;
        later.name = u"Later"_s;
        store.upsertAll({preset("Other"), first, preset("Third"), later}); // one twice
        check(7, 8);
        QCOMPARE(store.presets().size(), 3);
        QCOMPARE(store.presets().at(1), later);
        store.setPresets({});
        QCOMPARE(defaults.values[key], QByteArray("[]"));
    }

    void unreadableListIsPutAside()
    {
        FakeUserDefaults defaults;
        defaults.values[key] = "[{}]";
        NetworkPresetStore store(defaults);
        QVERIFY(store.presets().isEmpty());
        QCOMPARE(defaults.values[key], QByteArray("[{}]"));
        store.upsert(preset("Office"));
        store.upsert(preset("Home"));
        QCOMPARE(defaults.values[key + u".unreadable"_s], QByteArray("[{}]"));
        QCOMPARE(NetworkPresetStore(defaults).presets().size(), 2);
        defaults.values[key] = "{"; // another one, with no room beside it at first
        NetworkPresetStore second(defaults);
        defaults.full = true;
        second.upsert(preset("Office"));
        defaults.full = false;
        QCOMPARE(defaults.values[key], QByteArray("{"));
        second.upsert(preset("Home"));
        QCOMPARE(defaults.values[key + u".unreadable"_s], QByteArray("[{}]"));
        QCOMPARE(defaults.values[key + u".unreadable-2"_s], QByteArray("{"));
        QCOMPARE(NetworkPresetStore(defaults).presets().size(), 2);
        defaults.unreadable = {key};
        NetworkPresetStore third(defaults);
        third.upsert(preset("Only"));
        QVERIFY(third.isUnreadable()); // and less than what is there
    }

    void listThatCannotBeEncodedStaysInMemory()
    {
        FakeUserDefaults defaults;
        NetworkPresetStore store(defaults);
        store.upsert(preset("Office"));
        const QByteArray stored = defaults.values[key];
        store.upsert({.name = QString(QChar(0xDC00))});
        QCOMPARE(store.presets().size(), 2);
        QCOMPARE(defaults.values[key], stored);
    }
};

QTEST_GUILESS_MAIN(NetworkPresetStoreTest)
#include "NetworkPresetStoreTest.moc"
