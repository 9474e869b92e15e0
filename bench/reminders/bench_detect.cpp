// Drafts of 60 characters that the grammar accepts, one for each language.
#include "foundation/Regex.h"
#include "reminders/ReminderDetector.h"
#include "support/NoDateDetector.h"
#include "support/TestClock.h"

#include <benchmark/benchmark.h>

namespace {
const QStringList &drafts()
{
    static const QStringList drafts = [] {
        QStringList beginnings{
            QStringLiteral("明天下午3点半 提醒我给房东打电话，问一下房租和水电费 #家 "),
            QStringLiteral("tomorrow at 9:30 am remind me to call the bank #money "),
            QStringLiteral("明日午後3時半に大家さんへ電話して家賃と光熱費をきく #家 "),
            QStringLiteral("내일 오후 3시 반에 집주인에게 전화해서 월세 물어보기 #집 "),
            QStringLiteral("morgen abends um 8 Uhr erinnere mich an die Miete #Haus "),
            QStringLiteral("demain à 14h30 rappelle-moi de payer le loyer #maison "),
            QStringLiteral("mañana a las 9 y media recuerda pagar el alquiler #casa "),
            QStringLiteral("i overmorgen aften kl. 8 husk at betale huslejen #hjem "),
            QStringLiteral("i morgen ettermiddag kl. 3 husk å betale husleien #hjem "),
            QStringLiteral("i morgon kväll klockan 8 kom ihåg att betala hyran #hem "),
            QStringLiteral("morgen om half 9 uur vergeet niet de huur te betalen #huis "),
            QStringLiteral("domani alle 9 e mezza ricordami di pagare la spesa #casa "),
            QStringLiteral("amanhã às 9 e meia não esqueça de pagar o aluguel #casa "),
        };
        for (QString &draft : beginnings)
            draft = (draft + QString(60, u'x')).first(60);
        return beginnings;
    }();
    return drafts;
}

void detect(benchmark::State &state)
{
    const Calendar calendar("Asia/Shanghai");
    const Instant now = at("2026-03-02T02:00:00Z");
    const NoDateDetector detector;
    for (const QString &draft : drafts()) {
        if (!ReminderDetector::detect(draft, now, calendar, detector)) {
            state.SkipWithError(qPrintable(QStringLiteral("not a reminder: ") + draft));
            return;
        }
    }
    for (auto _ : state) {
        for (const QString &draft : drafts())
            benchmark::DoNotOptimize(ReminderDetector::detect(draft, now, calendar, detector));
    }
    state.SetItemsProcessed(state.iterations() * drafts().size());
    state.counters["us_per_draft"] = benchmark::Counter(double(drafts().size()) * 1e-6,
        benchmark::Counter::kIsIterationInvariantRate | benchmark::Counter::kInvert);
}

/// The baseline: the cheapest test for a time of day.
void oneRegexSearch(benchmark::State &state)
{
    const Regex clock(QStringLiteral(R"(\d{1,2}:\d{2})"));
    for (auto _ : state) {
        for (const QString &draft : drafts())
            benchmark::DoNotOptimize(clock.matchesIn(draft));
    }
    state.counters["us_per_draft"] = benchmark::Counter(double(drafts().size()) * 1e-6,
        benchmark::Counter::kIsIterationInvariantRate | benchmark::Counter::kInvert);
}

BENCHMARK(oneRegexSearch)
    ->Name("detect/baseline: one search by a regular expression")
    ->Repetitions(9)
    ->ReportAggregatesOnly();
BENCHMARK(detect)
    ->Name("detect/grammar, mean over thirteen languages")
    ->Repetitions(9)
    ->ReportAggregatesOnly();
} // namespace
