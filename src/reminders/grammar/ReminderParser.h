#pragma once

#include "foundation/Calendar.h"
#include "foundation/Instant.h"
#include "reminders/ParsedReminder.h"
#include "reminders/ReminderLanguage.h"

#include <QString>

#include <optional>

/// The reminder grammar: a draft that begins with a date and time expression.
namespace ReminderParser {
struct ResolvedTime {
    Calendar::TimeOfDay time; ///< as read: the calendar refuses an hour above 23
    int dayOffset = 0;        ///< 1 when midnight ends the resolved day
    bool operator==(const ResolvedTime &) const = default;
};

/// Nothing unless the draft, trimmed, begins with an expression of the language.
[[nodiscard]] std::optional<ParsedReminder> parse(
    QStringView text, Instant now, const Calendar &calendar, ReminderLanguage language);

/// The day that a date token names, today or later for a word or a date without a year; without a token, or
/// with one that says nothing, today. Nothing for a date that does not exist.
[[nodiscard]] std::optional<Calendar::Day> resolveDay(
    std::optional<QStringView> dateToken, Instant now, const Calendar &calendar, ReminderLanguage language);

/// Nothing when the token has no number.
[[nodiscard]] std::optional<ResolvedTime> resolveTime(
    QStringView timeToken, std::optional<QStringView> period, ReminderLanguage language);

/// The reminder's text, made of what follows the expression: without joining particle, trigger phrases and
/// edge punctuation. @p fullText when nothing else is left.
[[nodiscard]] QString content(QStringView remainder, QStringView fullText, ReminderLanguage language);

enum class Glued { Removed, Kept };

/// The same without the particle. @p glued says what becomes of a trigger phrase in front that runs on into a
/// word.
[[nodiscard]] QString withoutTriggerPhrases(
    QStringView text, QStringView fullText, ReminderLanguage language, Glued glued);

/// Whether the text holds a date, or a time of day, in the language's own patterns.
[[nodiscard]] bool holdsDate(QStringView text, ReminderLanguage language);
[[nodiscard]] bool holdsTime(QStringView text, ReminderLanguage language);
} // namespace ReminderParser
