#pragma once

#include "foundation/Calendar.h"
#include "model/Note.h"

#include <QList>
#include <QString>

/// Notes as a Markdown journal: a heading for each day, a list item with the time for each note, its quote
/// below it.
namespace NoteMarkdown {
/// In the order given. Ids, links and seconds are not exported.
[[nodiscard]] QString exported(const QList<Note> &notes, const Calendar &calendar);

/// New notes, in the order of the lines. Notes before the first heading belong to @p fallbackDay; those
/// without a time are one second apart, from the start of their day. Never fails: lines it cannot read are
/// skipped.
[[nodiscard]] QList<Note> parse(QStringView text, Instant fallbackDay, const Calendar &calendar);
} // namespace NoteMarkdown
