#include "text/NoteHighlighting.h"

#include "foundation/CaseFolding.h"
#include "foundation/Regex.h"
#include "text/TagEditing.h"

#include <algorithm>

namespace {
using NoteHighlighting::SegmentKind;

/// Amounts of money, calendar dates and clock times. Neither holds a "#", so that no match reaches into a
/// tag.
const Regex &numberPattern()
{
    static const Regex regex(QStringLiteral(R"([¥$€£]\s?\d[\d,]*(?:\.\d+)?)"
                                            R"(|\d{4}[-/年]\d{1,2}[-/月]\d{1,2}日?)"
                                            R"(|\d{1,2}:\d{2})"));
    return regex;
}

void appendPlain(QStringView text, QList<NoteHighlighting::Segment> &out)
{
    if (!text.isEmpty())
        out.append({SegmentKind::Plain, text.toString()});
}

void appendWithoutTags(QStringView text, QList<NoteHighlighting::Segment> &out)
{
    // Each match has one of these. Most texts have none and need no matcher.
    constexpr QStringView marks = u"¥$€£-/年:";
    if (std::none_of(text.begin(), text.end(), [marks](QChar unit) { return marks.contains(unit); }))
        return appendPlain(text, out);
    qsizetype cursor = 0;
    for (const Regex::Match &match : numberPattern().allMatches(text)) {
        const TextRange range = match.range();
        appendPlain(text.sliced(cursor, range.start - cursor), out);
        out.append({SegmentKind::Number, text.sliced(range.start, range.length()).toString()});
        cursor = range.end;
    }
    appendPlain(text.sliced(cursor), out);
}
} // namespace

QList<NoteHighlighting::Segment> NoteHighlighting::segments(QStringView text)
{
    QList<Segment> result;
    qsizetype cursor = 0;
    for (const TagEditing::Token &tag : TagEditing::tokens(text)) {
        appendWithoutTags(text.sliced(cursor, tag.range.start - cursor), result);
        result.append({SegmentKind::Tag, tag.text});
        cursor = tag.range.end;
    }
    appendWithoutTags(text.sliced(cursor), result);
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
    QStringList tags;
    for (const TagEditing::Token &tag : TagEditing::tokens(text))
        tags.append(tag.text);
    return tags;
}
