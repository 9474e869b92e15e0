#include "text/NoteHighlighting.h"

#include "foundation/CaseFolding.h"
#include "foundation/Regex.h"
#include "text/TagEditing.h"

#include <algorithm>

namespace {
using NoteHighlighting::Segment;
using NoteHighlighting::SegmentKind;

/// The ranges of the text as segments of one kind, and what is between them as @p between divides it.
QList<Segment> divided(QStringView text, const QList<TextRange> &ranges, SegmentKind kind,
    QList<Segment> (*between)(QStringView))
{
    QList<Segment> result;
    qsizetype cursor = 0;
    for (const TextRange range : ranges) {
        result += between(text.sliced(cursor, range.start - cursor));
        result.append({kind, text.sliced(range.start, range.length()).toString()});
        cursor = range.end;
    }
    return result += between(text.sliced(cursor));
}

QList<Segment> plain(QStringView text)
{
    return text.isEmpty() ? QList<Segment>() : QList<Segment>{{SegmentKind::Plain, text.toString()}};
}

QList<Segment> withoutTags(QStringView text)
{
    // Amounts of money, calendar dates and clock times.
    static const Regex number(QStringLiteral(R"([¥$€£]\s?\d[\d,]*(?:\.\d+)?)"
                                             R"(|\d{4}[-/年]\d{1,2}[-/月]\d{1,2}日?)"
                                             R"(|\d{1,2}:\d{2})"));
    // Each match has one of these. Most texts have none and need no matcher.
    constexpr QStringView marks = u"¥$€£-/年:";
    if (std::none_of(text.begin(), text.end(), [marks](QChar unit) { return marks.contains(unit); }))
        return plain(text);
    QList<TextRange> numbers;
    for (const Regex::Match &match : number.allMatches(text))
        numbers.append(match.range());
    return divided(text, numbers, SegmentKind::Number, plain);
}
} // namespace

QList<Segment> NoteHighlighting::segments(QStringView text)
{
    QList<TextRange> tags;
    for (const TagEditing::Token &tag : TagEditing::tokens(text))
        tags.append(tag.range);
    return divided(text, tags, SegmentKind::Tag, withoutTags);
}

QList<Segment> NoteHighlighting::segments(QStringView text, QStringView query)
{
    // A blank query has no occurrences.
    return divided(text, CaseFolding::occurrences(text, query.trimmed()), SegmentKind::Match, segments);
}

QStringList NoteHighlighting::tags(QStringView text)
{
    QStringList tags;
    for (const TagEditing::Token &tag : TagEditing::tokens(text))
        tags.append(tag.text);
    return tags;
}
