// How well notes are found by what they mean, how fast, and how much is kept for it.
#include "model/NoteCoding.h"
#include "model/NoteSearch.h"
#include "model/NoteStore.h"
#include "search/SearchEvaluation.h"
#include "support/ManyNotes.h"
#include "support/TestClock.h"

#include <benchmark/benchmark.h>

#include <QTemporaryDir>

#include <cstring>
#include <malloc.h>

namespace {
// How well

void meaning(benchmark::State &state, const QString &scope, SearchEvaluation::Batch batch)
{
    SearchEvaluation::Score score;
    for (auto _ : state)
        score = SearchEvaluation::evaluate(scope, batch);
    const auto percent = [&score](int count) { return 100.0 * count / score.pairs; };
    state.counters["pairs"] = score.pairs;
    state.counters["recall_at_1_%"] = percent(score.first);
    state.counters["recall_at_5_%"] = percent(score.amongFive);
    state.counters["shown_%"] = percent(score.shown);
}

void unrelated(benchmark::State &state)
{
    qsizetype alarms = 0;
    for (auto _ : state)
        alarms = SearchEvaluation::falseAlarms().size();
    state.counters["queries"] = double(SearchEvaluation::lines(QStringLiteral("unrelated.txt")).size());
    state.counters["shows_something_%"] = 100.0 * double(alarms) / state.counters["queries"];
}
BENCHMARK(unrelated)->Name("search/meaning/unrelated")->Iterations(1)->Unit(benchmark::kMillisecond);

const bool registered = [] {
    using SearchEvaluation::Batch;
    const std::pair<const char *, Batch> batches[] = {{"open", Batch::Open}, {"kept_back", Batch::KeptBack},
        {"second", Batch::Second}, {"third", Batch::Third}, {"fourth", Batch::Fourth}};
    for (const auto &[name, batch] : batches) {
        for (const QString &scope : SearchEvaluation::scopes()) {
            benchmark::RegisterBenchmark(("search/meaning/" + scope.toStdString() + "/" + name).c_str(),
                [scope = scope, batch = batch](benchmark::State &state) { meaning(state, scope, batch); })
                ->Iterations(1)
                ->Unit(benchmark::kMillisecond);
        }
    }
    return true;
}();

void sentenceVector(benchmark::State &state)
{
    const QStringList texts = SearchEvaluation::haystack(300);
    size_t next = 0;
    for (auto _ : state)
        benchmark::DoNotOptimize(SearchEvaluation::provider().sentenceVector(texts[qsizetype(next++ % 300)]));
}
BENCHMARK(sentenceVector)
    ->Name("search/sentence_vector")
    ->Unit(benchmark::kMicrosecond)
    ->Repetitions(5)
    ->ReportAggregatesOnly();

// How fast

/// A store of everyday notes: those of the haystack, each a little other.
class Store
{
public:
    explicit Store(int count)
        : m_clock("2026-03-04T02:00:00Z")
        , notes(m_folder.filePath(QStringLiteral("notes.json")), m_clock)
        , search(notes, &SearchEvaluation::provider(), m_clock)
    {
        const QStringList texts = SearchEvaluation::haystack(300);
        QList<Note> made = manyNotes(count);
        for (int i = 0; i < count; ++i) {
            const QString &second = texts[(i / 300 * 7 + i * 3) % 300];
            made[i].text = texts[i % 300] + (i % 4 == 0 ? QStringLiteral("，%1").arg(second) : QString())
                           + QStringLiteral(" %1").arg(i % 1000);
        }
        notes.importNotes(made);
    }

