// Reading and writing 100,000 notes, each beside the least that any program would have to do.
#include "model/NoteCoding.h"
#include "model/NoteMarkdown.h"
#include "support/ManyNotes.h"
#include "text/NoteHighlighting.h"
#include "text/TagEditing.h"

#include <benchmark/benchmark.h>

#include <cstring>

#include <simdjson.h>

namespace {
const QList<Note> &notes()
{
    static const QList<Note> notes = manyNotes(100'000);
    return notes;
}

const QByteArray &json()
{
    static const QByteArray json = noteEncoder::encode(notes());
    return json;
}

void processed(benchmark::State &state, qsizetype bytes)
{
    state.SetBytesProcessed(int64_t(state.iterations()) * bytes);
}

void domParse(benchmark::State &state)
{
    for (auto _ : state) {
        simdjson::dom::parser parser;
        simdjson::dom::element root;
        if (parser.parse(json().constData(), size_t(json().size())).get(root) != simdjson::SUCCESS)
            state.SkipWithError("not JSON");
    }
    processed(state, json().size());
}

void decodeNotes(benchmark::State &state)
{
    for (auto _ : state) {
        auto decoded = noteDecoder::decodeNotes(json());
        state.PauseTiming(); // a start keeps its notes
        decoded = Failure{};
        state.ResumeTiming();
    }
    processed(state, json().size());
}

/// The strings of all notes in the order in which they are written, as UTF-8.
QList<QByteArray> writtenStrings()
{
    QList<QByteArray> strings;
    for (const Note &note : notes()) {
        strings.append("2026-03-01T00:00:00Z");
        strings.append(note.id.toByteArray(QUuid::WithoutBraces));
        for (const auto &text : {note.link, note.quote, std::optional(note.text)}) {
            if (text)
                strings.append(text->toUtf8());
        }
    }
    return strings;
}

void copyAndEscape(benchmark::State &state)
{
    const QList<QByteArray> strings = writtenStrings();
    constexpr char key[] = ",\n    \"createdAt\" : \"";
    QByteArray out(json().size() * 2, Qt::Uninitialized);
    for (auto _ : state) {
        char *to = out.data();
        for (const QByteArray &string : strings) {
            std::memcpy(to, key, sizeof key - 1);
            to += sizeof key - 1;
            for (const char byte : string) {
                if (byte == '"' || byte == '\\' || byte == '/' || uchar(byte) < 0x20)
                    *to++ = '\\';
                *to++ = byte;
            }
            *to++ = '"';
        }
        benchmark::DoNotOptimize(to);
    }
    processed(state, json().size());
}

void encodeNotes(benchmark::State &state)
{
    qsizetype written = 0;
    for (auto _ : state) {
        noteEncoder::encode(notes(), [&written](QByteArrayView piece) { written += piece.size(); });
        benchmark::DoNotOptimize(written);
    }
    processed(state, json().size());
}

void markdownParse(benchmark::State &state)
{
    const Calendar calendar("Asia/Shanghai");
    const QString text = NoteMarkdown::exported(notes(), calendar);
    for (auto _ : state)
        benchmark::DoNotOptimize(NoteMarkdown::parse(text, notes().first().createdAt, calendar));
    processed(state, text.size() * 2);
}

template <auto function>
void ofEachNote(benchmark::State &state)
{
    qsizetype units = 0;
    for (const Note &note : notes())
        units += note.text.size();
    for (auto _ : state) {
        for (const Note &note : notes())
            benchmark::DoNotOptimize(function(note.text));
    }
    processed(state, units * 2);
    state.SetItemsProcessed(state.iterations() * notes().size());
}

constexpr auto segments = [](const QString &text) { return NoteHighlighting::segments(text); };
constexpr auto tags = [](const QString &text) { return TagEditing::tokens(text); };
constexpr auto matches = [](const QString &text) { return NoteHighlighting::segments(text, u"ein"); };

void medians(benchmark::internal::Benchmark *benchmark)
{
    benchmark->Unit(benchmark::kMillisecond)->Repetitions(9)->ReportAggregatesOnly();
}

BENCHMARK(domParse)->Name("decode/baseline: simdjson's DOM of 100,000 notes")->Apply(medians);
BENCHMARK(decodeNotes)->Name("decode/100,000 notes")->Apply(medians);
BENCHMARK(copyAndEscape)->Name("encode/baseline: copy and escape 100,000 notes")->Apply(medians);
BENCHMARK(encodeNotes)->Name("encode/100,000 notes")->Apply(medians);
BENCHMARK(markdownParse)->Name("markdown/100,000 notes")->Apply(medians);
BENCHMARK(ofEachNote<segments>)->Name("segments/100,000 notes")->Apply(medians);
BENCHMARK(ofEachNote<matches>)->Name("segments/100,000 notes with a query")->Apply(medians);
BENCHMARK(ofEachNote<tags>)->Name("tags/100,000 notes")->Apply(medians);
} // namespace
