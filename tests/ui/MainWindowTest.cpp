#include "app/Ardeo_IPConfigApp.h"
#include "app/MenuBarMenuView.h"
#include "fakes/Fakes.h"
#include "platform/simulated/SimulatedPlatform.h"
#include "ui/Card.h"
#include "ui/ConfirmationDialog.h"
#include "ui/ContentView.h"
#include "ui/Controls.h"
#include "ui/FormRow.h"
#include "ui/HelpView.h"
#include "ui/IPAddressField.h"
#include "ui/LeftPanel.h"
#include "ui/PresetList.h"
#include "ui/PushButton.h"
#include "ui/RightPanel.h"
#include "ui/SavePresetSheet.h"
#include "ui/ShortcutsView.h"
#include "ui/TextLabel.h"

#include <QAccessible>
#include <QApplication>
#include <QMenuBar>
#include <QMessageBox>
#include <QSplitter>
#include <QTemporaryDir>
#include <QTest>

using namespace ardeo;
using namespace std::chrono_literals;

namespace
{

QString latin(const char* text)
{
    return QString::fromUtf8(text);
}

/// The main window over a simulated machine of its own.
struct Window {
    QTemporaryDir folder;
    FakeClock* clock = new FakeClock;
    Platform platform =
        simulatedPlatform(folder.filePath(latin("machine.json")), std::unique_ptr<Clock>(clock));
    FakeWorkspace* workspace = new FakeWorkspace;
    std::unique_ptr<Ardeo_IPConfigApp> app;
    std::shared_ptr<MainViewModel> model;
    QPointer<QWidget> window;

    Window()
    {
        platform.workspace.reset(workspace);
        app = std::make_unique<Ardeo_IPConfigApp>(platform);
        model = app->vm;
        window = app->appDelegate.mainWindow;
        app->appDelegate.hasMenuBarExtra = [] { return true; };
        app->appDelegate.applicationDidFinishLaunching();
        settle();
    }
    ~Window()
    {
        const std::weak_ptr<MainViewModel> alive = model;
        model.reset();
        app.reset();
        while (!alive.expired()) {
            clock->advance(10s);
            QCoreApplication::processEvents(QEventLoop::AllEvents, 10);
            QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        }
    }
    Window(const Window&) = delete;
    Window& operator=(const Window&) = delete;

