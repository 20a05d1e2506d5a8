// Takes pictures of the window in its typical states, on a simulated machine made for the purpose.
// ardeo-screenshots FOLDER [PERCENT]; needs no display with QT_QPA_PLATFORM=offscreen. QT_SCALE_FACTOR gives
// other scales, PERCENT another size of text, LANGUAGE another language.

#include "app/Ardeo_IPConfigApp.h"
#include "app/MenuBarMenuView.h"
#include "language/Language.h"
#include "platform/linux/desktop/DesktopWorkspace.h"
#include "platform/simulated/SimulatedPlatform.h"
#include "ui/elements/ArdeoStyle.h"
#include "ui/elements/IPAddressField.h"
#include "ui/elements/PushButton.h"
#include "ui/elements/Symbol.h"
#include "ui/panels/ActionHeader.h"
#include "ui/panels/AdapterPropertiesCard.h"
#include "ui/panels/LeftPanel.h"
#include "ui/panels/PresetList.h"
#include "ui/panels/RightPanel.h"
#include "ui/sheets/ConfirmationDialog.h"

#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QMenuBar>
#include <QMouseEvent>
#include <QPainter>
#include <QTemporaryDir>

#include <array>
#include <cstdio>
#include <cstdlib>

using namespace ardeo;

namespace
{

/// A clock that stands still, so that the pictures are the same each time, and whose waits last until they
/// are let go of.
class StillClock final : public Clock
{
public:
    std::chrono::nanoseconds continuousTime() const override { return {}; }
    double referenceTime() const override { return 817'000'123; }
    QFuture<void> sleep(std::chrono::milliseconds) override
    {
        m_sleepers.append(std::make_shared<QPromise<void>>());
        m_sleepers.last()->start();
        return m_sleepers.last()->future();
    }
    void wake()
    {
        for (const auto& sleeper : std::exchange(m_sleepers, {}))
            sleeper->finish();
    }

private:
    QList<std::shared_ptr<QPromise<void>>> m_sleepers;
};

template <typename Condition>
void waitFor(Condition condition)
{
    while (!condition())
        QCoreApplication::processEvents(QEventLoop::AllEvents | QEventLoop::WaitForMoreEvents, 20);
}

void settle(int milliseconds = 400)
{
    QElapsedTimer timer;
    timer.start();
    while (timer.elapsed() < milliseconds)
        QCoreApplication::processEvents(QEventLoop::AllEvents, 10);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

/// One window on a machine of its own.
class Stage
{
public:
    explicit Stage(const QDir& folder, QSize size, const QByteArray& machine = {})
        : m_folder(folder)
        , m_clock(new StillClock)
        , m_platform(platformIn(m_place.filePath(QStringLiteral("machine.json")), machine, m_clock))
        , m_app(m_platform)
        , vm(m_app.vm)
        , m_window(*m_app.appDelegate.mainWindow)
    {
        m_window.resize(size);
        m_window.show();
        waitFor([this] { return !vm->isLoading.value(); });
    }
    ~Stage()
    {
        m_window.hide();
        vm->isApplying = false;
    }
    Stage(const Stage&) = delete;
    Stage& operator=(const Stage&) = delete;

    void addProfiles()
    {
        vm->presetStore.setPresets({
            {.name = QStringLiteral("Office"),
             .serviceName = QStringLiteral("Wi-Fi"),
             .ipv4Mode = IPv4Mode::manual,
             .ipAddress = QStringLiteral("192.168.1.77"),
             .subnetMask = QStringLiteral("255.255.255.0")},
            {.name = QStringLiteral("Home WiFi"), .serviceName = QStringLiteral("Wi-Fi")},
            {.name = QStringLiteral("Lab bench, second floor, behind the oscilloscope"),
             .serviceName = QStringLiteral("Ethernet"),
             .ipv4Mode = IPv4Mode::manual},
            {.name = QStringLiteral("Αίθουσα Датацентр حرم"),
             .serviceName = QStringLiteral("Ethernet"),
             .ipv4Mode = IPv4Mode::manual},
            {.name = QStringLiteral("Customer PLC"),
             .serviceName = QStringLiteral("Ethernet"),
             .ipv4Mode = IPv4Mode::manual},
        });
    }
    template <typename Widget>
    Widget* find(const QString& name)
    {
        for (Widget* widget : m_window.findChildren<Widget*>()) {
            if (widget->accessibleName() == name || widget->property("text").toString() == name)
                return widget;
        }
        return nullptr;
    }
    void click(const QString& button) { find<PushButton>(button)->click(); }
    void hover(int row)
    {
        auto* list = m_window.findChild<PresetList*>();
        const QPointF place = list->visualRect(list->model()->index(row, 0)).center();
        QMouseEvent move(QEvent::MouseMove, place, list->viewport()->mapToGlobal(place), Qt::NoButton, {},
                         {});
        QCoreApplication::sendEvent(list->viewport(), &move);
    }
    IPAddressField* gateway() { return m_window.findChildren<IPAddressField*>().at(2); }
    PresetList* list() { return m_window.findChild<PresetList*>(); }
    StillClock& clock() { return *m_clock; }

    void shoot(const char* name, int settleMilliseconds = 400)
    {
        settle(settleMilliseconds);
        save(m_window.grab(), name);
    }
    /// The window with one menu of its menu bar open.
    void shootMenu(int index, const char* name)
    {
        auto* bar = m_window.findChild<QMenuBar*>();
        QAction* title = bar->actions().at(index);
        bar->setActiveAction(title);
        title->menu()->popup(bar->mapToGlobal(bar->actionGeometry(title).bottomLeft()));
        settle();
        QPixmap picture = m_window.grab();
        QPainter(&picture).drawPixmap(m_window.mapFromGlobal(title->menu()->pos()), title->menu()->grab());
        save(picture, name);
        title->menu()->close();
    }
    void shootMenuBarMenu(const char* name)
    {
        MenuBarMenuView menu(*vm, m_app.appDelegate, m_app.notifications, m_platform);
        menu.popup({});
        settle();
        save(menu.grab(), name);
    }
    /// The window with that identifier and title.
    void shootWindow(const char* id, const QString& title, const char* name)
    {
        m_app.openWindow(QLatin1String(id));
        settle();
        for (QWidget* window : QApplication::topLevelWidgets()) {
            if (window->windowTitle() == title) {
                save(window->grab(), name);
                window->close();
            }
        }
    }

    void save(const QPixmap& picture, const char* name)
    {
        const QString file = m_folder.filePath(QLatin1String(name) + QStringLiteral(".png"));
        picture.save(file);
        std::printf("%s\n", qPrintable(file));
    }

    static Platform platformIn(const QString& file, const QByteArray& machine, StillClock* clock)
    {
        if (!machine.isEmpty()) {
            QFile out(file);
            if (out.open(QIODevice::WriteOnly))
                out.write(machine);
        }
        Platform platform = simulatedPlatform(file, std::unique_ptr<Clock>(clock));
        platform.workspace = std::make_unique<DesktopWorkspace>();
        return platform;
    }

private:
    QDir m_folder;
    QTemporaryDir m_place;
    StillClock* m_clock;
    Platform m_platform;
    Ardeo_IPConfigApp m_app;

public:
    std::shared_ptr<MainViewModel> vm;

private:
    QWidget& m_window;
};

void shootAll(const QDir& folder, const QString& suffix, QSize size)
{
    const auto name = [&suffix](const char* state) { return (QLatin1String(state) + suffix).toUtf8(); };
    Stage stage(folder, size);
    stage.shoot(name("empty-list"));
    stage.addProfiles();
    stage.shoot(name("dhcp"));
    const auto menus = std::to_array({"menu-application", "menu-file", "menu-tools", "menu-help"});
    for (int i = 0; i < static_cast<int>(menus.size()); ++i)
        stage.shootMenu(i, name(menus.at(static_cast<size_t>(i))));
    stage.shootMenuBarMenu(name("menu-bar-menu"));
    stage.shootWindow("help", Ardeo_IPConfigApp::tr("Ardeo IP Config Help"), name("help"));
    stage.shootWindow("shortcuts", Ardeo_IPConfigApp::tr("Keyboard Shortcuts"), name("shortcuts"));
    stage.hover(1);
    stage.shoot(name("hover"));

    stage.vm->ipv4Mode = IPv4Mode::manual;
    stage.vm->ipAddress = Text(QStringLiteral("10.20.0.9"));
    stage.vm->subnetMask = Text(QStringLiteral("255.255.252.0"));
    settle();
    stage.gateway()->octet(1)->setFocus();
    stage.shoot(name("manual"));
    stage.vm->ipAddress = Text(QStringLiteral("10.20..9"));
    stage.click(ActionHeader::tr("Apply"));
    waitFor([&] { return stage.vm->applyError.value().has_value(); });
    stage.shoot(name("error"));
    stage.vm->ipAddress = Text(QStringLiteral("10.20.0.9"));
    stage.click(ActionHeader::tr("Apply"));
    stage.shoot(name("applying"));
    while (stage.vm->isApplying.value()) {
        stage.clock().wake();
        settle(50);
    }
    stage.shoot(name("applied"));

    auto* search = stage.find<QLineEdit>(LeftPanel::tr("Search profiles"));
    search->setText(QStringLiteral("nowhere"));
    Q_EMIT search->textEdited(search->text());
    stage.shoot(name("no-match"));
    stage.click(LeftPanel::tr("Clear search"));
    stage.click(LeftPanel::tr("Save Profile…"));
    stage.shoot(name("save-sheet"));
    stage.click(ConfirmationDialog::tr("Cancel"));
    stage.list()->setCurrentIndex(stage.list()->model()->index(1, 0));
    QKeyEvent rename(QEvent::KeyPress, Qt::Key_F2, {});
    QCoreApplication::sendEvent(stage.list(), &rename);
    stage.shoot(name("rename-sheet"));
    settle(50);
    stage.click(ConfirmationDialog::tr("Cancel"));
    QKeyEvent remove(QEvent::KeyPress, Qt::Key_Delete, {});
    QCoreApplication::sendEvent(stage.list(), &remove);
    stage.shoot(name("delete"));
    stage.click(ConfirmationDialog::tr("Cancel"));
    settle(50);
    stage.click(AdapterPropertiesCard::tr("Disable Adapter"));
    stage.shoot(name("disable"));
    stage.click(RightPanel::tr("Disable"));
    while (stage.vm->isApplying.value()) {
        stage.clock().wake();
        settle(50);
    }
    stage.shoot(name("disabled"));
}

} // namespace

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    const int percent = argc == 3 ? QByteArray(argv[2]).toInt() : 100;
    if (argc < 2 || argc > 3 || percent <= 0) {
        std::fputs("Usage: ardeo-screenshots FOLDER [PERCENT]\n", stderr);
        return 2;
    }
    const Language language;
    QGuiApplication::setLayoutDirection(language.locale().textDirection());
    const QDir folder(QString::fromLocal8Bit(argv[1]));
    folder.mkpath(QStringLiteral("."));
    QFont font(QStringLiteral("Inter"));
    QApplication::setFont(font);
    auto* style = new ArdeoStyle;
    QApplication::setStyle(style);
    style->setTextScale(percent / 100.0);
    QApplication::setFont(look::font(TextStyle::body));
    QApplication::setWindowIcon(applicationIcon());

    const qreal scale = qApp->devicePixelRatio();
    const QString scaled = (scale == 1 ? QString() : QStringLiteral("@%1x").arg(scale)) +
                           (percent == 100 ? QString() : QStringLiteral("-%1").arg(percent));
    for (const ColorScheme scheme : {ColorScheme::light, ColorScheme::dark}) {
        const QString dark = scheme == ColorScheme::dark ? QStringLiteral("-dark") : QString();
        QApplication::setPalette(look::palette(scheme));
        shootAll(folder, dark + scaled, QSize(900, 680));
        {
            Stage small(folder, QSize(720, 560));
            small.addProfiles();
            small.vm->ipv4Mode = IPv4Mode::manual;
            small.vm->dnsMode = DNSMode::manual;
            small.shoot((QStringLiteral("small") + dark + scaled).toUtf8());
        }
        Stage nothing(folder, QSize(900, 680), R"({"computerName": "Empty", "services": []})");
        nothing.shoot((QStringLiteral("nothing") + dark + scaled).toUtf8());
    }
    std::fflush(stdout);
    std::_Exit(0);
}
