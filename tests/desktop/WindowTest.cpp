#include "desktop/Desktop.h"
#include "platform/linux/DesktopAppearance.h"

#include <QElapsedTimer>
#include <QFile>
#include <QProcess>

namespace
{

QString output(const QString& program, const QStringList& arguments)
{
    QProcess process;
    process.start(program, arguments);
    process.waitForFinished();
    return QString::fromUtf8(process.readAllStandardOutput());
}

bool hasAddress(const QString& address)
{
    return output(QStringLiteral("ip"),
                  {QStringLiteral("-4"), QStringLiteral("-o"), QStringLiteral("address"),
                   QStringLiteral("show"), QStringLiteral("dev"), QStringLiteral("eth0")})
        .contains(u' ' + address);
}

QString gateways()
{
    return output(QStringLiteral("ip"),
                  {QStringLiteral("-4"), QStringLiteral("route"), QStringLiteral("show"),
                   QStringLiteral("default"), QStringLiteral("dev"), QStringLiteral("eth0")});
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
            [&] {
                atspi_accessible_clear_cache(node.get());
                AtspiStateSet* set = atspi_accessible_get_state_set(node.get());
                const bool focused = atspi_state_set_contains(set, ATSPI_STATE_FOCUSED) != FALSE;
                g_object_unref(set);
                return focused;
            }(),
            patience);
    }
    /// Types over the four parts of an address, part by part; an empty part is cleared.
    static void type(const char* field, const QStringList& parts)
    {
        const auto name = [field](int part) {
            return QStringLiteral("%1, part %2 of 4").arg(QLatin1String(field)).arg(part);
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
        return text ? textOf(atspi_text_get_text(text.get(), 0, -1, nullptr)) : QStringLiteral("?");
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
        qDBusRegisterMetaType<SettingGroups>();
        QDBusConnection bus = QDBusConnection::sessionBus();
        QVERIFY(bus.registerService(QStringLiteral("org.freedesktop.portal.Desktop")));
        QVERIFY(bus.registerObject(QStringLiteral("/org/freedesktop/portal/desktop"), &m_portal,
                                   QDBusConnection::ExportScriptableContents));
        m_program.setProcessChannelMode(QProcess::ForwardedChannels);
        m_program.start(qEnvironmentVariable("LAB_PROGRAM"), {QStringLiteral("--system=networkmanager")});
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
            Q_EMIT m_portal.SettingChanged(QStringLiteral("org.freedesktop.appearance"),
                                           QStringLiteral("color-scheme"), QDBusVariant(scheme));
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
        type("IP Address",
             {QStringLiteral("10"), QStringLiteral("77"), QStringLiteral("0"), QStringLiteral("50")});
        apply();
        QVERIFY(hasAddress(QStringLiteral("10.77.0.50/24")));
        QVERIFY(gateways().contains(QStringLiteral("10.77.0.1")));
        QVERIFY(shows("10.77.0.50") && shows("Manual"));

        type("Gateway", {QString(), QString(), QString(), QString()});
        choose("Manually Set DNS Address");
        type("Preferred DNS",
             {QStringLiteral("1"), QStringLiteral("1"), QStringLiteral("1"), QStringLiteral("1")});
        type("Alternate DNS",
             {QStringLiteral("9"), QStringLiteral("9"), QStringLiteral("9"), QStringLiteral("9")});
        apply();
        QCOMPARE(gateways(), QString());
        type("Alternate DNS", {QString(), QString(), QString(), QString()});
        apply();
        QFile resolver(QStringLiteral("/etc/resolv.conf"));
        QVERIFY(resolver.open(QIODevice::ReadOnly));
        const QByteArray servers = resolver.readAll();
        QVERIFY(servers.contains("1.1.1.1") && !servers.contains("9.9.9.9"));

        click(ATSPI_ROLE_LIST_ITEM, "Bench, Manual · Wired connection 1");
        QTRY_COMPARE_WITH_TIMEOUT(contentOf(QStringLiteral("IP Address, part 4 of 4")), QStringLiteral("60"),
                                  patience);
        apply();
        QVERIFY(hasAddress(QStringLiteral("10.77.0.60/24")));
        choose("Automatically Set IP Address");
        apply();
        QTRY_VERIFY_WITH_TIMEOUT(hasAddress(QStringLiteral("10.77.0.1")), patience); // .100 to .200
        QVERIFY(shows("DHCP"));
    }

    void theWindowLivesWhileTheDaemonIsSilent()
    {
        const QString daemon = qEnvironmentVariable("LAB_NM_PID");
        QProcess::execute(QStringLiteral("kill"), {QStringLiteral("-STOP"), daemon});
        press("Apply");
        choose("Manually Set IP Address");
        QElapsedTimer typing;
        typing.start();
        type("IP Address",
             {QStringLiteral("1"), QStringLiteral("2"), QStringLiteral("3"), QStringLiteral("4")});
        QVERIFY(typing.elapsed() < 9'000 && !shows("Applied"));
        QTRY_VERIFY_WITH_TIMEOUT(shows("Cannot open system network preferences."), patience);
        press("Refresh");
        QTRY_VERIFY_WITH_TIMEOUT(shows("No Network Services"), patience);
        QProcess::execute(QStringLiteral("kill"), {QStringLiteral("-CONT"), daemon});
        control('r');
        QTRY_VERIFY_WITH_TIMEOUT(shows("Set Profile Properties") && shows("10.77.0.1"), patience);
    }
};

QTEST_GUILESS_MAIN(WindowTest)
#include "WindowTest.moc"