    void settle()
    {
        QVERIFY(QTest::qWaitFor([this] { return !model->isLoading.value(); }));
        QCoreApplication::processEvents();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
    /// Lets the action that runs come to its end.
    void finish()
    {
        QVERIFY(QTest::qWaitFor([this] {
            clock->advance(1s);
            return !model->isApplying.value();
        }));
        settle();
    }
    /// The visible widget of that kind with that name, text or tool tip; null when there is none.
    template <typename Widget>
    Widget* find(const char* name) const
    {
        for (Widget* widget : window->findChildren<Widget*>()) {
            const bool named = widget->accessibleName() == latin(name) || widget->toolTip() == latin(name) ||
                               widget->property("text").toString() == latin(name);
            if (named && widget->isVisible())
                return widget;
        }
        return nullptr;
    }
    void click(const char* name) const { QTest::mouseClick(find<QAbstractButton>(name), Qt::LeftButton); }
    bool shows(const char* text) const { return find<QLabel>(text) != nullptr; }
    IPAddressField* field(const char* name) const { return find<IPAddressField>(name); }
    PresetList* list() const { return window->findChild<PresetList*>(); }
    QPoint row(int i) const { return list()->visualRect(list()->model()->index(i, 0)).center(); }
    void addProfiles() const
    {
        model->presetStore.setPresets(
            {{.name = latin("Home WiFi"), .serviceName = latin("Wi-Fi"), .searchDomains = latin("home")},
             {.name = latin("Office"),
              .ipv4Mode = IPv4Mode::manual,
              .ipAddress = latin("10.1.2.3"),
              .subnetMask = latin("255.0.0.0")}});
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

    void sizesAreAsDesigned()
    {
        Window w;
        w.model->ipv4Mode = IPv4Mode::manual;
        QTRY_VERIFY(w.field("Gateway") && w.find<PushButton>("Apply"));
        auto* splitter = w.window->findChild<QSplitter*>();
        const auto* right = splitter->widget(1);
        const auto* card = w.find<Card>("Set Profile Properties");
        const auto* field = w.field("IP Address");
        const auto at = [&](const QWidget* widget) { return widget->mapTo(right, QPoint()); };
        const auto* refresh = w.find<PushButton>("Refresh");
        const auto* apply = w.find<PushButton>("Apply");
        const struct {
            const char* what;
            int actual;
            int expected;
        } sizes[]{
            {"window", w.window->width(), 900},
            {"window height", w.window->height(), 680},
            {"minimum", w.window->minimumWidth(), 720},
            {"minimum height", w.window->minimumHeight(), 560},
            {"sidebar", splitter->sizes().first(), 260},
            {"sidebar minimum", splitter->widget(0)->minimumWidth(), 240},
            {"sidebar maximum", splitter->widget(0)->maximumWidth(), 300},
            {"detail minimum", right->minimumWidth(), 460},
            {"header top", at(apply).y(), 14},
            {"header right", right->width() - at(apply).x() - apply->width(), 20},
            {"header spacing", at(apply).x() - at(refresh).x() - refresh->width(), 10},
            {"card left", at(card).x(), 20},
            {"card right", right->width() - at(card).x() - card->width(), 20},
            {"card top", at(card).y() - at(apply).y() - apply->height(), 10 + 20},
            {"card gap", at(w.find<Card>("Current Adapter Properties")).y() - at(card).y() - card->height(),
             16},
            {"card padding", at(w.find<RadioButton>("Automatically Set IP Address")).x() - at(card).x(), 16},
            {"indent", at(w.find<FormRow>("")).x() - at(card).x(), 16 + 20},
            {"label column", w.find<TextLabel>("Gateway:")->width(), 120},
            {"row gap", at(w.field("Subnet Mask")).y() - at(field).y() - field->height(), 6},
            {"octet", field->octet(0)->width(), 36},
            {"field padding", field->octet(0)->x(), 8},
            {"info label column", w.find<TextLabel>("Mode:")->width(), 120},
        };
        for (const auto& size : sizes)
            QVERIFY2(size.actual == size.expected,
                     qPrintable(latin("%1: %2").arg(latin(size.what)).arg(size.actual)));
        for (const auto& [by, width] : {std::pair(300, 300), std::pair(-300, 240)}) {
            QWidget* handle = splitter->handle(1);
            QTest::mousePress(handle, Qt::LeftButton);
            QTest::mouseMove(handle, handle->rect().center() + QPoint(by, 0));
            QTest::mouseRelease(handle, Qt::LeftButton);
            QCOMPARE(splitter->widget(0)->width(), width);
        }
    }

    void octetsTakeWhatIsTyped_data()
    {
        QTest::addColumn<QString>("typed");
        QTest::addColumn<int>("octet");
        QTest::addColumn<QString>("value");
        QTest::addColumn<int>("focused");
        QTest::newRow("three digits jump on") << "192" << 0 << "192..." << 1;
        QTest::newRow("two stay") << "19" << 0 << "19..." << 0;
        QTest::newRow("digits run through") << "1921681" << 0 << "192.168.1." << 2;
        QTest::newRow("too large") << "300" << 1 << ".255.." << 2;
        QTest::newRow("letters are dropped") << "25a5" << 2 << "..255." << 3;
        QTest::newRow("sign") << "-1" << 0 << "1..." << 0;
        QTest::newRow("dot") << "1." << 0 << "1..." << 0;
        QTest::newRow("the last one keeps the focus") << "1234" << 3 << "...123" << 3;
        QTest::newRow("pasted") << "<10.0.0.1" << 0 << "100..." << 1;
        QTest::newRow("other digits") << QString::fromUtf8("<٣٤") << 0 << QString::fromUtf8("٣٤...") << 0;
        QTest::newRow("erased") << "12\b\b" << 0 << "..." << 0;
        QTest::newRow("tabs") << "1\t2\t3\t4" << 0 << "1.2.3.4" << 3;
    }
    void octetsTakeWhatIsTyped()
    {
        QFETCH(QString, typed);
        QFETCH(int, octet);
        Observed<Text> value;
        IPAddressField field(value, latin("192.168.1.1"), latin("Gateway:"));
        field.show();
        field.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&field));
        field.octet(octet)->setFocus();
        if (typed.startsWith(u'<')) {
            field.octet(octet)->insert(typed.mid(1));
            Q_EMIT field.octet(octet)->textEdited(field.octet(octet)->text());
        } else {
            for (const QChar c : typed)
                QTest::keyClick(QApplication::focusWidget(),
                                c == u'\b'   ? Qt::Key_Backspace
                                : c == u'\t' ? Qt::Key_Tab
                                             : static_cast<Qt::Key>(c.toUpper().unicode()));
        }
        QTEST(value.value().string(), "value");
        int focused = 0;
        while (focused < 3 && !field.octet(focused)->hasFocus())
            ++focused;
        QTEST(focused, "focused");
    }

