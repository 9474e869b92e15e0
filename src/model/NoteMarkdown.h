#pragma once

#include "foundation/Calendar.h"
#include "model/Note.h"

#include <QList>
#include <QString>

/// Notes as a Markdown journal: a heading for each day, a list item with its time for each note, its quote
/// below.
namespace NoteMarkdown {
/// In the order given; ids and links are lost, seconds too.
[[nodiscard]] QString exported(const QList<Note> &notes, const Calendar &calendar);

/// New notes, in the order of the lines. Notes before any heading are of @p fallbackDay; those without a time
/// follow each other by a second from the start of their day on. Never fails: what cannot be read is skipped.
[[nodiscard]] QList<Note> parse(QStringView text, Instant fallbackDay, const Calendar &calendar);
} // namespace NoteMarkdown
