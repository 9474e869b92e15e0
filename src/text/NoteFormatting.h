#pragma once

#include "foundation/Instant.h"
#include "text/L10n.h"

#include <QString>

class Calendar;

/// Dates and times as the panel shows them, in the interface language.
namespace NoteFormatting {
/// The header of a day in the timeline: "3月1日 星期日", and for today "今天 · 3月2日 星期一".
[[nodiscard]] QString dayTitle(
    Instant date, Instant now, const Calendar &calendar, const QString &language = L10n::currentLanguage());

/// The same with the year: "2026年3月1日 星期日", "今天 · 2026年3月2日 星期一".
[[nodiscard]] QString fullDayTitle(
    Instant date, Instant now, const Calendar &calendar, const QString &language = L10n::currentLanguage());

/// "09:05"
[[nodiscard]] QString timeString(
    Instant date, const Calendar &calendar, const QString &language = L10n::currentLanguage());

/// When a reminder fires, relative to today: "明天 08:05", "3月9日 08:05".
[[nodiscard]] QString reminderTimeString(
    Instant date, Instant now, const Calendar &calendar, const QString &language = L10n::currentLanguage());
} // namespace NoteFormatting