    void outsideValuesAreNormalised_data()
    {
        QTest::addColumn<QString>("given");
        QTest::addColumn<QString>("normalised");
        QTest::newRow("short") << "10.1"
                               << "10.1..";
        QTest::newRow("long") << "1.2.3.4.5"
                              << "1.2.3.4";
        QTest::newRow("too large") << "300.1.1.1"
                                   << "255.1.1.1";
        QTest::newRow("good") << "192.168.1.20"
                              << "192.168.1.20";
        QTest::newRow("cleared") << ""
                                 << "...";
    }
    void outsideValuesAreNormalised()
    {
        QFETCH(QString, given);
        Observed<Text> value{Text(latin("9.9.9.9"))};
        const IPAddressField field(value, latin("1..2"), latin("Gateway:"));
        value = Text(given);
        QCOMPARE(value.value(), Text(given)); // not in the middle of an assignment
        QCoreApplication::processEvents();
        QTEST(value.value().string(), "normalised");
        QCOMPARE(field.partPlaceholder(1) + latin("|") + field.partPlaceholder(3), latin("|0"));
    }

    void fieldsExistOnlyWhileTheirSectionIsShown()
    {
        Window w;
        QVERIFY(!w.field("IP Address"));
        w.model->subnetMask = Text();
        w.click("Manually Set IP Address");
        QVERIFY(w.field("IP Address"));
        QTRY_COMPARE(w.model->subnetMask.value(), Text(latin("255.255.255.0")));
        w.model->loadPreset({.ipv4Mode = IPv4Mode::dhcp, .subnetMask = latin("10.1")});
        QVERIFY(!w.field("IP Address"));
        QCoreApplication::processEvents();
        QCOMPARE(w.model->subnetMask.value(), Text(latin("10.1"))); // nobody was there to normalise it
        w.model->loadPreset({.ipv4Mode = IPv4Mode::manual, .subnetMask = latin("255.0.0.0")});
        QCoreApplication::processEvents();
        QCOMPARE(w.model->subnetMask.value(), Text(latin("255.0.0.0")));
        QCOMPARE(w.field("Subnet Mask")->currentParts().front(), latin("255"));
    }

