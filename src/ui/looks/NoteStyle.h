#pragma once

#include "text/NoteHighlighting.h"

#include <QColor>
#include <QFont>
#include <QPalette>

/// The colours and fonts of the panel. Each colour has a value for a light and one for a dark appearance,
/// chosen by the palette that is passed.
namespace NoteStyle {
[[nodiscard]] bool isDark(const QPalette &palette);
/// For what Qt paints itself: fields, menus, dialogs.
[[nodiscard]] QPalette palette(bool isDark);

[[nodiscard]] QColor numberColor(const QPalette &palette);
[[nodiscard]] QColor tagColor(const QPalette &palette);
[[nodiscard]] QColor matchColor(const QPalette &palette);
[[nodiscard]] QColor destructiveColor(const QPalette &palette);

[[nodiscard]] QColor color(const QPalette &palette);     ///< body text
[[nodiscard]] QColor metaColor(const QPalette &palette); ///< times, headers, hints
[[nodiscard]] QColor background(const QPalette &palette);
[[nodiscard]] QColor fieldColor(const QPalette &palette);  ///< the capsule of the text field
[[nodiscard]] QColor quoteGround(const QPalette &palette); ///< behind a quoted note
[[nodiscard]] QColor hover(const QPalette &palette);       ///< behind the row or button under the pointer
[[nodiscard]] QColor hairline(const QPalette &palette);
[[nodiscard]] QColor editing(const QPalette &palette); ///< behind the note being edited
[[nodiscard]] QColor flash(const QPalette &palette);   ///< behind a note that was jumped to

/// The colour of a kind of segment; invalid where the row's own colour applies.
[[nodiscard]] QColor segmentColor(NoteHighlighting::SegmentKind kind, const QPalette &palette);

[[nodiscard]] QFont font();       ///< 13
[[nodiscard]] QFont headerFont(); ///< 13, bold
[[nodiscard]] QFont quoteFont();  ///< 11
} // namespace NoteStyle
