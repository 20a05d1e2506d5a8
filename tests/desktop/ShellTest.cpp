#include "desktop/Desktop.h"

#include <QDBusAbstractAdaptor>
#include <QDBusArgument>
#include <QDBusConnectionInterface>
#include <QDBusInterface>
#include <QDBusMessage>
#include <QDir>
#include <QElapsedTimer>
#include <QProcess>
#include <QTemporaryDir>
#include <QUrl>

/// The portal's file panels: the user takes the file at once.
class FileChooser : public QDBusAbstractAdaptor
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.portal.FileChooser")

public:
    explicit FileChooser(QObject* portal) : QDBusAbstractAdaptor(portal) {}
    QString url;
    QStringList titles;

public Q_SLOTS:
    QDBusObjectPath OpenFile(const QString&, const QString& title, const QVariantMap& options,
                             const QDBusMessage& call)
    {
        titles.append(title);
        const QString sender = call.service().mid(1).replace(u'.', u'_');
        const QString path = QStringLiteral("/org/freedesktop/portal/desktop/request/%1/%2")
                                 .arg(sender, options.value(QStringLiteral("handle_token")).toString());
        QDBusMessage response = QDBusMessage::createSignal(
            path, QStringLiteral("org.freedesktop.portal.Request"), QStringLiteral("Response"));
        response << 0U << QVariantMap{{QStringLiteral("uris"), QStringList{url}}};
        QDBusConnection::sessionBus().send(response);
        return QDBusObjectPath(path);
    }
    QDBusObjectPath SaveFile(const QString& window, const QString& title, const QVariantMap& options,
                             const QDBusMessage& call)
    {
        return OpenFile(window, title, options, call);
    }
};

/// The desktop's panel, as status notifier items see it.
class Panel : public QObject
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.kde.StatusNotifierWatcher")
    Q_PROPERTY(bool IsStatusNotifierHostRegistered READ hasHost)

public:
    QString item;
    bool hasHost() const { return true; }

public Q_SLOTS:
    Q_SCRIPTABLE void RegisterStatusNotifierItem(const QString& service) { item = service; }
};

/// The whole program on a desktop: its menus, its windows, its icon, and a second start. Runs in the lab;
/// LAB_PROGRAM is the program.
class ShellTest : public QObject
{
    Q_OBJECT

    static constexpr int patience = 15'000;
    static constexpr auto mainTitle = "Ardeo IP Config";
    static constexpr auto noIcons =
        "Ardeo IP Config is still running. This desktop shows no menu bar icons, so its window was minimised "
        "instead of hidden. Ctrl+Q ends the program.";

    Portal m_portal;
    FileChooser* m_files = new FileChooser(&m_portal);
    Panel m_panel;
    QProcess m_program;
    QTemporaryDir m_tools;
    QMap<QString, int> m_entries; // the icon's menu, by text