    void controlsFollowTheModel()
    {
        Window w;
        const auto enabled = [&] {
            QStringList names;
            for (const char* name :
                 {"Refresh", "Apply", "Applying…", "Revert", "Renew DHCP", "Disable Adapter",
                  "Enable Adapter", "Save Profile…", "Export profiles to file"}) {
                const auto* button = w.find<QAbstractButton>(name);
                if (button && button->isEnabled())
                    names << latin(name);
            }
            return names.join(u',');
        };
        MainViewModel& m = *w.model;
        QCOMPARE(enabled(), latin("Refresh,Apply,Renew DHCP,Disable Adapter,Save Profile…"));
        m.searchDomains = Text(latin("x"));
        QCOMPARE(enabled(), latin("Refresh,Apply,Renew DHCP,Disable Adapter,Save Profile…"));
        m.isLoading = true;
        QCOMPARE(enabled(), latin("Disable Adapter,Save Profile…"));
        QVERIFY(w.shows("Loading…"));
        m.isLoading = false;
        m.isApplying = true;
        QCOMPARE(enabled(), latin("Refresh,Save Profile…"));
        m.isApplying = false;
        m.ipv4Mode = IPv4Mode::manual;
        w.addProfiles();
        QCOMPARE(
            enabled(),
            latin("Refresh,Apply,Revert,Renew DHCP,Disable Adapter,Save Profile…,Export profiles to file"));
        m.currentConfig = NetworkAdapterInfo{.ipv4Mode = IPv4Mode::manual};
        QVERIFY(!w.find<QAbstractButton>("Renew DHCP") && !w.shows("DHCP Server:") &&
                !w.shows("Computer Name:"));
        m.applyError = Text(latin("Something went wrong."));
        m.applySuccess = true;
        QVERIFY(w.shows("Something went wrong.") && w.shows("Applied"));
        m.selectedAdapter = std::nullopt;
        m.applyError = std::nullopt;
        QCOMPARE(enabled(), latin("Refresh,Revert,Export profiles to file"));
        QVERIFY(w.find<QAbstractButton>("Enable Adapter") && w.shows("Not connected") &&
                !w.shows("Something went wrong."));
        m.adapters = QList<AdapterInfo>();
        QVERIFY(w.shows("No Network Services") && w.shows("No network services found on this Mac."));
        m.isLoading = true;
        QVERIFY(!w.shows("No Network Services"));
    }

    void everyControlHasANameAndARole()
    {
        Window w;
        w.model->ipv4Mode = IPv4Mode::manual;
        w.addProfiles();
        int controls = 0;
        for (QWidget* widget : w.window->findChildren<QWidget*>()) {
            if (!widget->isVisible() || widget->focusPolicy() == Qt::NoFocus || qobject_cast<QLabel*>(widget))
                continue;
            QAccessibleInterface* accessible = QAccessible::queryAccessibleInterface(widget);
            QVERIFY2(!accessible->text(QAccessible::Name).isEmpty(), widget->metaObject()->className());
            QVERIFY(accessible->role() != QAccessible::Client);
            ++controls;
        }
        QVERIFY(controls > 20);
        QCOMPARE(QAccessible::queryAccessibleInterface(w.list())->child(1)->text(QAccessible::Name),
                 latin("Office, Manual · "));
    }

    void tabFollowsTheEye()
    {
        Window w;
        w.model->ipv4Mode = IPv4Mode::manual;
        w.addProfiles();
        w.window->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(w.window.get()));
        QStringList names;
        for (int i = 0; i < 36; ++i) {
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
            const QWidget* focused = QApplication::focusWidget();
            const QString name = focused->accessibleName().isEmpty() ? focused->property("text").toString()
                                                                     : focused->accessibleName();
            if (!qobject_cast<const QLabel*>(focused) && !name.contains(latin(", part ")))
                names << name;
        }
        QCOMPARE(names.first(10).join(u','),
                 latin("Select Adapter,Search profiles,Profiles,Save Profile…,Import profiles from "
                       "file,Export profiles "
                       "to file,Refresh,Apply,Automatically Set IP Address,Automatically Set DNS Address"));
    }

    void pickerSelects()
    {
        Window w;
        auto* picker = w.find<PopUpButton>("Select Adapter");
        QCOMPARE(picker->itemText(2), latin("Office VPN (disconnected)"));
        QCOMPARE(w.model->selectedAdapter.value()->serviceName, Text(latin("Ethernet")));
        w.model->router = Text(latin("edited"));
        Q_EMIT picker->activated(0); // the same again reads nothing
        QVERIFY(!w.model->isLoading.value());
        Q_EMIT picker->activated(1);
        w.settle();
        QCOMPARE(picker->currentText(), latin("Wi-Fi"));
        QCOMPARE(w.model->router.value(), Text(latin("192.168.1.1")));
        QCOMPARE(speedText(2500) + speedText(999), latin("2 Gbps999 Mbps"));
        QVERIFY(w.find<Badge>("866 Mbps") && w.find<Badge>("Full-duplex"));
        QCOMPARE(pickerLabel({.serviceName = latin("X"), .isEnabled = false}), latin("X (disabled)"));
    }

