#include "text/NoteFormatting.h"

#include "foundation/Calendar.h"
#include "foundation/DateFormat.h"

namespace {
QString formatted(Instant date, const char *patternKey, const Calendar &calendar, const QString &language)
{
    return DateFormat::format(date, L10n::text(patternKey, language), L10n::locale(language), calendar);
}

QString titleOfDay(
    Instant date, const char *patternKey, Instant now, const Calendar &calendar, const QString &language)
{
    const QString title = formatted(date, patternKey, calendar, language);
    if (calendar.day(date) == calendar.day(now))
        return L10n::text("今天 · %@", QStringList{title}, language);
    return title;
}
} // namespace

QString NoteFormatting::dayTitle(Instant date, Instant now, const Calendar &calendar, const QString &language)
{
    return titleOfDay(date, "dayTitle.format", now, calendar, language);
}

QString NoteFormatting::fullDayTitle(
    Instant date, Instant now, const Calendar &calendar, const QString &language)
{
    return titleOfDay(date, "fullDayTitle.format", now, calendar, language);
}

QString NoteFormatting::timeString(Instant date, const Calendar &calendar, const QString &language)
{
    return DateFormat::format(date, u"HH:mm", L10n::locale(language), calendar);
}

QString NoteFormatting::reminderTimeString(
    Instant date, Instant now, const Calendar &calendar, const QString &language)
{
    constexpr const char *fromYesterdayOn[] = {"昨天 %@", "今天 %@", "明天 %@", "后天 %@"};
    const int day = calendar.daysBetween(now, date) + 1;
    if (day < 0 || day >= int(std::size(fromYesterdayOn)))
        return formatted(date, "reminderTime.format", calendar, language);
    return L10n::text(fromYesterdayOn[day], QStringList{timeString(date, calendar, language)}, language);
}