    static bool isShown(const char* window) { return find(ATSPI_ROLE_FRAME, window) != nullptr; }
    /// Whether the window is on the screen; minimised it is not.
    static bool isOnScreen(const char* window)
    {
        const QString name = u'^' + QLatin1String(window) + u'$';
        return !output(QStringLiteral("xdotool"), {QStringLiteral("search"), QStringLiteral("--onlyvisible"),
                                                   QStringLiteral("--name"), name})
                    .isEmpty();
    }
    static QString output(const QString& program, const QStringList& arguments)
    {
        QProcess process;
        process.start(program, arguments);
        process.waitForFinished();
        return QString::fromUtf8(process.readAllStandardOutput()).trimmed();
    }
    static QString liveAddress()
    {
        return output(QStringLiteral("nmcli"),
                      {QStringLiteral("-g"), QStringLiteral("IP4.ADDRESS"), QStringLiteral("device"),
                       QStringLiteral("show"), QStringLiteral("eth0")})
            .section(u'/', 0, 0);
    }
    static bool isEnabledItem(const char* item) { return isEnabled(find(ATSPI_ROLE_MENU_ITEM, item, true)); }
    static void choose(const char* item)
    {
        QTRY_VERIFY_WITH_TIMEOUT(isEnabledItem(item), patience);
        QVERIFY(activate(find(ATSPI_ROLE_MENU_ITEM, item, true)));
    }
    QDBusMessage askMenu(const QString& method, const QVariantList& arguments) const
    {
        QDBusMessage call = QDBusMessage::createMethodCall(m_panel.item, QStringLiteral("/MenuBar"),
                                                           QStringLiteral("com.canonical.dbusmenu"), method);
        call.setArguments(arguments);
        return QDBusConnection::sessionBus().call(call);
    }
    /// The visible entries of the icon's menu, in their order; a divider is empty.
    QStringList menuEntries()
    {
        const QDBusMessage reply =
            askMenu(QStringLiteral("GetLayout"), {0, -1, QVariant::fromValue(QStringList())});
        int id = 0;
        QVariantMap properties;
        QVariantList children;
        const auto layout = reply.arguments().value(1).value<QDBusArgument>();
        layout.beginStructure();
        layout >> id >> properties >> children;
        QStringList texts;
        for (const QVariant& child : children) {
            const auto entry = child.value<QDBusArgument>();
            QVariantList none;
            entry.beginStructure();
            entry >> id >> properties >> none;
            if (properties.value(QStringLiteral("visible"), true).toBool())
                texts.append(properties.value(QStringLiteral("label")).toString());
            m_entries[texts.value(texts.size() - 1)] = id;
        }
        return texts;
    }
    void chooseInMenuBarMenu(const char* entry)
    {
        QVERIFY(menuEntries().contains(QString::fromUtf8(entry)));
        askMenu(QStringLiteral("Event"),
                {m_entries.value(QString::fromUtf8(entry)), QStringLiteral("clicked"),
                 QVariant::fromValue(QDBusVariant(0)), 0U});
    }
    void startProgram()
    {
        m_portal.asked = false;
        const bool hasPanel = QDBusConnection::sessionBus().interface()->isServiceRegistered(
            QStringLiteral("org.kde.StatusNotifierWatcher"));
        m_panel.item.clear();
        m_program.start(qEnvironmentVariable("LAB_PROGRAM"), {QStringLiteral("--system=networkmanager")});
        // Not to be asked while it asks for an answer of ours.
        QTRY_VERIFY_WITH_TIMEOUT(m_portal.asked && m_panel.item.isEmpty() != hasPanel, patience);
        QTRY_VERIFY_WITH_TIMEOUT(isShown(mainTitle) && isEnabledItem("Apply"), patience);
    }

private Q_SLOTS:
    void initTestCase()
    {
        qDBusRegisterMetaType<SettingGroups>();
        QDBusConnection bus = QDBusConnection::sessionBus();
        QVERIFY(bus.registerService(QStringLiteral("org.freedesktop.portal.Desktop")));
        QVERIFY(
            bus.registerObject(QStringLiteral("/org/freedesktop/portal/desktop"), &m_portal,
                               QDBusConnection::ExportScriptableContents | QDBusConnection::ExportAdaptors));
        QVERIFY(bus.registerService(QStringLiteral("org.kde.StatusNotifierWatcher")));
        QVERIFY(bus.registerObject(QStringLiteral("/StatusNotifierWatcher"), &m_panel,
                                   QDBusConnection::ExportScriptableSlots |
                                       QDBusConnection::ExportAllProperties));
        for (const char* tool : {"nm-connection-editor", "xfce4-taskmanager"}) {
            QFile file(m_tools.filePath(QLatin1String(tool)));
            QVERIFY(file.open(QIODevice::WriteOnly));
            file.write("#!/bin/sh\ntouch \"$0.opened\"\n");
            file.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        }
        qputenv("XDG_CURRENT_DESKTOP", "XFCE");
        qputenv("PATH", m_tools.path().toUtf8() + ':' + qgetenv("PATH"));
        m_program.setProcessChannelMode(QProcess::ForwardedChannels);
        QCOMPARE(atspi_init(), 0);
        startProgram();
    }

