#pragma once

#include <QList>
#include <QString>

/// Cuts a note's text into the runs that are told apart by colour.
namespace NoteHighlighting {
enum class SegmentKind {
    Plain,
    Number, ///< an amount of money, a calendar date or a clock time
    Tag,    ///< "#" and a word
    Match,  ///< equal to the search term, case aside
};

struct Segment {
    SegmentKind kind = SegmentKind::Plain;
    QString text; ///< exactly as it stands: all segments in a row give the text back
    bool operator==(const Segment &) const = default;
};

[[nodiscard]] QList<Segment> segments(QStringView text);

/// The same with the search term's hits, which are never cut further; what lies between them is cut on its
/// own.
[[nodiscard]] QList<Segment> segments(QStringView text, QStringView query);
} // namespace NoteHighlighting
