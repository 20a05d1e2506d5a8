#include "SampleProfiles.h"
#include "app/Ardeo_IPConfigApp.h"
#include "platform/linux/desktop/DesktopWorkspace.h"
#include "platform/linux/program/BootTimeClock.h"
#include "platform/simulated/SimulatedPlatform.h"
#include "ui/elements/IPAddressField.h"
#include "ui/panels/PresetList.h"

#include <QTemporaryDir>
#include <QTest>

#include <benchmark/benchmark.h>

using namespace ardeo;

namespace
{

/// The main window over a simulated machine, with that many profiles.
struct Window {
    explicit Window(qsizetype profiles)
    {
        model->presetStore.setPresets(sampleProfiles(profiles));
        window.show();
        window.activateWindow();
        settle();
        model->ipv4Mode = IPv4Mode::manual;
        settle();
    }
    void settle()
    {
        do
            QCoreApplication::processEvents();
        while (model->isLoading.value());
        QCoreApplication::processEvents();
    }
    QTemporaryDir folder;
    Platform platform = platformIn(folder);
    Ardeo_IPConfigApp app{platform};
    std::shared_ptr<MainViewModel> model = app.vm;
    QWidget& window = *app.appDelegate.mainWindow;

    static Platform platformIn(const QTemporaryDir& folder)
    {
        Platform platform = simulatedPlatform(folder.filePath(QStringLiteral("machine.json")),
                                              std::make_unique<BootTimeClock>());
        platform.workspace = std::make_unique<DesktopWorkspace>();
        return platform;
    }
};

/// Presses keys and waits for what they led to on the screen.
class Typist final : public QObject
{
public:
    /// Shows is the widget that a key press changes.
    Typist(QWidget* typedIn, QWidget* shows) : m_typedIn(typedIn) { shows->installEventFilter(this); }

    /// Returns when the window has been brought up to date, which happens in one go with the painting.
    void press(Qt::Key key)
    {
        m_painted = false;
        QTest::sendKeyEvent(QTest::Click, m_typedIn, key, QString(QChar(key).toLower()), Qt::NoModifier);
        while (!m_painted)
            QCoreApplication::processEvents(QEventLoop::AllEvents | QEventLoop::WaitForMoreEvents);
    }
    bool eventFilter(QObject*, QEvent* event) override
    {
        m_painted = m_painted || event->type() == QEvent::Paint;
        return false;
    }

private:
    QWidget* m_typedIn;
    bool m_painted = false;
};

void typeInAnOctet(benchmark::State& state)
{
    Window window(state.range(0));
    QLineEdit* octet = window.window.findChild<IPAddressField*>()->octet(3);
    octet->setFocus();
    Typist typist(octet, octet);
    int digit = 0;
    for (auto _ : state) {
        state.PauseTiming();
        octet->selectAll();
        window.settle();
        state.ResumeTiming();
        digit = digit % 9 + 1;
        typist.press(Qt::Key(Qt::Key_0 + digit));
        if (!window.model->ipAddress.value().string().endsWith(QString::number(digit)))
            state.SkipWithError("nothing was typed");
    }
}

/// The letters of a word one after the other, then anew; each key press counts.
void filterProfiles(benchmark::State& state)
{
    Window window(state.range(0));
    QLineEdit* search = nullptr;
    for (QLineEdit* field : window.window.findChildren<QLineEdit*>()) {
        if (field->accessibleName() == QStringLiteral("Search profiles"))
            search = field;
    }
    search->setFocus();
    const auto* list = window.window.findChild<PresetList*>();
    Typist typist(search, list->viewport());
    constexpr std::array word{Qt::Key_B, Qt::Key_Udiaeresis, Qt::Key_R, Qt::Key_O};
    size_t letter = 0;
    for (auto _ : state) {
        typist.press(word.at(letter++));
        if (letter < word.size())
            continue;
        state.PauseTiming();
        if (list->count() != state.range(0) / 2)
            state.SkipWithError("the list is not filtered");
        search->selectAll();
        window.settle();
        letter = 0;
        state.ResumeTiming();
    }
}

BENCHMARK(typeInAnOctet)->ArgName("profiles")->Arg(10'000)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(filterProfiles)
    ->ArgName("profiles")
    ->Arg(100)
    ->Arg(1000)
    ->Arg(10'000)
    ->Arg(100'000)
    ->Unit(benchmark::kMillisecond)
    ->UseRealTime();

} // namespace
