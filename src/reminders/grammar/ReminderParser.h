#pragma once

#include "foundation/Calendar.h"
#include "foundation/Instant.h"
#include "reminders/DayParts.h"
#include "reminders/ParsedReminder.h"
#include "reminders/ReminderLanguage.h"

#include <QString>

#include <optional>

/// The reminder grammar: a draft that begins with a date and time expression.
namespace ReminderParser {
/// Empty unless the trimmed draft begins with an expression of the language.
[[nodiscard]] std::optional<ParsedReminder> parse(
    QStringView text, Instant now, const Calendar &calendar, ReminderLanguage language);

/// The day of a date token. A word or a date without a year is never in the past; a missing or unknown token
/// means today. Empty for a date that does not exist.
[[nodiscard]] std::optional<Calendar::Day> resolveDay(
    std::optional<QStringView> dateToken, Instant now, const Calendar &calendar, ReminderLanguage language);

/// Empty when the token has no number.
[[nodiscard]] std::optional<ClockTime> resolveTime(
    QStringView timeToken, std::optional<QStringView> period, ReminderLanguage language);

/// The reminder's text, made of what follows the expression: without joining particle, trigger phrases and
/// leading punctuation. @p fullText when nothing else is left.
[[nodiscard]] QString content(QStringView remainder, QStringView fullText, ReminderLanguage language);
} // namespace ReminderParser
