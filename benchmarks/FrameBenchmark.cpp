#include "ui/LiteralNetworkDrawing.h"

#include <benchmark/benchmark.h>

using namespace ardeo;

namespace
{

constexpr QSizeF size(640, 680);
/// A frame's share of a second, so that each frame differs from the one before as it does in the window.
constexpr double step = 1.0 / 30;

void frame(benchmark::State& state)
{
    NeuralNetworkRenderer renderer(220, 0.25);
    double time = 8e8;
    const auto scale = static_cast<double>(state.range(0));
    for (auto _ : state) {
        renderer.compose(size, time, scale, QRect(QPoint(), size.toSize()));
        benchmark::DoNotOptimize(
            renderer.picture({QPoint(), (size * scale).toSize()}, ColorScheme::light, Qt::white));
        time += step;
    }
}

void literalFrameDrawing(benchmark::State& state)
{
    double time = 8e8;
    for (auto _ : state) {
        benchmark::DoNotOptimize(
            literalFrame(size, time, ColorScheme::light, static_cast<double>(state.range(0))));
        time += step;
    }
}

BENCHMARK(frame)->ArgName("scale")->Arg(1)->Arg(2)->Unit(benchmark::kMillisecond);
BENCHMARK(literalFrameDrawing)
    ->ArgName("scale")
    ->Arg(1)
    ->Arg(2)
    ->Unit(benchmark::kMillisecond)
    ->Iterations(3);

} // namespace
