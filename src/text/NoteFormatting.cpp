#include "text/NoteFormatting.h"

#include "foundation/Calendar.h"
#include "foundation/DateFormat.h"

namespace {
QString formatted(Instant date, const char *patternKey, const Calendar &calendar, const QString &language)
{
    return DateFormat::format(date, L10n::text(patternKey, language), L10n::locale(language), calendar);
}
} // namespace

QString NoteFormatting::dayTitle(Instant date, Instant now, const Calendar &calendar, const QString &language)
{
    const QString title = formatted(date, "dayTitle.format", calendar, language);
    if (calendar.day(date) == calendar.day(now))
        return L10n::text("今天 · %@", QStringList{title}, language);
    return title;
}

QString NoteFormatting::timeString(Instant date, const Calendar &calendar, const QString &language)
{
    return DateFormat::format(date, u"HH:mm", L10n::locale(language), calendar);
}

QString NoteFormatting::reminderTimeString(
    Instant date, Instant now, const Calendar &calendar, const QString &language)
{
    const char *format = nullptr;
    switch (calendar.daysBetween(now, date)) {
    case -1:
        format = "昨天 %@";
        break;
    case 0:
        format = "今天 %@";
        break;
    case 1:
        format = "明天 %@";
        break;
    case 2:
        format = "后天 %@";
        break;
    default:
        return formatted(date, "reminderTime.format", calendar, language);
    }
    return L10n::text(format, QStringList{timeString(date, calendar, language)}, language);
}
