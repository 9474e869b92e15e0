#pragma once

#include "foundation/Calendar.h"
#include "foundation/Instant.h"
#include "foundation/TextRange.h"
#include "reminders/DateDetecting.h"
#include "reminders/ParsedReminder.h"
#include "reminders/ReminderLanguage.h"

#include <QList>
#include <QString>

#include <optional>

/// Answers on every keystroke whether a draft is a reminder: by the grammar first, else by a date found in
/// it.
namespace ReminderDetector {
/// A time that has passed is returned as it is; what to make of it is the caller's matter.
[[nodiscard]] std::optional<ParsedReminder> detect(
    QStringView text, Instant now, const Calendar &calendar, const DateDetecting &detector);

/// The reminder's text when dates stood within the draft: the text without the ranges, trigger phrases and
/// edge punctuation; the whole text when nothing else is left.
[[nodiscard]] QString mergedContent(QStringView text, QList<TextRange> ranges, ReminderLanguage language);

/// A day without a time of day reminds at 09:00.
[[nodiscard]] Instant normalizePureDate(Instant date, const Calendar &calendar);
} // namespace ReminderDetector
