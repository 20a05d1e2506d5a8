#include "app/Ardeo_IPConfigApp.h"
#include "app/MenuBarMenuView.h"
#include "backend/Errors.h"
#include "fakes/Fakes.h"
#include "language/Language.h"
#include "platform/AdvisoryLock.h"
#include "platform/simulated/SimulatedPlatform.h"
#include "ui/background/Card.h"
#include "ui/background/NeuralNetworkBackground.h"
#include "ui/elements/ArdeoStyle.h"
#include "ui/elements/CardScrollArea.h"
#include "ui/elements/Controls.h"
#include "ui/elements/IPAddressField.h"
#include "ui/elements/InfoRow.h"
#include "ui/elements/TextLabel.h"
#include "ui/panels/ActionHeader.h"
#include "ui/panels/AdapterPropertiesCard.h"
#include "ui/panels/AdapterSection.h"
#include "ui/panels/LeftPanel.h"
#include "ui/panels/PresetList.h"
#include "ui/sheets/ConfirmationDialog.h"
#include "ui/sheets/NoticePanel.h"
#include "ui/sheets/ProfileNameSheet.h"
#include "ui/windows/ContentView.h"
#include "ui/windows/HelpView.h"
#include "ui/windows/ShortcutsView.h"

#include <QtTest>
#include <QtWidgets>

#include <fcntl.h>

using namespace ardeo;
using namespace std::chrono_literals;

namespace
{

/// What look sees once layouts, which follow step by step, have come to rest.
template <typename Look>
auto settled(Look look)
{
    for (auto last = look();;) {
        for (int turn = 0; turn < 10; ++turn) // one that takes long leaves what it has posted to the next
            QCoreApplication::processEvents();
        if (const auto now = std::exchange(last, look()); now == last)
            return last;
    }
}

/// Where a window has been painted since this was made.
class Painted final : public QObject
{
public:
    explicit Painted(QWidget& window) : m_window(window) { qApp->installEventFilter(this); }
    QRegion region;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        const auto* widget = qobject_cast<QWidget*>(watched);
        if (event->type() == QEvent::Paint && widget && m_window.isAncestorOf(widget))
            region +=
                static_cast<QPaintEvent*>(event)->region().translated(widget->mapTo(&m_window, QPoint()));
        return false;
    }

private:
    QWidget& m_window;
};

/// Is asked for the texts that no catalogue has. It answers with brackets around them, which show in a
/// language of its own what was never to be translated; or it notes them down.
class Remainder final : public QTranslator
{
public:
    explicit Remainder(bool speaks) : m_speaks(speaks) { QCoreApplication::installTranslator(this); }
    bool isEmpty() const override { return false; }
    QString translate(const char* context, const char* text, const char*, int) const override
    {
        if (!QByteArrayView(context).startsWith("ardeo::"))
            return {};
        if (!m_speaks)
            untranslated.append(QString::fromUtf8(text));
        return m_speaks ? u"[%1]"_s.arg(QString::fromUtf8(text)) : QString();
    }
    mutable QStringList untranslated;

private:
    bool m_speaks;
};

/// What is wrong with the texts in a window: cut, beside their place, of another system, or, where that is
/// to be seen, neither translated nor among the data.
QStringList faultsOfTexts(QWidget* window, bool isMarked, const QString& data)
{
    static const QRegularExpression foreign(u"Mac\\b|macOS|⌘|⇧|\\{"_s);
    static const QRegularExpression untranslated(u"^(?!Ctrl|Ardeo IP Config$)[^\\[]*[A-Za-z][^\\[]*$"_s);
    QStringList faults;
    auto widgets = window->findChildren<QWidget*>();
    widgets << window;
    for (const QWidget* widget : widgets) {
        if (!widget->isVisible())
            continue;
        const QString text = widget->property("text").toString();
        for (const QString& said : {text, widget->accessibleName(), widget->toolTip(), widget->windowTitle(),
                                    widget->property("placeholderText").toString()}) {
            if (isMarked && !data.contains(said) && untranslated.match(said).hasMatch())
                faults << u"untranslated: "_s + said;
            if (foreign.match(said).hasMatch())
                faults << u"foreign: "_s + said;
        }
        if (!qobject_cast<const QLabel*>(widget) && !qobject_cast<const QAbstractButton*>(widget))
            continue;
        const QSize least = widget->minimumSizeHint();
        const QRect place = widget->geometry();
        const QRect seen = widget->visibleRegion().boundingRect();
        if (place.width() < least.width() || (!seen.isEmpty() && seen.width() < place.width()) ||
            place.height() <
                (widget->hasHeightForWidth() ? widget->heightForWidth(place.width()) : least.height()))
            faults << u"cut: "_s + text;
        if (place.left() < 0 || place.right() > widget->parentWidget()->rect().right())
            faults << u"out of place: "_s + text;
    }
    return faults;
}

/// The same of menus: not translated, or with one access key for two entries.
QStringList faultsOfMenu(const QList<QAction*>& entries, bool isMarked)
{
    QStringList faults;
    QSet<QKeySequence> keys;
    for (const QAction* entry : entries) {
        const QKeySequence key = QKeySequence::mnemonic(entry->text());
        if (!key.isEmpty() && std::exchange(keys, keys + QSet{key}).contains(key))
            faults << u"twice: "_s + entry->text();
        const bool isText = entry->isEnabled() && entry->isVisible() && !entry->isSeparator();
        if (isMarked && isText && !entry->text().contains(u'['))
            faults << u"untranslated: "_s + entry->text();
        if (entry->menu())
            faults << faultsOfMenu(entry->menu()->actions(), isMarked);
    }
    return faults;
}

/// What assistive technology calls the widget.
QString nameOf(QWidget* widget)
{
    return QAccessible::queryAccessibleInterface(widget)->text(QAccessible::Name);
}

