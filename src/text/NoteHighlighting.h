#pragma once

#include <QList>
#include <QString>
#include <QStringList>

/// Divides a note's text into segments that are shown in different colours.
namespace NoteHighlighting {
enum class SegmentKind {
    Plain,
    Number, ///< an amount of money, a calendar date or a clock time
    Tag,    ///< "#" and a word
    Match,  ///< equal to the search term, case aside
};

struct Segment {
    SegmentKind kind = SegmentKind::Plain;
    QString text; ///< unchanged: the segments of a text, concatenated, equal it
    bool operator==(const Segment &) const = default;
};

[[nodiscard]] QList<Segment> segments(QStringView text);

/// The same with the hits of the search term, each as one segment. The text between two hits is divided as if
/// it were a text by itself.
[[nodiscard]] QList<Segment> segments(QStringView text, QStringView query);

/// The texts of the tags, in text order, with their "#".
[[nodiscard]] QStringList tags(QStringView text);
} // namespace NoteHighlighting
