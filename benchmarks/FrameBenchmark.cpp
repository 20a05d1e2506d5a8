#include "ui/LiteralNetworkDrawing.h"
#include "ui/background/NeuralNetworkDrawing.h"

#include <benchmark/benchmark.h>

using namespace ardeo;

namespace
{

constexpr QSizeF size(640, 680);
/// A frame's share of a second, so that each frame differs from the one before as it does in the window.
constexpr double step = 1.0 / 30;

void frame(benchmark::State& state)
{
    double time = 8e8;
    const auto scale = static_cast<double>(state.range(0));
    QImage screen((size * scale).toSize(), QImage::Format_RGB32);
    for (auto _ : state) {
        QPainter painter(&screen);
        painter.setRenderHint(QPainter::SmoothPixmapTransform);
        painter.scale(scale * networkCell, scale * networkCell);
        painter.drawImage(0, 0,
                          drawNetwork(size, QRectF(QPointF(), size).toAlignedRect(), time, 220, 0.25,
                                      ColorScheme::light, Qt::white));
        time += step;
    }
}

void composition(benchmark::State& state)
{
    double time = 8e8;
    for (auto _ : state) {
        benchmark::DoNotOptimize(drawNetwork(size, QRectF(QPointF(), size).toAlignedRect(), time, 220, 0.25,
                                             ColorScheme::light, Qt::white));
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

BENCHMARK(composition)->Unit(benchmark::kMillisecond);
BENCHMARK(frame)->ArgName("scale")->Arg(1)->Arg(2)->Unit(benchmark::kMillisecond);
BENCHMARK(literalFrameDrawing)
    ->ArgName("scale")
    ->Arg(1)
    ->Arg(2)
    ->Unit(benchmark::kMillisecond)
    ->Iterations(3);

} // namespace