/// The main window over a simulated machine of its own.
struct Window {
    QTemporaryDir folder;
    FakeClock* clock = new FakeClock;
    Platform platform = simulatedPlatform(folder.filePath(u"machine.json"_s), std::unique_ptr<Clock>(clock));
    std::unique_ptr<Ardeo_IPConfigApp> app;
    std::shared_ptr<MainViewModel> model;
    QPointer<QWidget> window;

    Window()
    {
        platform.workspace = std::make_unique<FakeWorkspace>();
        app = std::make_unique<Ardeo_IPConfigApp>(platform);
        model = app->vm;
        window = app->appDelegate.mainWindow;
        app->appDelegate.hasMenuBarExtra = [] { return true; };
        app->appDelegate.applicationDidFinishLaunching();
        activate();
        settle();
    }
    ~Window()
    {
        app.reset();
        letGo(model, *clock);
    }
    Q_DISABLE_COPY(Window)

    static ArdeoStyle* style() { return static_cast<ArdeoStyle*>(QApplication::style()); }
    void settle() const
    {
        QVERIFY(QTest::qWaitFor([this] { return !model->isLoading.value(); }));
        QCoreApplication::processEvents();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
    /// Lets the action that runs come to its end.
    void finish() const
    {
        qsizetype asked = 0;
        QVERIFY(QTest::qWaitFor([&] {
            if (std::exchange(asked, clock->asked.size()) < clock->asked.size()) // somebody waits anew
                clock->advance(1s);
            return !model->isApplying.value();
        }));
        settle();
    }
    /// The visible widget of that kind with that name, text or tool tip; null when there is none.
    template <typename Widget>
    Widget* find(const char* name) const
    {
        const QString wanted = QString::fromUtf8(name);
        for (Widget* widget : window->findChildren<Widget*>()) {
            const QStringList names{widget->accessibleName(), widget->toolTip(),
                                    widget->property("text").toString()};
            if (names.contains(wanted) && widget->isVisible())
                return widget;
        }
        return nullptr;
    }
    void activate() const
    {
        window->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(window.get()));
    }
    /// Presses the keys, four at most, as if they came from the desktop.
    void press(const char* keys) const
    {
        QTest::keySequence(window->windowHandle(), QKeySequence(QString::fromLatin1(keys)));
        settle();
    }
    void click(const char* name) const
    {
        QTest::mouseClick(find<QAbstractButton>(name), Qt::LeftButton);
        settle();
    }
    static void turnWheel(QWidget* below)
    {
        QWheelEvent event({}, {}, {}, {0, -120}, {}, {}, Qt::NoScrollPhase, false);
        QSpontaneKeyEvent::setSpontaneous(&event); // as if it came from the desktop
        qApp->notify(below, &event);
    }
    bool shows(const char* text) const { return find<QLabel>(text) != nullptr; }
    IPAddressField* field(const char* name) const { return find<IPAddressField>(name); }
    PresetList* list() const { return window->findChild<PresetList*>(); }
    QPoint row(int i) const { return list()->visualRect(list()->model()->index(i, 0)).center(); }
    void addProfiles() const
    {
        const NetworkPreset home{
            .name = u"Home WiFi"_s, .serviceName = u"Wi-Fi"_s, .searchDomains = u"home"_s};
        const NetworkPreset office{QUuid::createUuid(), u"Office"_s,  Text(),       IPv4Mode::manual,
                                   u"1.1.1.1"_s,        u"2.2.2.2"_s, u"3.3.3.3"_s, DNSMode::manual,
                                   u"4.4.4.4"_s,        u"5.5.5.5"_s, Text()};
        model->presetStore.setPresets({home, office});
    }
};

} // namespace

class MainWindowTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        auto* style = new ArdeoStyle;
        style->setReducedMotion(true); // so that nobody waits for a transition
        QApplication::setStyle(style);
        QApplication::setPalette(look::palette(ColorScheme::light));
    }

    void whatIsWrongIsToldAndMarked()
    {
        Window w;
        w.model->loadPreset({.ipv4Mode = IPv4Mode::manual,
                             .ipAddress = u"10.0.0.2"_s,
                             .subnetMask = u"255.0.0.0"_s,
                             .router = u"10.0.0.2"_s});
        w.click("Apply");
        w.finish();
        const char* reason = "The gateway is the address itself.";
        QVERIFY(w.shows("Cannot save changes (SC 1002).") && w.shows(reason));
        const auto described = [&](const char* field) {
            return w.field(field)->octet(0)->accessibleDescription();
        };
        QCOMPARE(described("Gateway") + described("IP Address"), QLatin1String(reason));
        // Fault and focus, each on its own and both.
        const Colours& colours = look::colours(ColorScheme::light);
        for (const auto& [focus, field, outer, inner] :
             {std::tuple("Subnet Mask", "Subnet Mask", colours.teal, colours.textBackground),
              {"Subnet Mask", "Gateway", colours.red, colours.textBackground},
              {"Gateway", "Gateway", colours.teal, colours.red}}) {
            w.field(focus)->octet(0)->setFocus();
            const QImage picture = w.field(field)->grab().toImage();
            QCOMPARE(picture.pixelColor(1, 14), outer);
            QCOMPARE(picture.pixelColor(3, 14), inner);
        }
        w.model->router = Text(u"10.0.0.1"_s);
        QVERIFY(described("Gateway").isEmpty() && w.shows(reason));
        w.click("Revert");
        QVERIFY(!w.shows(reason));
    }

    void whoHoldsTheLockIsTold()
    {
        Window w;
        AdvisoryLock lock(w.folder.filePath(u"machine.json.lock"_s), O_RDWR | O_CREAT,
                          [](const std::optional<LockHolder>&) {});
        QCOMPARE(lock.take(false), SystemStatus::ok);
        w.click("Apply");
        const QByteArray told =
            waitingDescription({.processID = QCoreApplication::applicationPid()}).toUtf8();
        QTRY_COMPARE(w.clock->asked, QList<qint64>{500});
        QVERIFY(!w.shows(told));
        w.clock->advance(500ms);
        QTRY_VERIFY(w.shows(told));
        lock.release();
        QTRY_VERIFY(!w.model->waitsFor.value());
    }

    void octetsTakeWhatIsTyped()
    {
        for (const auto& [typed, octet, expected, focus] : {std::tuple("192", 0, u"192..."_s, 1),
                                                            {"1921681", 0, u"192.168.1."_s, 2},
                                                            {"256", 1, u".255.."_s, 2},
                                                            {"25a5", 2, u"..255."_s, 3},
                                                            {"-1", 0, u"1..."_s, 0},
                                                            {"1234", 3, u"...123"_s, 3},
                                                            {"<10.0.0.1", 0, u"100..."_s, 1},
                                                            {"<٣٤", 0, u"٣٤..."_s, 0},
                                                            {"12\b\b", 0, u"..."_s, 0},
                                                            {"1\t2\t3\t4", 0, u"1.2.3.4"_s, 3}}) {
            Observed<Text> value;
            IPAddressField field(value, u"1..2"_s, u"Gateway:"_s);
            QCOMPARE(field.partPlaceholder(1) + u'|' + field.partPlaceholder(3), u"|0"_s);
            field.show();
            field.activateWindow();
            QVERIFY(QTest::qWaitForWindowActive(&field));
            field.octet(octet)->setFocus();
            if (*typed == '<') { // pasted
                field.octet(octet)->insert(QString::fromUtf8(typed + 1));
                Q_EMIT field.octet(octet)->textEdited(field.octet(octet)->text());
            } else {
                for (const char c : QByteArray(typed))
                    QTest::keyClick(QApplication::focusWidget(), c);
            }
            QCOMPARE(value.value().string(), expected);
            QVERIFY2(field.octet(focus)->hasFocus(), typed);
        }
    }

    void fieldsExistOnlyWhileTheirSectionIsShown()
    {
        Window w;
        QVERIFY(!w.field("IP Address"));
        w.model->subnetMask = Text();
        w.click("Manually Set IP Address");
        QVERIFY(w.field("IP Address"));
        QTRY_COMPARE(w.model->subnetMask.value(), Text(u"255.255.255.0"_s));
        w.model->loadPreset({.ipv4Mode = IPv4Mode::dhcp, .subnetMask = u"10.1"_s});
        QVERIFY(!w.field("IP Address"));
        QCoreApplication::processEvents();
        QCOMPARE(w.model->subnetMask.value(), Text(u"10.1"_s)); // nobody was there to normalise it
        w.addProfiles();
        w.model->loadPreset(w.model->presetStore.presets().last());
        QCoreApplication::processEvents();
        QString shown;
        for (const char* name : {"IP Address", "Subnet Mask", "Gateway", "Preferred DNS", "Alternate DNS"})
            shown += w.field(name)->octet(0)->text();
        QCOMPARE(shown, u"12345"_s);
        QCOMPARE(w.model->subnetMask.value(), Text(u"2.2.2.2"_s));
        QVERIFY(!qobject_cast<QLineEdit*>(w.window->focusWidget())); // a field that appears takes no focus
        const Text given(u"256.1"_s);
        w.model->subnetMask = given;
        QCOMPARE(w.model->subnetMask.value(), given); // not in the middle of an assignment
        QCoreApplication::processEvents();
        QCOMPARE(w.model->subnetMask.value(), Text(u"255.1.."_s));
    }

    void controlsAndMenusFollowTheModel()
    {
        Window w;
        MainViewModel& m = *w.model;
        // By their first words.
        const auto enabled = [&] {
            QStringList names;
            for (const char* name :
                 {"Refresh", "Apply", "Applying…", "Revert", "Renew DHCP", "Disable Adapter",
                  "Enable Adapter", "Save Profile…", "Export profiles to file"}) {
                const auto* button = w.find<QAbstractButton>(name);
                if (button && button->isEnabled())
                    names << QString::fromUtf8(name).section(u' ', 0, 0);
            }
            return names.join(u',');
        };
        const auto disabledInMenus = [&] {
            QStringList names;
            for (const QAction* item : w.window->findChild<QMenuBar*>()->findChildren<QAction*>()) {
                if (!item->isSeparator() && !item->isEnabled())
                    names << item->text().section(u' ', 0, 0);
            }
            return names.join(u',');
        };
        QCOMPARE(enabled(), u"Refresh,Apply,Renew,Disable,Save"_s);
        w.addProfiles();
        using Selected = std::optional<AdapterInfo>;
        const Selected on = m.selectedAdapter.value();
        Selected off = on;
        off->isEnabled = false;
        const NetworkAdapterInfo automatic = m.currentConfig.value();
        const NetworkAdapterInfo manual{.ipv4Mode = IPv4Mode::manual};
        // The form has no say in the menus.
        for (const auto& [selected, live, isApplying, isLoading, buttons, menus] :
             {std::tuple(on, automatic, false, false, "Refresh,Apply,Renew,Disable,Save,Export", "Enable"),
              {off, manual, false, false, "Refresh,Apply,Revert,Enable,Save,Export", "Renew,Disable"},
              {on, automatic, true, false, "Refresh,Save,Export", "Apply,Enable"},
              {on, manual, false, true, "Revert,Disable,Save,Export", "Apply,Renew,Enable"},
              {Selected(), automatic, false, false, "Refresh,Export", "Apply,Renew,Enable,Disable"}}) {
            m.selectedAdapter = selected;
            m.currentConfig = live;
            m.isApplying = isApplying;
            m.isLoading = isLoading;
            QCOMPARE(enabled(), QLatin1String(buttons));
            QCOMPARE(disabledInMenus(), QLatin1String(menus));
            QCOMPARE(w.shows("Loading…"), isLoading);
        }
        QVERIFY(w.find<QAbstractButton>("Enable Adapter") && w.shows("Not connected"));
        m.adapters = QList<AdapterInfo>();
        QVERIFY(w.shows("No Network Services") && w.shows("No network services found on this computer."));
        QVERIFY(!w.find<PopUpButton>("Select Adapter")->isEnabled());
        m.isLoading = true;
        QVERIFY(!w.shows("No Network Services"));
    }

    void valuesAreShownInTheirRows()
    {
        Window w;
        MainViewModel& m = *w.model;
        m.currentConfig = NetworkAdapterInfo{IPv4Mode::manual, u"1"_s, u"2"_s, u"3"_s, DNSMode::manual,
                                             u"4"_s,           u"5"_s, {},     u"6"_s, u"7"_s};
        QStringList rows;
        for (const InfoRow* row : w.window->findChildren<InfoRow*>()) {
            for (const QLabel* label : row->findChildren<QLabel*>())
                rows << label->text();
        }
        QCOMPARE(rows.join(u' '),
                 u"IP Address: 1 Subnet Mask: 2 Gateway: 3 Preferred DNS: 4 Alternate DNS: 5 "
                 "DHCP Server: 6 Mode: Manual Computer Name: 7"_s);
        m.currentConfig = NetworkAdapterInfo{.ipv4Mode = IPv4Mode::manual};
        QVERIFY(!w.find<QAbstractButton>("Renew DHCP") && !w.shows("DHCP Server:") &&
                !w.shows("Computer Name:"));
        m.applySuccess = true;
        QVERIFY(w.shows("Applied"));
        const QImage apply = w.find<QAbstractButton>("Apply")->grab().toImage();
        QCOMPARE(apply.pixel(6, apply.height() / 2), look::colours(ColorScheme::light).accent.rgb());
        // Where a point has two pixels, the line below the menus has no gaps.
        auto* bar = w.window->findChild<QMenuBar*>();
        QImage picture(bar->size() * 2, QImage::Format_RGB32);
        picture.setDevicePixelRatio(2);
        bar->render(&picture);
        const QImage line = picture.copy(0, picture.height() - 4, picture.width(), 4);
        QCOMPARE(line, line.copy(0, 0, 1, 4).scaled(line.size()));
    }

    void controlsHaveNamesRolesAndAnOrder()
    {
        Window w;
        w.model->dnsMode = DNSMode::manual;
        w.model->ipv4Mode = IPv4Mode::manual;
        w.addProfiles();
        for (QWidget* widget : w.window->findChildren<QWidget*>()) {
            if (!widget->isVisible() || widget->focusPolicy() == Qt::NoFocus || qobject_cast<QLabel*>(widget))
                continue;
            QVERIFY2(!nameOf(widget).isEmpty(), widget->metaObject()->className());
            QVERIFY(QAccessible::queryAccessibleInterface(widget)->role() != QAccessible::Client);
        }
        QCOMPARE(QAccessible::queryAccessibleInterface(w.list())->child(1)->text(QAccessible::Name),
                 u"Office, Manual · "_s);

        QStringList order;
        for (int i = 0; i < 36 && !qobject_cast<QLabel*>(QApplication::focusWidget()); ++i) {
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
            const QString name = nameOf(QApplication::focusWidget());
            if (!name.contains(QRegularExpression(u", part [2-4]"_s)))
                order << name.section(u',', 0, 0);
        }
        QCOMPARE(order.first(18).join(u','),
                 u"Ethernet,Search profiles,Profiles,Save Profile…,Import profiles from file,"
                 "Export profiles to file,Refresh,Apply,Manually Set IP Address,IP Address,Subnet Mask,"
                 "Gateway,Manually Set DNS Address,Preferred DNS,Alternate DNS,Revert,Renew DHCP,"
                 "Disable Adapter"_s);
        QWidget* value = QApplication::focusWidget();
        QTest::keyClick(value, Qt::Key_C, Qt::ControlModifier);
        QCOMPARE(QGuiApplication::clipboard()->text(), w.model->currentConfig.value().ipAddress.string());
        QContextMenuEvent asked(QContextMenuEvent::Keyboard, value->rect().center(), {});
        QApplication::sendEvent(value, &asked);
        QCOMPARE(value->findChild<QMenu*>()->pos(), value->mapToGlobal(value->rect().bottomLeft()));
    }

    void everythingGrowsWithTheText()
    {
        Window w;
        w.model->ipv4Mode = IPv4Mode::manual;
        const auto sizes = [&] {
            const auto* radio = w.find<QRadioButton>("Automatically Set IP Address");
            const int aside = radio->width() - radio->fontMetrics().horizontalAdvance(radio->text());
            return std::tuple(w.field("Gateway")->octet(0)->width(), aside, w.window->width());
        };
        for (const auto& [scale, expected] :
             {std::pair(1.0, std::tuple(36, 24, 900)), {1.5, {54, 34, 900}}, {1.0, {36, 24, 900}}}) {
            Window::style()->setTextScale(scale);
            const auto found = settled(sizes);
            Window::style()->setTextScale(1);
            QCOMPARE(found, expected);
        }
    }

    void nothingMovesWhileSomethingIsDone()
    {
        Window w;
        w.window->resize(720, 560);
        auto* bar = w.find<CardScrollArea>("")->verticalScrollBar();
        bar->setValue(bar->maximum());
        const auto places = [&] {
            const auto* refresh = w.find<QAbstractButton>("Refresh");
            const QWidget* card = w.find<Card>("Current Adapter Properties");
            return std::tuple(bar->value(), refresh->pos(), card->geometry());
        };
        const auto before = settled(places);
        QVERIFY(bar->value() > 0);
        for (Observed<bool>* state : {&w.model->isLoading, &w.model->isApplying}) {
            *state = true;
            QVERIFY(settled(places) == before);
            *state = false;
        }
        for (const char* over : {"Automatically Set IP Address", "Refresh", "Preferred DNS, part 1 of 4"}) {
            bar->setValue(0);
            Window::turnWheel(w.find<QWidget>(over));
            QVERIFY2(bar->value() > 0, over);
        }
        w.window->resize(900, 680);
        w.model->dnsMode = DNSMode::manual;
        settled(places);
        QCOMPARE(bar->maximum(), bar->minimum());
    }

    void whoCameOverTheServiceHasToConfirm()
    {
        Window w;
        w.platform.remoteInterface = [&w] { return w.model->selectedAdapter.value()->bsdName->string(); };
        const auto row = [&] { return w.find<QAbstractButton>("Keep") != nullptr; };
        const auto seconds = [&] {
            int left = 60;
            while (left > 0 && !w.find<QLabel>(qPrintable(u"The change is taken back in %1 s."_s.arg(left))))
                --left;
            return left;
        };
        for (const bool confirms : {true, false}) {
            w.model->ipAddress = QString(confirms ? u"10.20.0.8"_s : u"10.20.0.7"_s);
            w.model->ipv4Mode = IPv4Mode::manual;
            w.click("Apply");
            w.finish();
            QTRY_VERIFY(row());
            const int left = seconds();
            QVERIFY(left > 20);
            w.clock->advance(10s);
            QTRY_COMPARE(seconds(), left - 10);
            if (confirms)
                w.click("Keep"); // who guards the first has no say in the second
            w.clock->advance(confirms ? 15s : std::chrono::seconds(seconds()));
            w.finish();
            QTRY_VERIFY(!row());
            QTRY_COMPARE(w.model->ipAddress.value(), Text(u"10.20.0.8"_s));
            QTRY_COMPARE(w.model->applySuccess.value(), confirms);
        }
        QTRY_VERIFY(w.shows("Nobody confirmed the change of 'Ethernet', so it was taken back."));
        w.platform.remoteInterface = [] { return u"another"_s; };
        w.click("Apply");
        w.finish();
        QVERIFY(w.model->applySuccess.value() && !row());
    }

    void whatOthersChangeIsFollowedWhereItShows()
    {
        Window w;
        const auto change = [&w](const char* before, const char* after) {
            QFile machine(w.folder.filePath(u"machine.json"_s)); // in its place, as an editor does it
            QVERIFY(machine.open(QIODevice::ReadWrite));
            QByteArray text = machine.readAll();
            QVERIFY(machine.resize(0));
            machine.write(text.replace(before, after));
        };
        const auto comes = [&w](const char* name) {
            return QTest::qWaitFor([&] { return w.find<QWidget>(name) != nullptr; });
        };
        change("10.20.1.42", "10.20.1.43");
        QVERIFY(comes("10.20.1.43"));
        w.model->primaryDNS = Text(u"edited"_s); // the form stays as it is
        settled([&w] { return w.window->grab().toImage(); });
        const Painted painted(*w.window);
        change("10.20.1.43", "10.20.1.44");
        QVERIFY(comes("10.20.1.44"));
        const auto* row = w.find<QLabel>("10.20.1.44");
        QCOMPARE(settled([&painted] { return painted.region; }),
                 QRegion(QRect(row->mapTo(w.window, QPoint()), row->size())));
        w.window->hide();
        QTRY_VERIFY(!w.find<QWidget>("Refresh"));
        QCoreApplication::processEvents(); // it is noticed when the event has been handled
        QSignalSpy changes(&w.model->configService, &NetworkConfigService::changed);
        change("10.20.1.44", "10.20.1.45");
        QVERIFY(!changes.wait(1500)); // nobody looks
        w.window->show();
        QVERIFY(comes("10.20.1.45"));
    }

    void focusStaysOrGoesToTheNext()
    {
        Window w;
        w.click("Manually Set IP Address");
        w.field("Gateway")->octet(1)->setFocus();
        w.press("Ctrl+R");
        QVERIFY(w.find<QRadioButton>("Automatically Set IP Address")->hasFocus()); // its place has gone
        w.find<QLineEdit>("Search profiles")->setFocus();
        w.press("Esc, Tab");
        QVERIFY(w.find<QAbstractButton>("Save Profile…")->hasFocus());
        for (const char* name : {"Revert", "Refresh"}) {
            w.model->ipv4Mode = IPv4Mode::manual;
            w.find<QAbstractButton>(name)->setFocus();
            w.press("Space, Space");
            QVERIFY(!w.model->isApplying.value() && w.find<QAbstractButton>(name)->hasFocus());
            QVERIFY(w.find<QRadioButton>("Automatically Set IP Address")->isChecked());
        }
        w.model->isLoading = true; // while another window comes before this one
        QWidget other;
        other.show();
        other.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&other));
        w.activate();
        const QImage refresh = w.find<QAbstractButton>("Refresh")->grab().toImage();
        QCOMPARE(refresh.pixelColor(1, 14), look::colours(ColorScheme::light).teal);
        w.model->isLoading = false;
        QVERIFY(w.find<QAbstractButton>("Refresh")->hasFocus());
        w.press("Tab");
        QVERIFY(w.find<QAbstractButton>("Apply")->hasFocus());
    }

    void pickerSelects()
    {
        Window w;
        auto* picker = w.find<PopUpButton>("Select Adapter");
        QCOMPARE(picker->itemText(2), u"Office VPN (disconnected)"_s);
        QCOMPARE(w.model->selectedAdapter.value()->serviceName, Text(u"Ethernet"_s));
        w.model->router = Text(u"edited"_s);
        Q_EMIT picker->activated(0); // the same again reads nothing
        QVERIFY(!w.model->isLoading.value());
        Q_EMIT picker->activated(1);
        w.settle();
        QCOMPARE(picker->currentText(), u"Wi-Fi"_s);
        QCOMPARE(w.model->router.value(), Text(u"192.168.1.1"_s));
        QVERIFY(w.find<Badge>("866 Mbps") && w.find<Badge>("Full-duplex") && w.shows("Simulated Wi-Fi Card"));
        QCOMPARE(pickerLabel({.serviceName = u"X"_s, .isEnabled = false}), u"X (disabled)"_s);
        QCOMPARE(speedText(999) + speedText(1000) + speedText(2500), u"999 Mbps1 Gbps2 Gbps"_s);
    }

    void profilesAreLoadedRenamedDeletedAndSaved()
    {
        Window w;
        w.addProfiles();
        QVERIFY(!w.shows("No saved profiles."));
        const auto& presets = w.model->presetStore.presets();
        QTest::mouseMove(w.list()->viewport(), w.row(1));
        QTRY_COMPARE(w.list()->highlight(presets.at(1).id), 1.0);
        QTest::mouseClick(w.list()->viewport(), Qt::LeftButton, {}, w.row(1));
        QCOMPARE(w.model->ipAddress.value(), Text(u"1.1.1.1"_s));
        w.list()->setFocus();
        w.press("Up, Return");
        QCOMPARE(w.model->searchDomains.value(), Text(u"home"_s));

        const auto choose = [&](const QString& entry) {
            QContextMenuEvent asked(QContextMenuEvent::Keyboard, {}, {});
            QApplication::sendEvent(w.list(), &asked);
            const auto* menu = w.list()->findChild<QMenu*>();
            const auto entries = menu->actions();
            (*std::ranges::find(entries, entry, &QAction::text))->trigger();
            delete menu;
        };
        w.model->searchDomains = Text();
        choose(u"Load Profile"_s);
        QCOMPARE(w.model->searchDomains.value(), Text(u"home"_s));
        choose(u"Delete…"_s);
        w.press("Return"); // deletes nothing
        choose(u"Rename…"_s);
        w.press("X");
        w.click("Cancel");
        QCOMPARE(presets.first().name, Text(u"Home WiFi"_s));
        w.press("F2, Space, Return"); // a name of blanks is none
        QVERIFY(w.shows("Rename Profile"));
        w.press("F, Space, Return");
        QCOMPARE(presets.first().name, Text(u" f "_s));
        QCOMPARE(w.list()->currentIndex().row(), 0);

        QTest::mouseMove(w.list()->viewport(), w.row(0));
        for (const char* answer : {"Cancel", "Delete \" f \""}) {
            QCOMPARE(presets.size(), 2);
            w.press("Del");
            w.click(answer);
        }
        QVERIFY(w.list()->hoveredPreset() != presets.first().id);
        QCOMPARE(w.list()->currentIndex().row(), 0);

        for (const char* key : {"Esc", "Return"}) {
            QCOMPARE(presets.size(), 1);
            w.click("Save Profile…");
            w.press(key);
        }
        QCOMPARE(presets.last().name, Text(u"Ethernet"_s));
    }

    void cutNamesHaveAToolTip()
    {
        Window w;
        w.addProfiles();
        const QString name = u"A name that is far too long for the panel that it stands in"_s;
        const AdapterInfo adapter{.serviceName = name, .hardwareName = name + name, .isActive = true};
        w.model->adapters = {adapter};
        w.model->selectedAdapter = adapter;
        w.model->presetStore.upsert({.name = name});
        w.settle();
        const auto toolTipAt = [](QWidget* widget, const QPoint& place) {
            QHelpEvent event(QEvent::ToolTip, place, widget->mapToGlobal(place));
            QApplication::sendEvent(widget, &event);
            return QToolTip::text();
        };
        QVERIFY(toolTipAt(w.list()->viewport(), w.row(0)).isEmpty()); // that one fits
        QCOMPARE(toolTipAt(w.find<PopUpButton>("Select Adapter"), {20, 10}), name);
        QString hardware = toolTipAt(w.find<QLabel>(qUtf8Printable(name + name)), {20, 5});
        QVERIFY(hardware.contains(u'\n')); // or it would not fit on the screen
        QCOMPARE(hardware.remove(u'\n'), name + name);
        QCOMPARE(toolTipAt(w.list()->viewport(), w.row(2)), QString(name + u"\nDHCP · "_s));
    }

    void longListsAreFilteredAtOnce()
    {
        Window w;
        QList<NetworkPreset> presets;
        for (int i = 0; i < 10'000; ++i)
            presets.append({.name = u"Profil Äpfel %1"_s.arg(i)});
        w.model->presetStore.setPresets(presets);
        auto* search = w.find<QLineEdit>("Search profiles");
        search->setText(u"ä"_s);
        Q_EMIT search->textEdited(search->text());
        QCOMPARE(w.list()->count(), 10'000);
        QTest::keyClicks(search, u"PFEL 999"_s);
        QCOMPARE(w.list()->count(), 11);
        QTest::keyClicks(search, u" "_s);
        QVERIFY(w.shows("No match."));
        QVERIFY(w.find<QAbstractButton>("Clear search")->rect().contains(QRect(0, 0, 24, 24)));
        search->setFocus();
        w.press("Esc, Esc");
        QCOMPARE(w.list()->count(), 10'000);
        QVERIFY(w.list()->hasFocus() && w.list()->findChildren<QWidget*>().size() < 20);
        QTest::keyClicks(search, u"99"_s);
        Window::turnWheel(w.find<PopUpButton>("Select Adapter"));
        QVERIFY(w.list()->verticalScrollBar()->value() > 0 && w.list()->hasFocus());
        w.model->savePreset(u"New"_s);
        QVERIFY(search->text().isEmpty());
        const int last = w.list()->currentIndex().row();
        QCOMPARE(last, 10'000);
        QVERIFY(w.list()->viewport()->rect().contains(w.row(last)));
        w.model->presetStore.remove(presets.first().id);
        QCOMPARE(w.list()->currentIndex().row(), last - 1);
    }

    void sheetsKeepTheirWindowFromBeingUsed()
    {
        Window w;
        w.click("Save Profile…");
        auto* sheet = w.find<QDialog>("Save Profile");
        QCOMPARE(QAccessible::queryAccessibleInterface(sheet)->role(), QAccessible::Dialog);
        w.window->resize(800, 600);
        QCOMPARE(sheet->geometry(), w.window->rect());
        auto* picker = w.find<PopUpButton>("Select Adapter");
        for (const QWidget* beneath :
             std::initializer_list<QWidget*>{picker, w.window->findChild<QMenuBar*>()})
            QTest::mouseClick(w.window->windowHandle(), Qt::LeftButton, {},
                              beneath->mapTo(w.window, QPoint(30, 10)));
        w.press("Ctrl+R, Ctrl+W, Alt+F");
        QVERIFY(!w.model->isLoading.value() && w.window->isVisible() && !QApplication::activePopupWidget());
        picker->setFocus();
        QStringList order;
        for (int i = 0; i < 4; ++i) {
            order << nameOf(QApplication::focusWidget());
            w.press("Tab");
        }
        QCOMPARE(order.join(u','), u"Profile name,Cancel,Save,Profile name"_s);
        w.press("Return"); // on Cancel
        QVERIFY(w.model->presetStore.presets().isEmpty() && !w.shows("Save Profile"));

        w.click("Save Profile…");
        w.click("Disable Adapter"); // as assistive technology can
        QVERIFY(w.shows("Disable Ethernet?") && !w.shows("Save Profile"));
        QVERIFY(w.shows("This will disconnect Ethernet from the network."));
        w.press("Return"); // which is no consent
        auto* button = w.find<QAbstractButton>("Disable Adapter");
        button->setFocus();
        w.press("Space, Return");
        QVERIFY(!w.model->isApplying.value() && button->hasFocus());
        w.press("Space, Tab, Return");
        w.finish();
        QVERIFY(!w.model->selectedAdapter.value()->isEnabled && button->hasFocus());
        w.click("Enable Adapter");
        w.finish();
        QVERIFY(w.find<QAbstractButton>("Disable Adapter"));
    }

    void closedWindowComesBackAsItWas()
    {
        Window w;
        w.model->searchDomains = Text(u"not applied"_s);
        w.window->close();
        QVERIFY(!w.window->isVisible());
        MenuBarMenuView menu(*w.model, w.app->appDelegate, w.app->notifications, w.platform);
        const auto entries = menu.actions();
        (*std::ranges::find(entries, u"Keyboard Shortcuts…"_s, &QAction::text))->trigger();
        QVERIFY(w.window->isVisible());
        const auto windows = [](const QString& title) {
            const auto all = QApplication::topLevelWidgets();
            return std::ranges::count_if(
                all, [&](QWidget* window) { return window->isVisible() && window->windowTitle() == title; });
        };
        w.clock->advance(149ms);
        QCoreApplication::processEvents();
        QCOMPARE(windows(u"Keyboard Shortcuts"_s), 0);
        w.clock->advance(1ms);
        QTRY_COMPARE(windows(u"Keyboard Shortcuts"_s), 1);
        for (int i = 0; i < 2; ++i)
            w.app->notifications.post(openHelpNotification);
        QCOMPARE(windows(u"Ardeo IP Config Help"_s), 1);
        QVERIFY(!w.model->isLoading.value()); // nothing is read anew
        QCOMPARE(w.model->searchDomains.value(), Text(u"not applied"_s));

        w.app->appDelegate.hasMenuBarExtra = [] { return false; };
        w.model->selectedAdapter = std::nullopt;
        QAction* open = *std::ranges::find_if(entries, &QAction::isVisible);
        QCOMPARE(open->text(), u"Open Ardeo IP Config"_s);
        w.model->selectedAdapter = AdapterInfo{.serviceName = u"R&D_1 & more"_s};
        QCOMPARE(entries.first()->text(), u"&R&D__1 & more"_s); // which the desktop shows without the first &
        QVERIFY(!entries.first()->isEnabled());
        menu.popup({});
        QTest::keyClick(&menu, Qt::Key_Down);
        QCOMPARE(menu.activeAction(), open);
        menu.close();
        const auto closeNotices = [] {
            int closed = 0;
            for (QWidget* window : QApplication::topLevelWidgets())
                closed += qobject_cast<NoticePanel*>(window) && window->isVisible() && window->close();
            return closed;
        };
        for (const int expected : {1, 0}) { // says why, the first time
            w.window->close();
            QVERIFY(w.window->isVisible() && w.window->isMinimized());
            QCOMPARE(closeNotices(), expected);
            open->trigger();
            QVERIFY(!w.window->isMinimized());
        }
        w.platform.userDefaults->couldNotStore(u"Your profiles could not be saved."_s);
        QCOMPARE(closeNotices(), 1);
    }

    void helpTurnsWithTheKeys()
    {
        FakeClock clock;
        HelpView help(clock);
        ShortcutsView shortcuts(shortcutSections(), clock);
        for (const auto& [page, text] : {std::pair<QWidget*, QString>(&help, u"NetworkManager"_s),
                                         {&shortcuts, u"Ctrl + Shift + I"_s}}) {
            page->resize(page->width(), 300);
            page->show();
            page->activateWindow();
            QVERIFY(QTest::qWaitForWindowActive(page));
            const auto* bar = page->findChild<QScrollArea*>()->verticalScrollBar();
            QTest::keyClick(page->windowHandle(), Qt::Key_End);
            QVERIFY(bar->value() > 0 && bar->value() == bar->maximum());
            QTest::keyClick(page->windowHandle(), Qt::Key_Home);
            QCOMPARE(bar->value(), 0);
            QTest::keyClick(page->windowHandle(), Qt::Key_PageDown);
            QVERIFY(bar->value() > 200 && bar->value() < 290);
            const auto labels = page->findChildren<QLabel*>();
            QCOMPARE(std::ranges::count_if(
                         labels, [wanted = text](QLabel* label) { return label->text().contains(wanted); }),
                     1);
        }
    }

    void whatMovesDoesSoOnlyWhereItIsSeen()
    {
        Window::style()->setReducedMotion(false);
        Window w;
        w.model->applySuccess = true;
        const auto* applied = w.find<TextLabel>("Applied")->parentWidget();
        QTRY_VERIFY(!applied->graphicsEffect());
        w.model->applySuccess = false;
        const auto* fading = qobject_cast<QGraphicsOpacityEffect*>(applied->graphicsEffect());
        QTRY_VERIFY(fading->opacity() < 1);
        w.model->applySuccess = true; // again, while it fades
        QTRY_VERIFY(!applied->graphicsEffect());
        QVERIFY(applied->isVisible());
        w.click("Manually Set IP Address"); // unfolds in its time
        QTRY_COMPARE(w.field("IP Address")->parentWidget()->parentWidget()->y(), 8);
        auto* background = w.window->findChild<NeuralNetworkBackground*>();
        const auto isTicking = [background] {
            return !QAbstractEventDispatcher::instance()->registeredTimers(background).isEmpty();
        };
        QTRY_VERIFY(isTicking());
        for (const auto put :
             {&QWidget::hide, &QWidget::show, &QWidget::showMinimized, &QWidget::showNormal}) {
            (w.window->*put)();
            QTRY_COMPARE(isTicking(), w.window->isVisible() && !w.window->isMinimized());
        }

        const auto ground = [&] { return background->grab().toImage(); };
        Window::style()->setReducedMotion(true);
        QEvent restyled(QEvent::StyleChange);
        QApplication::sendEvent(background, &restyled);
        QVERIFY(!isTicking());
        const QImage light = ground();
        w.clock->advance(100s);
        QCOMPARE(ground(), light);
        QApplication::setPalette(look::palette(ColorScheme::dark));
        QTRY_VERIFY(qGray(ground().pixel(2, 2)) < 64);
        auto* picker = w.find<PopUpButton>("Select Adapter");
        picker->showPopup();
        QCOMPARE(picker->view()->palette().window().color(), look::colours(ColorScheme::dark).control);
        picker->hidePopup();
        QApplication::setPalette(look::palette(ColorScheme::light));
        QVERIFY(background->testAttribute(Qt::WA_TransparentForMouseEvents));
    }

    void everyLanguageIsCompleteAndFits_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<double>("scale");
        for (const char* name : {"brackets", "de-AT", "fr", "es", "ar"})
            QTest::newRow(name) << QString::fromUtf8(name) << 1.0;
        QTest::newRow("large") << u"brackets"_s << 1.5;
    }
    void everyLanguageIsCompleteAndFits()
    {
        QFETCH(const QString, name);
        QFETCH(const double, scale);
        const bool isMarked = name == u"brackets"_s;
        const Remainder remainder(isMarked);
        const Language language({u"xx"_s, name, u"en"_s, u"de"_s});
        QCOMPARE(language.locale().language() == QLocale::English, isMarked);
        QGuiApplication::setLayoutDirection(language.locale().textDirection());
        Window::style()->setTextScale(scale);
        const auto usual = qScopeGuard([] {
            QGuiApplication::setLayoutDirection(Qt::LeftToRight);
            Window::style()->setTextScale(1);
        });
        Window w;
        w.addProfiles();
        w.window->resize(scale > 1 ? 900 : 720, 560);
        const QString longName(80, u'x');
        NetworkAdapterInfo live = w.model->currentConfig.value();
        live.computerName = longName;
        w.model->currentConfig = live;
        QFile machine(w.folder.filePath(u"machine.json"_s));
        QVERIFY(machine.open(QIODevice::ReadOnly));
        const QString data = QString::fromUtf8(machine.readAll()) + w.folder.path() + longName +
                             u"Home WiFi Office 192.168.1.1..."_s;
        const auto check = [&](QWidget* window) {
            settled([&] { return window->sizeHint(); });
            QCOMPARE(faultsOfTexts(window, isMarked, data).join(u'\n'), QString());
        };
        check(w.window);
        MainViewModel& model = *w.model;
        model.ipv4Mode = IPv4Mode::manual;
        model.dnsMode = DNSMode::manual;
        model.router = Text(u"10.0.0"_s);
        w.click(qPrintable(ActionHeader::tr("Apply")));
        w.finish();
        model.applySuccess = true;
        model.waitsFor = LockHolder{.processID = 1};
        model.secondsToConfirm = 5;
        check(w.window);
        const QWidget* field = w.window->findChild<IPAddressField*>();
        const auto left = [&](const QWidget* widget) { return widget->mapTo(w.window, QPoint()).x(); };
        QVERIFY(left(field->findChildren<QLineEdit*>().first()) <
                left(field->findChildren<QLineEdit*>().last()));
        QCOMPARE(left(w.list()) > left(field), name == u"ar"_s);

        const auto checkSheet = [&] {
            check(w.window->findChild<Sheet*>());
            w.window->findChild<Sheet*>()->reject();
            w.settle();
        };
        w.list()->setCurrentIndex(w.list()->model()->index(0, 0));
        for (const Qt::Key key : {Qt::Key_F2, Qt::Key_Delete}) {
            QTest::keyClick(w.list(), key);
            checkSheet();
        }
        for (const QString& button :
             {LeftPanel::tr("Save Profile…"), AdapterPropertiesCard::tr("Disable Adapter")}) {
            w.click(qPrintable(button));
            checkSheet();
        }
        model.adapters = QList<AdapterInfo>();
        model.trouble = std::nullopt;
        check(w.window);

        const auto* bar = w.window->findChild<QMenuBar*>();
        MenuBarMenuView icon(model, w.app->appDelegate, w.app->notifications, w.platform);
        QContextMenuEvent asked(QContextMenuEvent::Keyboard, QPoint(), QPoint());
        QCoreApplication::sendEvent(w.list(), &asked);
        for (const auto& entries : {bar->actions(), icon.actions(), w.list()->findChild<QMenu*>()->actions()})
            QCOMPARE(faultsOfMenu(entries, isMarked).join(u'\n'), QString());
        delete w.list()->findChild<QMenu*>();
        bar->actions().first()->menu()->actions().first()->trigger(); // about the program
        w.app->openWindow(u"help"_s);
        w.app->openWindow(u"shortcuts"_s);
        for (QWidget* window : QApplication::topLevelWidgets()) {
            if (window->isVisible() && !window->windowTitle().isEmpty())
                check(window);
        }
        QCOMPARE(remainder.untranslated, QStringList());
    }
};

QTEST_MAIN(MainWindowTest)
#include "MainWindowTest.moc"
