#pragma once

#include "foundation/ByteSink.h"
#include "foundation/Result.h"
#include "model/Note.h"
#include "model/Reminder.h"

#include <QByteArray>
#include <QByteArrayView>
#include <QList>

/// The JSON of the data files and of exports: UTF-8, pretty printed, keys sorted, absent optionals left out.
namespace noteEncoder {
void encode(const QList<Note> &notes, const ByteSink &sink);
void encode(const QList<Reminder> &reminders, const ByteSink &sink);

/// The same, as one byte array.
template <typename Record>
[[nodiscard]] QByteArray encode(const QList<Record> &records)
{
    QByteArray bytes;
    encode(records, [&bytes](QByteArrayView piece) { bytes.append(piece); });
    return bytes;
}
} // namespace noteEncoder

/// Strict: one invalid element fails the whole array. Unknown keys are ignored.
namespace noteDecoder {
[[nodiscard]] Result<QList<Note>> decodeNotes(QByteArrayView bytes);
[[nodiscard]] Result<QList<Reminder>> decodeReminders(QByteArrayView bytes);
} // namespace noteDecoder
