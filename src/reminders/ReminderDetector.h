#pragma once

#include "foundation/Calendar.h"
#include "foundation/Clock.h"
#include "foundation/Instant.h"
#include "foundation/TextRange.h"
#include "reminders/DateDetecting.h"
#include "reminders/ParsedReminder.h"
#include "reminders/ReminderLanguage.h"

#include <QList>
#include <QString>

#include <optional>

/// Decides on every keystroke whether a draft is a reminder: by the grammar first, then by dates found
/// anywhere in it.
namespace ReminderDetector {
/// Compiles the patterns and tables of all languages, which would delay the first keystroke by some
/// milliseconds.
void prepare(const Clock &clock, const DateDetecting &detector);

/// The fire time may lie in the past; the caller decides what to do about that.
[[nodiscard]] std::optional<ParsedReminder> detect(
    QStringView text, Instant now, const Calendar &calendar, const DateDetecting &detector);

/// The reminder's text when dates were found within the draft: the text without the ranges, trigger phrases
/// and leading punctuation; the whole text when nothing else is left.
[[nodiscard]] QString mergedContent(QStringView text, QList<TextRange> ranges, ReminderLanguage language);

/// When a day without a time of day reminds: at 09:00.
[[nodiscard]] Instant normalizePureDate(Calendar::Day day, const Calendar &calendar);
} // namespace ReminderDetector
