#include "reminders/languages/Languages.h"
#include "reminders/languages/SharedMonths.h"

namespace {
QString datePattern()
{
    return QStringLiteral(R"((?:hoy|mañana|pasado mañana|ayer|\d{4}[-/]\d{1,2}[-/]\d{1,2}|\d{1,2}\s+de\s+)")
           + SharedMonths::pattern() + QStringLiteral(R"(|)") + SharedMonths::pattern()
           + QStringLiteral(
               R"(\s+\d{1,2}|(?:el\s+próximo\s+)?(?:lunes|martes|miércoles|jueves|viernes|sábado|domingo))?)");
}

QString timePattern()
{
    return QStringLiteral(R"((?:\d{1,2}:\d{2}|\d{1,2}(?::\d{2})?(?:\s*(?:h|y media))?))");
}
} // namespace

const LanguageRules &Languages::spanish()
{
    static const LanguageRules rules{
        .markers = {u"mañana", u"pasado mañana", u"hoy", u"ayer", u"lunes", u"martes", u"miércoles",
            u"jueves", u"viernes", u"sábado", u"domingo", u"a las", u"tarde", u"noche", u"recuerda",
            u"acuérdate", u"olvides", u"enero", u"febrero", u"marzo", u"abril", u"mayo", u"junio", u"julio",
            u"agosto", u"septiembre", u"octubre", u"noviembre", u"diciembre"},
        .date = Regex(datePattern(), Regex::Case::Insensitive),
        .time = Regex(timePattern()),
        .expression =
            Regex(QStringLiteral("^(") + datePattern() + QStringLiteral(R"()\s*(?:a las\s+)?()")
                      + timePattern() + QStringLiteral(R"()(?:\s+de la\s+((?:mañana|tarde|noche)))?)"),
                Regex::Case::Insensitive),
        .groups = {.date = 1, .period = 3, .time = 2},
        .today = {u"hoy", u"ayer"},
        .tomorrow = {u"mañana"},
        .dayAfterTomorrow = {u"pasado mañana"},
        .next = {u"el próximo"},
        .weekdays = {{u"domingo", 0}, {u"lunes", 1}, {u"martes", 2}, {u"miércoles", 3}, {u"jueves", 4},
            {u"viernes", 5}, {u"sábado", 6}},
        .months = SharedMonths::numbers(),
        .periods = {{u"mañana", HourRule::AsWritten}, {u"tarde", HourRule::Afternoon},
            {u"noche", HourRule::Night}},
        .halfPast = u"y media",
        .triggerPhrases = {u"recuérdame", u"recuerda", u"no olvides", u"acuérdate de", u"acuérdate"},
    };
    return rules;
}
