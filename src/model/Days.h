#pragma once

#include "foundation/Calendar.h"
#include "model/DaySection.h"
#include "model/Note.h"

/// Notes grouped by the calendar day on which they were written.
namespace Days {
/// One section for each day. @p indexes point into @p notes and give the order of the days and of the notes
/// within a day.
[[nodiscard]] QList<DaySection> group(
    const QList<Note> &notes, const QList<qsizetype> &indexes, const Calendar &calendar);

/// The indexes of all notes in the order given.
[[nodiscard]] QList<qsizetype> all(const QList<Note> &notes);
/// The indexes of all notes, newest first; notes of equal time keep their order.
[[nodiscard]] QList<qsizetype> newestFirst(const QList<Note> &notes);
} // namespace Days
