#pragma once

#include "foundation/Calendar.h"
#include "foundation/Result.h"
#include "model/Note.h"

#include <QByteArrayView>
#include <QList>

namespace NoteFileCodec {
/// The notes of an import file: JSON in the form of the data files, or else Markdown, whose notes without a
/// date belong to the day of @p now. Fails with "unrecognizedFormat" if it is not such JSON and, read as
/// Markdown, contains no note.
[[nodiscard]] Result<QList<Note>> decode(QByteArrayView bytes, Instant now, const Calendar &calendar);
} // namespace NoteFileCodec
