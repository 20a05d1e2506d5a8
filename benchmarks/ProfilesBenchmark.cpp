#include "SampleProfiles.h"
#include "model/MainViewModel.h"
#include "platform/FileUserDefaults.h"
#include "platform/linux/program/BootTimeClock.h"
#include "platform/simulated/SimulatedPlatform.h"

#include <QTemporaryDir>

#include <benchmark/benchmark.h>

using namespace ardeo;

namespace
{

/// Answers every panel with the same file.
class OneFile final : public FilePanels
{
public:
    explicit OneFile(QString file) : m_file(std::move(file)) {}
    std::optional<QString> askWhereToSave(const QString&, const QString&) override { return m_file; }
    std::optional<QString> askWhatToOpen(const QString&) override { return m_file; }

private:
    QString m_file;
};

/// A model with that many profiles, its preferences and its export in a folder that vanishes with it.
struct Saved {
    explicit Saved(const benchmark::State& state) : profiles(sampleProfiles(state.range(0)))
    {
        platform.filePanels = std::make_unique<OneFile>(folder.filePath(QStringLiteral("export.profiles")));
        model = MainViewModel::create(platform);
        model->presetStore.setPresets(profiles);
        model->exportPresets();
    }
    QTemporaryDir folder;
    QList<NetworkPreset> profiles;
    Platform platform =
        simulatedPlatform(folder.filePath(QStringLiteral("machine.json")), std::make_unique<BootTimeClock>());
    std::shared_ptr<MainViewModel> model;
};

void loadProfiles(benchmark::State& state)
{
    const Saved saved(state);
    for (auto _ : state) {
        const NetworkPresetStore store(*saved.platform.userDefaults);
        if (store.presets().size() != state.range(0))
            state.SkipWithError("not all profiles are there");
    }
    state.SetComplexityN(state.range(0));
}

void saveProfiles(benchmark::State& state)
{
    const Saved saved(state);
    for (auto _ : state)
        saved.model->presetStore.upsert(saved.profiles.last());
    state.SetComplexityN(state.range(0));
}

void exportProfiles(benchmark::State& state)
{
    const Saved saved(state);
    for (auto _ : state) {
        if (!saved.model->exportPresets())
            state.SkipWithError("not exported");
    }
    state.SetComplexityN(state.range(0));
}

/// Into a list that has none of them yet.
void importProfiles(benchmark::State& state)
{
    const Saved saved(state);
    for (auto _ : state) {
        state.PauseTiming();
        saved.model->presetStore.setPresets({});
        state.ResumeTiming();
        saved.model->importPresets();
        if (saved.model->presetStore.presets().size() != state.range(0))
            state.SkipWithError("not all profiles were imported");
    }
    state.SetComplexityN(state.range(0));
}

void sizes(benchmark::internal::Benchmark* benchmark)
{
    benchmark->ArgName("profiles")->RangeMultiplier(10)->Range(100, 100'000)->Unit(benchmark::kMillisecond);
    benchmark->Complexity(benchmark::oN)->MeasureProcessCPUTime()->UseRealTime();
}

BENCHMARK(loadProfiles)->Apply(sizes);
BENCHMARK(saveProfiles)->Apply(sizes);
BENCHMARK(exportProfiles)->Apply(sizes);
BENCHMARK(importProfiles)->Apply(sizes);

} // namespace