    void profilesAreLoadedRenamedAndDeleted()
    {
        Window w;
        QVERIFY(w.shows("No saved profiles."));
        w.addProfiles();
        QVERIFY(!w.shows("No saved profiles."));
        QTest::mouseMove(w.list()->viewport(), w.row(1));
        QTRY_COMPARE(w.list()->highlight(w.model->presetStore.presets().at(1).id), 1.0);
        QTest::mouseClick(w.list()->viewport(), Qt::LeftButton, {}, w.row(1));
        QCOMPARE(w.model->ipAddress.value(), Text(latin("10.1.2.3")));
        QTest::keyClick(w.list(), Qt::Key_Up);
        QTest::keyClick(w.list(), Qt::Key_Return);
        QCOMPARE(w.model->searchDomains.value(), Text(latin("home")));

        QTest::keyClick(w.list(), Qt::Key_F2);
        auto* sheet = w.window->findChild<ProfileNameSheet*>();
        auto* name = sheet->findChild<QLineEdit*>();
        QCOMPARE(sheet->width(), 320);
        QCOMPARE(name->width(), 260);
        name->selectAll();
        QTest::keyClicks(name, latin("  "));
        QTest::keyClick(name, Qt::Key_Return);
        QVERIFY(sheet->isVisible());
        QTest::keyClicks(name, latin("Flat "));
        QTest::keyClick(name, Qt::Key_Return);
        QCOMPARE(w.model->presetStore.presets().first().name, Text(latin("  Flat ")));
        QVERIFY(!sheet->isVisible());

        QTest::mouseMove(w.list()->viewport(), w.row(0));
        for (const char* answer : {"Cancel", "Delete \"  Flat \""}) {
            QCOMPARE(w.model->presetStore.presets().size(), 2);
            w.settle();
            w.list()->setCurrentIndex(w.list()->model()->index(0, 0));
            QTest::keyClick(w.list(), Qt::Key_Delete);
            w.click(answer);
        }
        QCOMPARE(w.model->presetStore.presets().size(), 1);
        QVERIFY(w.list()->hoveredPreset() != w.model->presetStore.presets().first().id);
    }

    void savingProposesTheServiceName()
    {
        Window w;
        for (const auto key : {Qt::Key_Escape, Qt::Key_Return}) {
            w.click("Save Profile…");
            auto* name = w.window->findChild<ProfileNameSheet*>()->findChild<QLineEdit*>();
            QCOMPARE(name->text(), latin("Ethernet"));
            QTest::keyClick(name, key);
            w.settle();
            QVERIFY(!w.window->findChild<ProfileNameSheet*>());
        }
        QCOMPARE(w.model->presetStore.presets().size(), 1);
    }

