#include "text/NoteHighlighting.h"

#include "foundation/CaseFolding.h"
#include "foundation/Regex.h"

namespace {
/// Group 1 is a tag, group 2 a number: money, a date, a time.
const Regex &pattern()
{
    static const Regex regex(QStringLiteral(R"((#[^\s#@]+)|)"
                                            R"(([¥$€£]\s?\d[\d,]*(?:\.\d+)?)"
                                            R"(|\d{4}[-/年]\d{1,2}[-/月]\d{1,2}日?)"
                                            R"(|\d{1,2}:\d{2}))"));
    return regex;
}
} // namespace

QList<NoteHighlighting::Segment> NoteHighlighting::segments(QStringView text)
{
    QList<Segment> result;
    qsizetype cursor = 0;
    const auto appendPlainUpTo = [&](qsizetype end) {
        if (end > cursor)
            result.append({SegmentKind::Plain, text.sliced(cursor, end - cursor).toString()});
        cursor = end;
    };
    for (const Regex::Match &match : pattern().allMatches(text)) {
        const TextRange range = match.range();
        appendPlainUpTo(range.start);
        const SegmentKind kind = match.group(1) ? SegmentKind::Tag : SegmentKind::Number;
        result.append({kind, text.sliced(range.start, range.length()).toString()});
        cursor = range.end;
    }
    appendPlainUpTo(text.size());
    return result;
}

QList<NoteHighlighting::Segment> NoteHighlighting::segments(QStringView text, QStringView query)
{
    const QStringView trimmed = query.trimmed();
    if (trimmed.isEmpty())
        return segments(text);

    QList<Segment> result;
    qsizetype cursor = 0;
    for (const TextRange &hit : CaseFolding::occurrences(text, trimmed)) {
        result += segments(text.sliced(cursor, hit.start - cursor));
        result.append({SegmentKind::Match, text.sliced(hit.start, hit.length()).toString()});
        cursor = hit.end;
    }
    return result += segments(text.sliced(cursor));
}

QStringList NoteHighlighting::tags(QStringView text)
{
    QStringList result;
    for (const Segment &segment : segments(text)) {
        if (segment.kind == SegmentKind::Tag)
            result.append(segment.text);
    }
    return result;
}
