// How fast dates are found in everyday drafts, language by language. The drafts are those of the tests, which
// ensure that "found" and "ordinary" ones are understood and "missed" ones are not.
#include "reminders/DateDrafts.h"

#include "reminders/LanguageDetection.h"

#include <benchmark/benchmark.h>

namespace {
/// Drafts that begin with a word, so that the grammar accepts none, filled up to 60 characters.
QStringList detectorDrafts(const QString &language)
{
    QStringList drafts;
    for (const DateDrafts::Row &row : DateDrafts::rows(language, QStringLiteral("found")))
        drafts.append((QStringLiteral("x ") + row.draft).leftJustified(60, u'x', true));
    return drafts;
}

void dates(benchmark::State &state, const QString &language)
{
    const DateDetector detector(DateDrafts::clock());
    const QStringList drafts = detectorDrafts(language);
    for (auto _ : state) {
        for (const QString &draft : drafts)
            benchmark::DoNotOptimize(detector.detectDates(draft, LanguageDetection::detect(draft)));
    }
    for (const char *list : {"found", "ordinary", "missed"})
        state.counters[list] = double(DateDrafts::rows(language, QString::fromLatin1(list)).size());
    state.counters["us_per_draft"] = benchmark::Counter(double(drafts.size()) * 1e-6,
        benchmark::Counter::kIsIterationInvariantRate | benchmark::Counter::kInvert);
}

const bool registered = [] {
    for (const QString &language : DateDrafts::languages()) {
        benchmark::RegisterBenchmark(("dates/" + language.toStdString()).c_str(),
            [language](benchmark::State &state) { dates(state, language); })
            ->Unit(benchmark::kMillisecond)
            ->Repetitions(5)
            ->ReportAggregatesOnly();
    }
    return true;
}();
} // namespace