    void closingHidesAndTheIconBringsBack()
    {
        QVERIFY(activate(find(ATSPI_ROLE_RADIO_BUTTON, "Manually Set DNS Address")));
        QCOMPARE(
            menuEntries(),
            (QStringList{QStringLiteral("Wired connection 1"), liveAddress(), QString(),
                         QStringLiteral("Open Ardeo IP Config"), QStringLiteral("Keyboard Shortcuts…"),
                         QString(), QStringLiteral("Network Settings…"), QStringLiteral("Activity Monitor…"),
                         QString(), QStringLiteral("Start at Login"), QString(), QStringLiteral("Quit")}));
        control('/');
        QTRY_VERIFY(isShown("Ardeo IP Config Help"));
        control('w'); // the help window, which is in front
        QTRY_VERIFY(!isShown("Ardeo IP Config Help") && isShown(mainTitle));
        control('w');
        QTRY_VERIFY(!isShown(mainTitle));
        QCOMPARE(m_program.state(), QProcess::Running);
        chooseInMenuBarMenu("Keyboard Shortcuts…");
        QTRY_VERIFY(isShown(mainTitle));
        QTRY_VERIFY(isShown("Keyboard Shortcuts"));
        QVERIFY(find(ATSPI_ROLE_TEXT, "Preferred DNS, part 1 of 4") != nullptr); // what was not applied
        control('w');
        QTRY_VERIFY(!isShown("Keyboard Shortcuts"));
        control('w');
        QTRY_VERIFY(!isShown(mainTitle));
        QCOMPARE(QProcess::execute(qEnvironmentVariable("LAB_PROGRAM"), {}), 0);
        QTRY_VERIFY(isShown(mainTitle));
        // Whoever is on the session bus can do no more than that.
        const QString application = QStringLiteral("org.ardeo.IPConfig");
        QDBusInterface interface(application, QStringLiteral("/org/ardeo/IPConfig"),
                                 QStringLiteral("org.freedesktop.Application"));
        for (const char* action : {"quit", "Apply"})
            interface.call(QStringLiteral("ActivateAction"), QLatin1String(action), QVariantList(),
                           QVariantMap());
        QCOMPARE(m_program.state(), QProcess::Running);
        QVERIFY(isEnabledItem("Apply"));
        QDBusInterface objects(application, QStringLiteral("/"),
                               QStringLiteral("org.freedesktop.DBus.Introspectable"));
        const QString below = objects.call(QStringLiteral("Introspect")).arguments().value(0).toString();
        QCOMPARE(below.count(QStringLiteral("<node name")), 1); // the way to that one object
        control('h');
        QTRY_VERIFY(!isOnScreen(mainTitle));
        chooseInMenuBarMenu("Open Ardeo IP Config");
        QTRY_VERIFY(isOnScreen(mainTitle));
    }

    void commandsDoTheirWorkAndShowWhatCanBeDone()
    {
        QVERIFY(isEnabledItem("Renew DHCP") && isEnabledItem("Disable Adapter"));
        QVERIFY(!isEnabledItem("Enable Adapter"));
        choose("Disable Adapter");
        QTRY_VERIFY_WITH_TIMEOUT(isEnabledItem("Enable Adapter") && !isEnabledItem("Disable Adapter"),
                                 patience);
        choose("Enable Adapter");
        QTRY_VERIFY_WITH_TIMEOUT(isEnabledItem("Disable Adapter") && isEnabledItem("Apply"), patience);
        choose("Renew DHCP");
        QTRY_VERIFY_WITH_TIMEOUT(!isEnabledItem("Apply"), patience);
        QTRY_VERIFY_WITH_TIMEOUT(isEnabledItem("Apply"), patience);

        for (const auto& [item, tool] : {std::pair("Open Network Settings", "nm-connection-editor"),
                                         std::pair("Open Activity Monitor", "xfce4-taskmanager")}) {
            choose(item);
            QTRY_VERIFY(QFile::exists(m_tools.filePath(QLatin1String(tool) + QStringLiteral(".opened"))));
        }
        choose("About Ardeo IP Config");
        QTRY_VERIFY(find(ATSPI_ROLE_PUSH_BUTTON, "OK") != nullptr);
        QVERIFY(activate(find(ATSPI_ROLE_PUSH_BUTTON, "OK")));
    }

    void profilesTravelThroughThePortalsPanels()
    {
        const QTemporaryDir folder;
        const QString place = folder.filePath(QStringLiteral("my profiles.profiles"));
        m_files->url = QUrl::fromLocalFile(place).toString(QUrl::FullyEncoded);
        control('E'); // with Shift
        QTRY_VERIFY(QFile(place).size() > 0);
        QVERIFY(QFile::remove(place));
        control('I');
        QTRY_VERIFY(find(ATSPI_ROLE_LABEL, "Could not read profiles file.") != nullptr);
        QCOMPARE(m_files->titles,
                 (QStringList{QStringLiteral("Export Ardeo IP Config profiles"),
                              QStringLiteral("Select an Ardeo IP Config profiles file (.profiles)")}));
    }

