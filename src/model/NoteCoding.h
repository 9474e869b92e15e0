#pragma once

#include "foundation/Result.h"
#include "model/Note.h"
#include "model/Reminder.h"

#include <QByteArray>
#include <QByteArrayView>
#include <QList>

/// The JSON of the data files and of exports: UTF-8, pretty printed, keys sorted, absent optionals left out.
namespace noteEncoder {
[[nodiscard]] QByteArray encode(const QList<Note> &notes);
[[nodiscard]] QByteArray encode(const QList<Reminder> &reminders);
} // namespace noteEncoder

/// Strict: one element that is not as it should be fails the whole array. Unknown keys are ignored.
namespace noteDecoder {
[[nodiscard]] Result<QList<Note>> decodeNotes(QByteArrayView bytes);
[[nodiscard]] Result<QList<Reminder>> decodeReminders(QByteArrayView bytes);
} // namespace noteDecoder
