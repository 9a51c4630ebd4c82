// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

// Measures the figures that are promised and prints each on a line of its own. Exits with 1 where a
// goal is missed.

#include "figures.h"

#include <QApplication>
#include <QLoggingCategory>

#include <benchmark/benchmark.h>

#include <cstdio>
#include <string>

namespace {

enum class Goal { AtLeast, AtMost, None };

struct Figure {
    const char *name;
    Ratio (*measure)();
    Goal goal;
    double bound;

    bool isMetBy(double value) const
    {
        return goal == Goal::None || (goal == Goal::AtLeast ? value >= bound : value <= bound);
    }
};

const Figure figures[] = {
    {"memory of thirty plots less one / 250 MB", memoryOfThirtyPlots, Goal::AtMost, 1},
    {"memory after a load less 60 MB / series", memoryAgainstSeries, Goal::AtMost, 1.25},
    {"reading, plain reader / reader", readingPlainlyAgainstReading, Goal::AtLeast, 10},
    {"reading, reader / converting alone", readingAgainstConverting, Goal::AtMost, 1.5},
    {"phasors of 20, computed / transforms alone", [] { return phasorsAgainstTransforms(20); },
        Goal::AtMost, 1.1},
    {"phasors of 80, computed / transforms alone", [] { return phasorsAgainstTransforms(80); },
        Goal::AtMost, 1.1},
    {"phasors of 400, computed / transforms alone", [] { return phasorsAgainstTransforms(400); },
        Goal::AtMost, 1.1},
    {"drawing four phasor panels / a frame", panelsAgainstFrame, Goal::AtMost, 1},
    {"measuring at a dragged cursor / a frame", measuringAgainstFrame, Goal::AtMost, 1},
    {"events of 592 channels, 1,000,000 samples / a second", openingEventsAgainstGoal, Goal::AtMost,
        1},
    {"writing, plain writer / writer", writingPlainlyAgainstWriting, Goal::AtLeast, 10},
    {"converting binary data / 200 MB/s", convertingAgainstGoal, Goal::AtLeast, 1},
    {"recolouring a picture / a plain pass", recolouringAgainstAPass, Goal::AtMost, 5},
    {"redrawing, 1,000,000 samples / 2,000",
        [] { return redrawingAgainstRedrawing(1000000, 2000); }, Goal::AtMost, 5},
    {"redrawing, 10,000,000 samples / 1,000,000",
        [] { return redrawingAgainstRedrawing(10000000, 1000000); }, Goal::AtMost, 1.2},
    {"redrawing, with a step back in time / without", redrawingWithAStepBackAgainstWithout,
        Goal::AtMost, 2},
    {"zooming thirty plots / one", zoomingThirtyPlotsAgainstOne, Goal::AtMost, 36},
    {"drawing a trace, in full / thinned", drawingInFullAgainstThinned, Goal::AtLeast, 40},
    {"redrawing / a move of the pointer", redrawingAgainstPointing, Goal::None, 0},
};

std::string result(const Figure &figure, const Ratio &ratio)
{
    char text[120];
    const char *const verdict = figure.isMetBy(ratio.value()) ? "" : ", MISSED";
    if (figure.goal == Goal::None)
        std::snprintf(text, sizeof text, "%.2f (no goal; %.4g / %.4g %s)", ratio.value(),
            ratio.numerator, ratio.denominator, ratio.unit);
    else
        std::snprintf(text, sizeof text, "%.2f (goal at %s %g%s; %.4g / %.4g %s)", ratio.value(),
            figure.goal == Goal::AtLeast ? "least" : "most", figure.bound, verdict, ratio.numerator,
            ratio.denominator, ratio.unit);
    return text;
}

class LineReporter : public benchmark::BenchmarkReporter {
public:
    bool ReportContext(const Context & /*context*/) override { return true; }
    void ReportRuns(const std::vector<Run> &runs) override
    {
        for (const Run &run : runs)
            std::printf("%s: %s\n", run.run_name.function_name.c_str(), run.report_label.c_str());
        std::fflush(stdout);
    }
};

} // namespace

int main(int argc, char **argv)
{
    bool isEveryGoalMet = true;
    for (const Figure &figure : figures) {
        const auto run = [&isEveryGoalMet, &figure](benchmark::State &state) {
            while (state.KeepRunning()) {
                const Ratio ratio = figure.measure();
                state.SetLabel(result(figure, ratio));
                isEveryGoalMet = isEveryGoalMet && figure.isMetBy(ratio.value());
            }
        };
        benchmark::RegisterBenchmark(figure.name, run)->Iterations(1);
    }
    // The platform without a display warns whenever a plot grabs the keyboard.
    QLoggingCategory::setFilterRules(QStringLiteral("default.warning=false"));
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
        return 2;
    LineReporter reporter;
    benchmark::RunSpecifiedBenchmarks(&reporter);
    benchmark::Shutdown();
    return isEveryGoalMet ? 0 : 1;
}
