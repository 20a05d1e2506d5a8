// Everything that is measured within one process. Needs no display with QT_QPA_PLATFORM=offscreen. Takes
// Google Benchmark's arguments.

#include "ui/elements/ArdeoStyle.h"
#include "ui/elements/Style.h"

#include <QApplication>

#include <benchmark/benchmark.h>
#include <cstdio>
#include <cstdlib>

int main(int argc, char** argv)
{
    const QApplication application(argc, argv);
    auto* style = new ardeo::ArdeoStyle;
    // The background's frames and the transitions are measured by themselves.
    style->setReducedMotion(true);
    QApplication::setStyle(style);
    QApplication::setPalette(ardeo::look::palette(ardeo::ColorScheme::light));
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
        return 2;
    benchmark::RunSpecifiedBenchmarks();
    std::fflush(stdout);
    std::_Exit(0);
}
