#include "desktop/Desktop.h"
#include "platform/linux/DesktopAppearance.h"

#include <QElapsedTimer>
#include <QFile>

namespace
{

bool hasAddress(const QString& address)
{
    return output(u"ip -4 -o address show dev eth0"_s).contains(u' ' + address);
}

QString gateways()
{
    return output(u"ip -4 route show default dev eth0"_s);
}

} // namespace

/// The real program on a real display beside a real NetworkManager, as somebody with assistive technology
/// uses it. Runs in the lab; LAB_NM_PID is the daemon's process, LAB_PROGRAM the program.
class WindowTest : public QObject
{
    Q_OBJECT

    Portal m_portal;
    QProcess m_program;

    static constexpr int patience = 15'000;

    static void press(const char* button)
    {
        QTRY_VERIFY_WITH_TIMEOUT(isEnabled(find(ATSPI_ROLE_PUSH_BUTTON, button)), patience);
        QVERIFY(activate(find(ATSPI_ROLE_PUSH_BUTTON, button)));
    }
    static void choose(const char* radio) { QVERIFY(activate(find(ATSPI_ROLE_RADIO_BUTTON, radio))); }
    static void focus(AtspiRole role, const char* name)
    {
        QTRY_VERIFY_WITH_TIMEOUT(find(role, name) != nullptr, patience);
        const Node node = find(role, name);
        const std::unique_ptr<AtspiComponent, Unref> component(
            atspi_accessible_get_component_iface(node.get()));
        QVERIFY(component && atspi_component_grab_focus(component.get(), nullptr));
        QTRY_VERIFY_WITH_TIMEOUT(
            (atspi_accessible_clear_cache(node.get()), hasState(node.get(), ATSPI_STATE_FOCUSED)), patience);
    }
    /// Types over the four parts of an address, part by part; an empty part is cleared.
    static void type(const char* field, const char* address)
    {
        const QStringList parts = QString::fromLatin1(address).split(u'.');
        const auto name = [field](int part) {
            return u"%1, part %2 of 4"_s.arg(QLatin1String(field)).arg(part);
        };
        focus(ATSPI_ROLE_TEXT, name(1).toUtf8().constData());
        for (int i = 0; i < 4; ++i) {
            key(0xFF57); // End
            for (int digit = 0; digit < 3; ++digit)
                key(0xFF08); // BackSpace
            for (const QChar digit : parts.at(i))
                key(digit.unicode());
            if (i < 3 && parts.at(i).size() < 3)
                key(0xFF09); // Tab
        }
        QTRY_COMPARE_WITH_TIMEOUT(contentOf(name(4)), parts.at(3), patience);
    }
    static void click(AtspiRole role, const char* name)
    {
        const Node node = find(role, name);
        QVERIFY(node);
        const std::unique_ptr<AtspiComponent, Unref> component(
            atspi_accessible_get_component_iface(node.get()));
        const std::unique_ptr<AtspiRect, decltype(&g_free)> place(
            atspi_component_get_extents(component.get(), ATSPI_COORD_TYPE_SCREEN, nullptr), &g_free);
        atspi_generate_mouse_event(place->x + place->width / 2, place->y + place->height / 2, "b1c", nullptr);
    }
    static QString contentOf(const QString& name)
    {
        const Node node = find(ATSPI_ROLE_TEXT, name.toUtf8().constData());
        const std::unique_ptr<AtspiText, Unref> text(node ? atspi_accessible_get_text_iface(node.get())
                                                          : nullptr);
        return text ? textOf(atspi_text_get_text(text.get(), 0, -1, nullptr)) : u"?"_s;
    }
    static bool shows(const char* label) { return find(ATSPI_ROLE_LABEL, label) != nullptr; }
    static void apply()
    {
        press("Apply");
        QTRY_VERIFY_WITH_TIMEOUT(find(ATSPI_ROLE_PUSH_BUTTON, "Applying…") != nullptr, patience);
        QTRY_VERIFY_WITH_TIMEOUT(shows("Applied"), patience);
        // Three seconds later the form is filled once more, over whatever was typed by then.
        QElapsedTimer applied;
        applied.start();
        QTRY_VERIFY_WITH_TIMEOUT(applied.elapsed() > 3'500, patience);
    }

private Q_SLOTS:
    void initTestCase()
    {
        QVERIFY(m_portal.appear());
        m_program.setProcessChannelMode(QProcess::ForwardedChannels);
        m_program.start(qEnvironmentVariable("LAB_PROGRAM"), {u"--system=networkmanager"_s});
        QTRY_VERIFY_WITH_TIMEOUT(m_portal.asked, patience);
        QCOMPARE(atspi_init(), 0);
    }
    void cleanupTestCase()
    {
        m_program.terminate();
        QVERIFY(m_program.waitForFinished());
    }

    void theDesktopIsFollowed()
    {
        const ardeo::DesktopAppearance appearance;
        QTRY_VERIFY(appearance.wantsReducedMotion());
        QVERIFY(!appearance.isDark());
        for (const uint scheme : {1U, 2U}) {
            Q_EMIT m_portal.SettingChanged(u"org.freedesktop.appearance"_s, u"color-scheme"_s,
                                           QDBusVariant(scheme));
            QTRY_COMPARE(appearance.isDark(), std::optional(scheme == 1));
        }
    }

    void theWholeRoad()
    {
        QTRY_VERIFY_WITH_TIMEOUT(isEnabled(find(ATSPI_ROLE_PUSH_BUTTON, "Apply")), patience);
        // Another service and back again, by the picker's keys.
        key(0xFF09); // Tab
        key(0xFF54); // Down
        QTRY_VERIFY_WITH_TIMEOUT(shows("10.78.0.1"), patience);
        key(0xFF52); // Up
        QTRY_VERIFY_WITH_TIMEOUT(shows("10.77.0.1"), patience);

        choose("Manually Set IP Address");
        type("IP Address", "10.77.0.50");
        apply();
        QVERIFY(hasAddress(u"10.77.0.50/24"_s));
        QVERIFY(gateways().contains(u"10.77.0.1"_s));
        QVERIFY(shows("10.77.0.50") && shows("Manual"));

        type("Gateway", "...");
        choose("Manually Set DNS Address");
        type("Preferred DNS", "1.1.1.1");
        type("Alternate DNS", "9.9.9.9");
        apply();
        QCOMPARE(gateways(), QString());
        type("Alternate DNS", "...");
        apply();
        QFile resolver(u"/etc/resolv.conf"_s);
        QVERIFY(resolver.open(QIODevice::ReadOnly));
        const QByteArray servers = resolver.readAll();
        QVERIFY(servers.contains("1.1.1.1") && !servers.contains("9.9.9.9"));

        click(ATSPI_ROLE_LIST_ITEM, "Bench, Manual · Wired connection 1");
        QTRY_COMPARE_WITH_TIMEOUT(contentOf(u"IP Address, part 4 of 4"_s), u"60"_s, patience);
        apply();
        QVERIFY(hasAddress(u"10.77.0.60/24"_s));
        choose("Automatically Set IP Address");
        apply();
        QTRY_VERIFY_WITH_TIMEOUT(hasAddress(u"10.77.0.1"_s), patience); // .100 to .200
        QVERIFY(shows("DHCP"));
    }

    void theWindowLivesWhileTheDaemonIsSilent()
    {
        const QString daemon = qEnvironmentVariable("LAB_NM_PID");
        QProcess::execute(u"kill"_s, {u"-STOP"_s, daemon});
        press("Apply");
        choose("Manually Set IP Address");
        QElapsedTimer typing;
        typing.start();
        type("IP Address", "1.2.3.4");
        QVERIFY(typing.elapsed() < 9'000 && !shows("Applied"));
        QTRY_VERIFY_WITH_TIMEOUT(shows("Cannot open system network preferences."), patience);
        press("Refresh");
        QTRY_VERIFY_WITH_TIMEOUT(shows("No Network Services"), patience);
        QProcess::execute(u"kill"_s, {u"-CONT"_s, daemon});
        control('r');
        QTRY_VERIFY_WITH_TIMEOUT(shows("Set Profile Properties") && shows("10.77.0.1"), patience);
    }
};

QTEST_GUILESS_MAIN(WindowTest)
#include "WindowTest.moc"
