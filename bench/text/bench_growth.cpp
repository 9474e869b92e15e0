// How every function of text grows from 50 kB to 1 MB, on ordinary text and on texts made to hurt. Twenty is
// linear.
#include "foundation/CaseFolding.h"
#include "model/NoteFileCodec.h"
#include "model/NoteMarkdown.h"
#include "reminders/LanguageDetection.h"
#include "reminders/ReminderDetector.h"
#include "reminders/dates/DateDetector.h"
#include "support/TestClock.h"
#include "text/LocalFile.h"
#include "text/NoteHighlighting.h"
#include "text/TagCompletion.h"
#include "text/TagEditing.h"
#include "text/WebLink.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <chrono>
#include <climits>
#include <functional>

#include <malloc.h>

using namespace Qt::StringLiterals;

namespace {
struct Kind {
    const char *name;
    QString unit; ///< what the text repeats
};

const QList<Kind> &kinds()
{
    static const QList<Kind> kinds{
        {"prose", u"明天下午3点 call #home ¥12.50, 2026-03-05 at 9:30 & so on\n- eine Straße "_s},
        {"letters", u"a"_s},
        {"digits", u"1"_s},
        {"spaces", u" \t"_s},
        {"hashes", u"#"_s},
        {"short tags", u"#a "_s},
        {"ampersands", u"&#1"_s},
        {"almost dates", u"2024-1-"_s},
        {"sharp s", u"ß"_s},
        {"marks", u"\u0301"_s},
        {"line breaks", u"\r\n>"_s},
        {"almost titles", u"<title"_s},
        {"backslashes", u"\\ "_s},
    };
    return kinds;
}

struct Function {
    const char *name;
    std::function<void(const QString &)> run;
};

template <typename T>
void use(T &&value)
{
    benchmark::DoNotOptimize(value);
}

QList<Function> functions()
{
    static const Calendar calendar("Asia/Shanghai");
    static const Instant now = at("2026-03-02T02:00:00Z");
    static const FixedClock clock(now, calendar);
    static const DateDetector detector(clock);
    return {
        {"fold", [](const QString &text) { use(CaseFolding::folded(text)); }},
        {"segments", [](const QString &text) { use(NoteHighlighting::segments(text)); }},
        {"segments, query", [](const QString &text) { use(NoteHighlighting::segments(text, u"s a")); }},
        {"tags", [](const QString &text) { use(TagEditing::tokens(text)); }},
        {"replacingTag", [](const QString &text) { use(TagEditing::replacingTag(text, u"a", u"bc")); }},
        {"removingTag", [](const QString &text) { use(TagEditing::removingTag(text, u"a")); }},
        {"activeToken", [](const QString &text) { use(TagCompletion::activeToken(text, text.size())); }},
        {"webLink", [](const QString &text) { use(WebLink::detect(u"https://a.example/"_s + text)); }},
        {"localFile", [](const QString &text) { use(LocalFile::detect(u"/"_s + text)); }},
        {"decodeHTML", [](const QString &text) { use(WebLink::decodeHTML(text.toUtf8(), {})); }},
        {"parseTitle",
            [](const QString &text) { use(WebLink::parseTitle(u"<title>"_s + text + u"</title>"_s)); }},
        {"decodeEntities", [](const QString &text) { use(WebLink::decodeEntities(text)); }},
        {"markdownParse", [](const QString &text) { use(NoteMarkdown::parse(text, now, calendar)); }},
        {"markdownExport",
            [](const QString &text) {
                use(NoteMarkdown::exported({{{}, text, text, {}, {}, now}}, calendar));
            }},
        {"decodeImport",
            [](const QString &text) { use(NoteFileCodec::decode(text.toUtf8(), now, calendar)); }},
        {"detect", [](const QString &text) { use(ReminderDetector::detect(text, now, calendar, detector)); }},
        {"detectDates",
            [](const QString &text) { use(detector.detectDates(text, LanguageDetection::detect(text))); }},
        {"detect, a reminder",
            [](const QString &text) {
                use(ReminderDetector::detect(u"tomorrow 9am remind me"_s + text, now, calendar, detector));
            }},
    };
}

double milliseconds(const Function &function, const QString &text, int times)
{
    const auto start = std::chrono::steady_clock::now();
    for (int i = 0; i < times; ++i)
        function.run(text);
    return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start).count();
}

double median(QList<double> values)
{
    std::sort(values.begin(), values.end());
    return values[values.size() / 2];
}

QString textOf(const Kind &kind, qsizetype bytes)
{
    const qsizetype unitBytes = kind.unit.toUtf8().size();
    return kind.unit.repeated(bytes / unitBytes);
}

void growth(benchmark::State &state, const Function &function)
{
    double worst = 0;
    double slowest = 0;
    const char *worstKind = "";
    const char *slowestKind = "";
    for (auto _ : state) {
        for (const Kind &kind : kinds()) {
            const QString small = textOf(kind, 50'000);
            const QString large = textOf(kind, 1'000'000);
            QList<double> ratios;
            QList<double> times;
            for (int round = 0; round < 5; ++round) {
                // Twenty of the one in as long as one of the other, so that what disturbs meets both alike.
                const double ofSmall = milliseconds(function, small, 20) / 20;
                times.append(milliseconds(function, large, 1));
                ratios.append(times.last() / ofSmall);
            }
            if (median(times) > slowest) {
                slowest = median(times);
                slowestKind = kind.name;
            }
            // What takes microseconds tells about the clock, not about growth.
            if (median(times) > 1 && median(ratios) > worst) {
                worst = median(ratios);
                worstKind = kind.name;
            }
        }
    }
    state.counters["growth"] = worst;
    state.counters["slowest_ms"] = slowest;
    state.SetLabel(std::string("grows most with ") + worstKind + ", slowest with " + slowestKind);
}

const bool registered = [] {
    // Memory that is given back to the system and asked for again costs the large texts only, and more than
    // they do.
    mallopt(M_MMAP_THRESHOLD, 1 << 30);
    mallopt(M_TRIM_THRESHOLD, INT_MAX);
    for (const Function &function : functions()) {
        benchmark::RegisterBenchmark((std::string("growth/") + function.name).c_str(),
            [function](benchmark::State &state) { growth(state, function); })
            ->Iterations(1)
            ->Unit(benchmark::kMillisecond);
    }
    return true;
}();
} // namespace