    /// As the timeline asks, but in one slice.
    QList<SemanticHit> matches(const QString &query)
    {
        SemanticMatches matches = search.semanticMatches(query, 20);
        matches.advance();
        return matches.hits();
    }

private:
    QTemporaryDir m_folder;
    TestClock m_clock;

public:
    NoteStore notes;
    NoteSearch search;
};

Store &store(int count)
{
    static std::map<int, std::unique_ptr<Store>> stores;
    auto &made = stores[count];
    if (!made)
        made = std::make_unique<Store>(count);
    return *made;
}

const QString noNoteHas = QStringLiteral("给房东的钱");

/// What any program would have to do: look through all of the folded text once.
void plainScan(benchmark::State &state)
{
    QByteArray all;
    for (const Note &note : store(int(state.range(0))).notes.notes())
        all += note.text.toCaseFolded().toUtf8() + '\n';
    const QByteArray query = noNoteHas.toUtf8();
    for (auto _ : state)
        benchmark::DoNotOptimize(
            memmem(all.constData(), size_t(all.size()), query.constData(), size_t(query.size())));
}

void substringPass(benchmark::State &state)
{
    NoteSearch &search = store(int(state.range(0))).search;
    benchmark::DoNotOptimize(search.daySections(noNoteHas));
    for (auto _ : state)
        benchmark::DoNotOptimize(search.daySections(noNoteHas));
}

void firstUse(benchmark::State &state)
{
    for (auto _ : state) {
        state.PauseTiming();
        Store fresh(int(state.range(0)));
        state.ResumeTiming();
        benchmark::DoNotOptimize(fresh.matches(noNoteHas));
    }
}

void withoutLiteralMatch(benchmark::State &state)
{
    Store &notes = store(int(state.range(0)));
    benchmark::DoNotOptimize(notes.matches(noNoteHas));
    for (auto _ : state)
        benchmark::DoNotOptimize(notes.matches(noNoteHas));
}

void relatedNotes(benchmark::State &state)
{
    Store &of = store(int(state.range(0)));
    qsizetype next = 0;
    benchmark::DoNotOptimize(of.search.relatedNotes(of.notes.notes().front(), 5));
    for (auto _ : state)
        benchmark::DoNotOptimize(of.search.relatedNotes(of.notes.notes()[next++ % 300], 5));
}

/// What the first key press after a change has to work out anew.
void afterChange(benchmark::State &state)
{
    Store &of = store(int(state.range(0)));
    benchmark::DoNotOptimize(of.matches(noNoteHas));
    for (auto _ : state) {
        state.PauseTiming();
        const Note note = of.notes.notes().front();
        of.notes.update(note.id, note.text + u'x');
        state.ResumeTiming();
        benchmark::DoNotOptimize(of.matches(noNoteHas));
    }
}

/// All notes speak of one subject, so that no cosine holds the majority.
void oneSubject(benchmark::State &state)
{
    const QStringList subjects =
        QStringLiteral("牙医 药 医院 感冒 体检 发烧 手术 过敏 眼镜 血压 疫苗 胃").split(u' ');
    QList<SemanticCandidate> notes;
    for (int i = 0; i < int(state.range(0)); ++i) {
        notes.append({QUuid::createUuid(), subjects[i % 12] + u' ' + subjects[i / 12 % 12] + u' '
                                               + subjects[i / 144 % 12] + u' '
                                               + SearchEvaluation::haystack(300)[i * 7 % 300]});
    }
    SearchIndex index;
    index.setProvider(&SearchEvaluation::provider());
    index.setCandidates(notes);
    SemanticMatches(index, noNoteHas, 20).advance();
    for (auto _ : state) {
        index.setBaseline(std::nullopt);
        SemanticMatches(index, noNoteHas, 20).advance();
    }
}

void memory(benchmark::State &state)
{
    Store fresh(int(state.range(0)));
    benchmark::DoNotOptimize(fresh.search.daySections(QString()));
    benchmark::DoNotOptimize(SearchEvaluation::provider().sentenceVector(noNoteHas));
    malloc_trim(0);
    const auto before = mallinfo2();
    for (auto _ : state)
        benchmark::DoNotOptimize(fresh.matches(noNoteHas));
    malloc_trim(0);
    const auto after = mallinfo2();
    const double held = double(after.uordblks + after.hblkhd) - double(before.uordblks + before.hblkhd);
    const double file = double(noteEncoder::encode(fresh.notes.notes()).size());
    state.counters["bytes_per_note"] = held / double(state.range(0));
    state.counters["of_notes.json"] = held / file;
}

#define QUILLET_GROWTH(function, name)                                                                       \
    BENCHMARK(function)                                                                                      \
        ->Name("search/" name)                                                                               \
        ->Arg(1'000)                                                                                         \
        ->Arg(10'000)                                                                                        \
        ->Arg(100'000)                                                                                       \
        ->Unit(benchmark::kMillisecond)
QUILLET_GROWTH(plainScan, "plain_scan")->Repetitions(5)->ReportAggregatesOnly();
QUILLET_GROWTH(substringPass, "substring_pass")->Repetitions(5)->ReportAggregatesOnly();
QUILLET_GROWTH(withoutLiteralMatch, "no_literal_match")->Repetitions(5)->ReportAggregatesOnly();
QUILLET_GROWTH(relatedNotes, "related_notes")->Repetitions(5)->ReportAggregatesOnly();
QUILLET_GROWTH(afterChange, "after_a_change")->Iterations(10);
QUILLET_GROWTH(firstUse, "first_use")->Iterations(3);
QUILLET_GROWTH(memory, "memory")->Iterations(1);
BENCHMARK(oneSubject)
    ->Name("search/one_subject")
    ->Arg(1'000)
    ->Arg(10'000)
    ->Iterations(3)
    ->Unit(benchmark::kMillisecond);
} // namespace
