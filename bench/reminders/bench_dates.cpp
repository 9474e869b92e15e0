// How fast dates are found in everyday drafts, language by language. The drafts are those of the tests, which
// ensure that "found" and "ordinary" ones are understood and "missed" ones are not.
#include "reminders/DateDrafts.h"

#include "reminders/LanguageDetection.h"

#include <benchmark/benchmark.h>

namespace {
struct Draft {
    QString text;
    ReminderLanguage language;
};

/// Drafts that begin with a word, so that the grammar accepts none, filled up to 60 characters.
QList<Draft> detectorDrafts(const QString &language)
{
    QList<Draft> drafts;
    for (const DateDrafts::Row &row : DateDrafts::rows(language, QStringLiteral("found"))) {
        const QString text = (QStringLiteral("x ") + row.draft).leftJustified(60, u'x', true);
        drafts.append({text, LanguageDetection::detect(text)});
    }
    return drafts;
}

void dates(benchmark::State &state, const QString &language)
{
    const DateDetector detector(DateDrafts::clock());
    const QList<Draft> drafts = detectorDrafts(language);
    for (auto _ : state) {
        for (const Draft &draft : drafts)
            benchmark::DoNotOptimize(detector.detectDates(draft.text, draft.language));
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
