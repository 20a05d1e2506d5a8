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
        const QString path = u"/org/freedesktop/portal/desktop/request/%1/%2"_s.arg(
            sender, options.value(u"handle_token"_s).toString());
        QDBusMessage response =
            QDBusMessage::createSignal(path, u"org.freedesktop.portal.Request"_s, u"Response"_s);
        response << 0U << QVariantMap{{u"uris"_s, QStringList{url}}};
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

    static constexpr int patience = 40'000;
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
        return !output(u"xdotool search --onlyvisible --name \"^%1$\""_s.arg(QLatin1String(window)))
                    .isEmpty();
    }
    static QString liveAddress()
    {
        return output(u"nmcli -g IP4.ADDRESS device show eth0"_s).section(u'/', 0, 0);
    }
    static bool isEnabledItem(const char* item) { return isEnabled(find(ATSPI_ROLE_MENU_ITEM, item, true)); }
    static void choose(const char* item)
    {
        QTRY_VERIFY_WITH_TIMEOUT(isEnabledItem(item), patience);
        QVERIFY(activate(find(ATSPI_ROLE_MENU_ITEM, item, true)));
    }
    QDBusMessage askMenu(const QString& method, const QVariantList& arguments) const
    {
        QDBusMessage call =
            QDBusMessage::createMethodCall(m_panel.item, u"/MenuBar"_s, u"com.canonical.dbusmenu"_s, method);
        call.setArguments(arguments);
        return QDBusConnection::sessionBus().call(call);
    }
    /// The visible entries of the icon's menu, in their order; a divider is empty.
    QStringList menuEntries()
    {
        const QDBusMessage reply = askMenu(u"GetLayout"_s, {0, -1, QVariant::fromValue(QStringList())});
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
            if (properties.value(u"visible"_s, true).toBool())
                texts.append(properties.value(u"label"_s).toString());
            m_entries[texts.value(texts.size() - 1)] = id;
        }
        return texts;
    }
    void chooseInMenuBarMenu(const char* entry)
    {
        QVERIFY(menuEntries().contains(QString::fromUtf8(entry)));
        askMenu(u"Event"_s, {m_entries.value(QString::fromUtf8(entry)), u"clicked"_s,
                             QVariant::fromValue(QDBusVariant(0)), 0U});
    }
    void startProgram()
    {
        m_portal.asked = false;
        const bool hasPanel = QDBusConnection::sessionBus().interface()->isServiceRegistered(
            u"org.kde.StatusNotifierWatcher"_s);
        m_panel.item.clear();
        m_program.start(qEnvironmentVariable("LAB_PROGRAM"), {u"--system=networkmanager"_s});
        // Not to be asked while it asks for an answer of ours.
        QTRY_VERIFY_WITH_TIMEOUT(m_portal.asked && m_panel.item.isEmpty() != hasPanel, patience);
        QTRY_VERIFY_WITH_TIMEOUT(isShown(mainTitle) && isEnabledItem("Apply"), patience);
    }