    void longListsAreFilteredAtOnce()
    {
        Window w;
        QList<NetworkPreset> presets;
        for (int i = 0; i < 10'000; ++i)
            presets.append({.name = latin("Profil Äpfel %1").arg(i)});
        w.model->presetStore.setPresets(presets);
        auto* search = w.find<QLineEdit>("Search profiles");
        search->setText(latin("ä"));
        Q_EMIT search->textEdited(search->text());
        QCOMPARE(w.list()->count(), 10'000);
        QTest::keyClicks(search, latin("PFEL 999"));
        QCOMPARE(w.list()->count(), 11);
        QTest::keyClicks(search, latin(" "));
        QVERIFY(w.shows("No match."));
        w.click("Clear search");
        QCOMPARE(w.list()->count(), 10'000);
        QVERIFY(w.list()->findChildren<QWidget*>().size() < 20);
    }

    void disablingAsksFirst()
    {
        Window w;
        w.click("Disable Adapter");
        QVERIFY(w.shows("Disable Ethernet?") && w.shows("This will disconnect Ethernet from the network."));
        w.click("Cancel");
        w.settle();
        w.click("Disable Adapter");
        w.click("Disable");
        w.finish();
        QVERIFY(!w.model->selectedAdapter.value()->isEnabled);
        w.click("Enable Adapter");
        w.finish();
        QVERIFY(w.find<QAbstractButton>("Disable Adapter"));
    }

    void applyingFromTheWindowChangesTheMachine()
    {
        Window w;
        w.click("Manually Set IP Address");
        auto* octet = w.field("IP Address")->octet(3);
        octet->setFocus();
        octet->selectAll();
        QTest::keyClicks(octet, latin("77"));
        w.click("Apply");
        QVERIFY(w.find<QAbstractButton>("Applying…"));
        w.finish();
        QTRY_VERIFY(w.shows("Applied"));
        QVERIFY(w.shows("10.20.1.77") && w.shows("Manual") && !w.find<QAbstractButton>("Renew DHCP"));
    }

    void closingDuringAnApplyAndVanishingServicesAreHarmless()
    {
        Window w;
        w.model->applyConfiguration();
        w.app->appDelegate.hideMainWindow();
        w.finish();
        QVERIFY(w.model->applySuccess.value());
        Window other;
        QVERIFY(QFile::remove(other.folder.filePath(latin("machine.json"))));
        other.click("Refresh");
        other.settle();
        QVERIFY(other.shows("No Network Services"));
        QVERIFY(other.model->selectedAdapter.value());
    }

    void menusShowWhatCanBeDone()
    {
        Window w;
        const AdapterInfo on = *w.model->selectedAdapter.value();
        AdapterInfo off = on;
        off.isEnabled = false;
        NetworkAdapterInfo manual;
        manual.ipv4Mode = IPv4Mode::manual;
        const struct {
            std::optional<AdapterInfo> selected;
            NetworkAdapterInfo live;
            bool isApplying;
            bool isLoading;
            QStringList disabled;
        } states[]{
            {on, {}, false, false, {latin("Enable Adapter")}},
            {off, manual, false, false, {latin("Renew DHCP"), latin("Disable Adapter")}},
            {on, {}, true, false, {latin("Apply"), latin("Enable Adapter")}},
            {on, manual, false, true, {latin("Apply"), latin("Renew DHCP"), latin("Enable Adapter")}},
            {std::nullopt,
             {},
             false,
             false,
             {latin("Apply"), latin("Renew DHCP"), latin("Enable Adapter"), latin("Disable Adapter")}},
        };
        for (const auto& state : states) {
            w.model->selectedAdapter = state.selected;
            w.model->currentConfig = state.live;
            w.model->ipv4Mode = IPv4Mode::dhcp; // the form has no say
            w.model->isApplying = state.isApplying;
            w.model->isLoading = state.isLoading;
            QStringList disabled;
            for (const QMenu* menu : w.window->findChild<QMenuBar*>()->findChildren<QMenu*>()) {
                for (const QAction* item : menu->actions()) {
                    if (!item->isSeparator() && !item->isEnabled())
                        disabled.append(item->text());
                }
            }
            QCOMPARE(disabled, state.disabled);
        }
        w.model->isApplying = false;
    }

    void hiddenWindowKeepsWhatItHas()
    {
        Window w;
        bool tray = true;
        w.app->appDelegate.hasMenuBarExtra = [&tray] { return tray; };
        w.model->searchDomains = Text(latin("unapplied"));
        w.window->close();
        QVERIFY(!w.window->isVisible());
        MenuBarMenuView menu(*w.model, w.app->appDelegate, w.app->notifications, w.platform);
        const auto item = [&menu](const char* text) {
            const auto items = menu.actions();
            return *std::ranges::find(items, latin(text), &QAction::text);
        };
        item("Keyboard Shortcuts…")->trigger();
        QVERIFY(w.window->isVisible());
        const auto windows = [](const char* title) {
            return std::ranges::count_if(QApplication::topLevelWidgets(), [title](const QWidget* window) {
                return window->isVisible() && window->windowTitle() == latin(title);
            });
        };
        w.clock->advance(149ms);
        QCoreApplication::processEvents();
        QCOMPARE(windows("Keyboard Shortcuts"), 0);
        w.clock->advance(1ms);
        QTRY_COMPARE(windows("Keyboard Shortcuts"), 1);
        for (int i = 0; i < 2; ++i)
            w.app->notifications.post(openHelpNotification);
        QCOMPARE(windows("Ardeo IP Config Help"), 1);
        QVERIFY(!w.model->isLoading.value());
        QCOMPARE(w.model->searchDomains.value(), Text(latin("unapplied")));

        QCOMPARE(item("Ethernet")->isVisible() && item("10.20.1.42")->isVisible(), true);
        w.model->selectedAdapter = std::nullopt;
        const auto entries = menu.actions();
        const auto first = std::ranges::find_if(entries, &QAction::isVisible);
        QCOMPARE((*first)->text(), latin("Open Ardeo IP Config"));
        item("Start at Login")->trigger();
        QVERIFY(item("Remove from Login Items")->isEnabled());
        item("Network Settings…")->trigger();
        item("Activity Monitor…")->trigger();
        QCOMPARE(w.workspace->opened, (QList{SystemTool::networkSettings, SystemTool::activityMonitor}));

        tray = false;
        const auto closeNotices = [] {
            int closed = 0;
            for (QWidget* window : QApplication::topLevelWidgets())
                closed += qobject_cast<QMessageBox*>(window) && window->isVisible() && window->close();
            return closed;
        };
        for (const int expected : {1, 0}) { // says why, the first time
            w.window->close();
            QVERIFY(w.window->isVisible() && w.window->isMinimized());
            QCOMPARE(closeNotices(), expected);
            item("Open Ardeo IP Config")->trigger();
            QVERIFY(!w.window->isMinimized());
        }
        w.platform.userDefaults->couldNotStore(latin("Your profiles could not be saved."));
        QCOMPARE(closeNotices(), 1);
    }

    void helpIsNeverCutOff()
    {
        FakeClock clock;
        HelpView help(clock);
        ShortcutsView shortcuts(shortcutSections(), clock);
        for (const auto& [page, width] : {std::pair<QWidget*, int>(&help, 620), {&shortcuts, 520}}) {
            page->resize(width, 300);
            page->show();
            QCOMPARE(page->width(), width);
            for (const QLabel* label : page->findChildren<QLabel*>()) {
                const int needed =
                    label->wordWrap() ? label->heightForWidth(label->width()) : label->fontMetrics().height();
                QVERIFY2(label->height() >= needed &&
                             (label->wordWrap() || label->width() >= label->sizeHint().width()),
                         qPrintable(label->text()));
            }
        }
        QCOMPARE(help.findChildren<QLabel*>().size(), 2 + 2 + 1 + 10 * 2 + 1 + 8 * 3);
    }

    void backgroundMovesOnlyWhereItIsSeen()
    {
        auto* style = static_cast<ArdeoStyle*>(QApplication::style());
        style->setReducedMotion(false);
        Window w;
        w.click("Manually Set IP Address"); // unfolds in its time
        QTRY_COMPARE(w.field("IP Address")->parentWidget()->parentWidget()->y(), 8);
        auto* background = w.window->findChild<NeuralNetworkBackground*>();
        QTRY_VERIFY(background->isTicking());
        w.window->hide();
        QTRY_VERIFY(!background->isTicking());
        w.window->show();
        QTRY_VERIFY(background->isTicking());
        w.window->showMinimized();
        QTRY_VERIFY(!background->isTicking());
        w.window->showNormal();
        QTRY_VERIFY(background->isTicking());

        const auto ground = [&] { return background->grab().toImage(); };
        style->setReducedMotion(true);
        QEvent restyled(QEvent::StyleChange);
        QApplication::sendEvent(background, &restyled);
        QVERIFY(!background->isTicking());
        const QImage light = ground();
        w.clock->advance(100s);
        QCOMPARE(ground(), light);
        QApplication::setPalette(look::palette(ColorScheme::dark));
        QTRY_VERIFY(qGray(ground().pixel(2, 2)) < 64);
        QApplication::setPalette(look::palette(ColorScheme::light));
        QVERIFY(background->testAttribute(Qt::WA_TransparentForMouseEvents));
    }
};

QTEST_MAIN(MainWindowTest)
#include "MainWindowTest.moc"