    void startingAtLoginIsSwitchedOnAndOff()
    {
        const QString folder = QDir::homePath() + QStringLiteral("/.config/autostart");
        const QString entry = folder + QStringLiteral("/org.ardeo.IPConfig.desktop");
        choose("Start at Login");
        QTRY_VERIFY(menuEntries().contains(QStringLiteral("Remove from Login Items")));
        QCOMPARE(QProcess::execute(QStringLiteral("desktop-file-validate"), {entry}), 0);
        chooseInMenuBarMenu("Remove from Login Items");
        QTRY_VERIFY(!QFile::exists(entry) && isEnabledItem("Start at Login"));
        QVERIFY(QDir().rmdir(folder));
        QVERIFY(QFile(folder).open(QIODevice::WriteOnly)); // now nothing can be put there
        choose("Start at Login");
        QTRY_VERIFY(find(ATSPI_ROLE_LABEL, "Start at login: Not a directory") != nullptr);
        QVERIFY(isEnabledItem("Start at Login"));
    }

    void withoutAPlaceForTheIconTheWindowStaysInReach()
    {
        QVERIFY(
            QDBusConnection::sessionBus().unregisterService(QStringLiteral("org.kde.StatusNotifierWatcher")));
        // Until the program has learnt of it, it hides.
        QTRY_VERIFY_WITH_TIMEOUT(
            (control('w'), find(ATSPI_ROLE_LABEL, noIcons) != nullptr ||
                               QProcess::execute(qEnvironmentVariable("LAB_PROGRAM"), {}) < 0),
            patience);
        QVERIFY(activate(find(ATSPI_ROLE_PUSH_BUTTON, "OK")));
        QTRY_VERIFY(!isOnScreen(mainTitle));
        QCOMPARE(QProcess::execute(qEnvironmentVariable("LAB_PROGRAM"), {}), 0);
        QTRY_VERIFY(isOnScreen(mainTitle));
    }

    void quittingInTheMiddleOfAnApplyEndsAtOnce()
    {
        QVERIFY(activate(find(ATSPI_ROLE_RADIO_BUTTON, "Automatically Set DNS Address")));
        QVERIFY(activate(find(ATSPI_ROLE_RADIO_BUTTON, "Manually Set IP Address")));
        choose("Apply");
        QElapsedTimer time;
        time.start();
        activate(find(ATSPI_ROLE_MENU_ITEM, "Quit Ardeo IP Config", true)); // ends before it can answer
        QVERIFY(m_program.waitForFinished());
        QVERIFY(time.elapsed() < 1'000);
        const QString method =
            output(QStringLiteral("nmcli"),
                   {QStringLiteral("-g"), QStringLiteral("ipv4.method"), QStringLiteral("connection"),
                    QStringLiteral("show"), QStringLiteral("Wired connection 1")});
        QVERIFY2(method == QStringLiteral("auto") || method == QStringLiteral("manual"), qPrintable(method));
    }

    void anX11TrayDoesAsWell()
    {
        QProcess tray;
        tray.start(QStringLiteral("trayer"),
                   QStringLiteral("--edge top --align right --widthtype request").split(u' '));
        QTRY_VERIFY(isOnScreen("panel"));
        startProgram();
        QTRY_VERIFY((control('w'), !isShown(mainTitle)));
        QTRY_VERIFY(output(QStringLiteral("xdotool"),
                           QStringLiteral("search --name panel getwindowgeometry").split(u' '))
                        .contains(QStringLiteral("Geometry: 24x"))); // the icon is in it
        atspi_generate_mouse_event(1268, 12, "b1c", nullptr);
        QTRY_VERIFY(output(QStringLiteral("xdotool"),
                           QStringLiteral("search --onlyvisible --class ardeo").split(u' '))
                        .count(u'\n') > 0); // the icon and the menu
        key(0xFF52);                        // Up, to the last entry
        key(0xFF0D);                        // Return
        QVERIFY(m_program.waitForFinished());
        tray.kill();
        tray.waitForFinished();
    }
};

QTEST_GUILESS_MAIN(ShellTest)
#include "ShellTest.moc"