private Q_SLOTS:
    void initTestCase()
    {
        QVERIFY(m_portal.appear());
        QDBusConnection bus = QDBusConnection::sessionBus();
        QVERIFY(bus.registerService(u"org.kde.StatusNotifierWatcher"_s));
        QVERIFY(bus.registerObject(u"/StatusNotifierWatcher"_s, &m_panel,
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
        QCOMPARE(menuEntries(),
                 (QStringList{u"Wired connection 1"_s, liveAddress(), QString(), u"Open Ardeo IP Config"_s,
                              u"Keyboard Shortcuts…"_s, QString(), u"Network Settings…"_s,
                              u"Activity Monitor…"_s, QString(), u"Start at Login"_s, QString(), u"Quit"_s}));
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
        const QString application = u"org.ardeo.IPConfig"_s;
        QDBusInterface interface(application, u"/org/ardeo/IPConfig"_s, u"org.freedesktop.Application"_s);
        for (const char* action : {"quit", "Apply"})
            interface.call(u"ActivateAction"_s, QLatin1String(action), QVariantList(), QVariantMap());
        QCOMPARE(m_program.state(), QProcess::Running);
        QVERIFY(isEnabledItem("Apply"));
        QDBusInterface objects(application, u"/"_s, u"org.freedesktop.DBus.Introspectable"_s);
        const QString below = objects.call(u"Introspect"_s).arguments().value(0).toString();
        QCOMPARE(below.count(u"<node name"_s), 1); // the way to that one object
        control('h');
        QTRY_VERIFY(!isOnScreen(mainTitle));
        chooseInMenuBarMenu("Open Ardeo IP Config");
        QTRY_VERIFY(isOnScreen(mainTitle));
    }

    void commandsDoTheirWorkAndShowWhatCanBeDone()
    {
        // Each to its end: of actions that overlap, the first to end frees the way for the next.
        choose("Disable Adapter");
        QTRY_VERIFY_WITH_TIMEOUT(isEnabledItem("Enable Adapter") && isEnabledItem("Apply"), patience);
        choose("Enable Adapter");
        QTRY_VERIFY_WITH_TIMEOUT(isEnabledItem("Disable Adapter") && isEnabledItem("Apply"), patience);
        choose("Renew DHCP");
        QTRY_VERIFY_WITH_TIMEOUT(!isEnabledItem("Apply"), patience);
        QTRY_VERIFY_WITH_TIMEOUT(isEnabledItem("Apply"), patience);

        for (const auto& [item, tool] : {std::pair("Open Network Settings", "nm-connection-editor"),
                                         std::pair("Open Activity Monitor", "xfce4-taskmanager")}) {
            choose(item);
            QTRY_VERIFY(QFile::exists(m_tools.filePath(QLatin1String(tool) + u".opened"_s)));
        }
        choose("About Ardeo IP Config");
        QTRY_VERIFY(find(ATSPI_ROLE_PUSH_BUTTON, "OK") != nullptr);
        QVERIFY(activate(find(ATSPI_ROLE_PUSH_BUTTON, "OK")));
    }

    void profilesTravelThroughThePortalsPanels()
    {
        const QTemporaryDir folder;
        const QString place = folder.filePath(u"my profiles.profiles"_s);
        m_files->url = QUrl::fromLocalFile(place).toString(QUrl::FullyEncoded);
        control('E'); // with Shift
        QTRY_VERIFY(QFile(place).size() > 0);
        QVERIFY(QFile::remove(place));
        control('I');
        QTRY_VERIFY(find(ATSPI_ROLE_LABEL, "Could not read profiles file.") != nullptr);
        QCOMPARE(m_files->titles, (QStringList{u"Export Ardeo IP Config profiles"_s,
                                               u"Select an Ardeo IP Config profiles file (.profiles)"_s}));
    }

    void startingAtLoginIsSwitchedOnAndOff()
    {
        const QString entry = QDir::homePath() + u"/.config/autostart/org.ardeo.IPConfig.desktop"_s;
        choose("Start at Login");
        QTRY_VERIFY(menuEntries().contains(u"Remove from Login Items"_s));
        QCOMPARE(QProcess::execute(u"desktop-file-validate"_s, {entry}), 0);
        chooseInMenuBarMenu("Remove from Login Items");
        QTRY_VERIFY(!QFile::exists(entry) && isEnabledItem("Start at Login"));
    }

    void withoutAPlaceForTheIconTheWindowStaysInReach()
    {
        QVERIFY(QDBusConnection::sessionBus().unregisterService(u"org.kde.StatusNotifierWatcher"_s));
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
        const QString method = output(u"nmcli -g ipv4.method connection show \"Wired connection 1\""_s);
        QVERIFY2(method == u"auto"_s || method == u"manual"_s, qPrintable(method));
    }

    void anX11TrayDoesAsWell()
    {
        QProcess tray;
        tray.startCommand(u"trayer --edge top --align right --widthtype request"_s);
        QTRY_VERIFY(isOnScreen("panel"));
        startProgram();
        QTRY_VERIFY((control('w'), !isShown(mainTitle)));
        // The icon is in it.
        QTRY_VERIFY(output(u"xdotool search --name panel getwindowgeometry"_s).contains(u"Geometry: 24x"_s));
        atspi_generate_mouse_event(1268, 12, "b1c", nullptr);
        // The icon and the menu.
        QTRY_VERIFY(output(u"xdotool search --onlyvisible --class ardeo"_s).contains(u'\n'));
        key(0xFF52); // Up, to the last entry
        key(0xFF0D); // Return
        QVERIFY(m_program.waitForFinished());
        tray.kill();
        tray.waitForFinished();
    }
};

QTEST_GUILESS_MAIN(ShellTest)
#include "ShellTest.moc"
