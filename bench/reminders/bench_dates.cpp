// How well and how fast dates are found in everyday drafts, language by language. The drafts are those of the
// tests.
#include "reminders/DateEvaluation.h"

#include <benchmark/benchmark.h>

namespace {
/// Drafts that begin with a word, so that the grammar has none of them, filled up to 60 characters.
QStringList detectorDrafts(const QString &language)
{
    QStringList drafts;
    for (const QString &line : DateEvaluation::lines(language + QStringLiteral("-found.txt"))) {
        const QString draft = u'x' + QStringLiteral(" ") + line.section(QStringLiteral(" | "), 0, 0);
        drafts.append(draft.leftJustified(60, u'x', true));
    }
    return drafts;
}

void dates(benchmark::State &state, const QString &language)
{
    const TestClock clock("2026-03-04T02:00:00Z");
    const DateDetector detector(clock);
    const QStringList drafts = detectorDrafts(language);
    for (auto _ : state) {
        for (const QString &draft : drafts)
            benchmark::DoNotOptimize(detector.detectDates(draft));
    }
    const DateEvaluation::Score score = DateEvaluation::evaluate(language);
    const auto percent = [](int part, int whole) { return 100.0 * part / whole; };
    state.counters["recall_%"] = percent(score.found, score.drafts);
    state.counters["right_moment_%"] = percent(score.rightMoments, score.drafts);
    state.counters["right_content_%"] = percent(score.rightContents, score.drafts);
    state.counters["false_alarm_%"] = percent(score.falseAlarms, score.ordinary);
    state.counters["drafts"] = score.drafts;
    state.counters["ordinary"] = score.ordinary;
    state.counters["us_per_draft"] = benchmark::Counter(double(drafts.size()) * 1e-6,
        benchmark::Counter::kIsIterationInvariantRate | benchmark::Counter::kInvert);
}

const bool registered = [] {
    for (const QString &language : DateEvaluation::languages()) {
        benchmark::RegisterBenchmark(("dates/" + language.toStdString()).c_str(),
            [language](benchmark::State &state) { dates(state, language); })
            ->Unit(benchmark::kMillisecond)
            ->Repetitions(5)
            ->ReportAggregatesOnly();
    }
    return true;
}();
} // namespace
