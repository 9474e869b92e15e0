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

DateWords dates()
{
    using enum DateWords::Strength;
    using enum DayPart;
    using enum SpanUnit;
    return {
        .relativeDays = {{u"hoy", 0}, {u"mañana", 1}, {u"pasado_mañana", 2}},
        .weekdays = {{u"domingo", 0}, {u"lunes", 1}, {u"martes", 2}, {u"miércoles", 3}, {u"jueves", 4},
            {u"viernes", 5}, {u"sábado", 6}},
        .months = {{u"enero|ene", 1}, {u"febrero|feb", 2}, {u"marzo", 3}, {u"abril|abr", 4}, {u"mayo", 5},
            {u"junio|jun", 6}, {u"julio|jul", 7}, {u"agosto|ago", 8}, {u"septiembre|setiembre|sept|sep", 9},
            {u"octubre|oct", 10}, {u"noviembre|nov", 11}, {u"diciembre|dic", 12}},
        .numbers = {{u"un|una|uno", 1}, {u"dos", 2}, {u"tres", 3}, {u"cuatro", 4}, {u"cinco", 5},
            {u"seis", 6}, {u"siete", 7}, {u"ocho", 8}, {u"nueve", 9}, {u"diez", 10}, {u"once", 11},
            {u"doce", 12}, {u"trece", 13}, {u"catorce", 14}, {u"quince", 15}, {u"dieciséis", 16},
            {u"diecisiete", 17}, {u"dieciocho", 18}, {u"diecinueve", 19}, {u"veinte", 20},
            {u"veintiuna|veintiuno", 21}, {u"veintidós", 22}, {u"veintitrés", 23}, {u"veinticinco", 25},
            {u"treinta", 30}, {u"cuarenta", 40}, {u"cuarenta_y_cinco", 45}},
        .ordinals = {{u"primero", 1}},
        .parts = {{u"por_la_mañana|de_la_mañana|a_la_mañana|temprano", Morning},
            {u"al_mediodía|mediodía|a_mediodía|del_mediodía", Noon},
            {u"por_la_tarde|de_la_tarde|a_la_tarde", Afternoon},
            {u"por_la_noche|de_la_noche|a_la_noche|noche", Evening},
            {u"de_madrugada|de_la_madrugada", EarlyMorning}},
        .units = {{u"minutos|minuto|min", Minutes}, {u"horas|hora", Hours}, {u"días|día", Days},
            {u"semanas|semana", Weeks}, {u"meses|mes", Months}},
        .rules =
            {
                {u"<relative>"},
                {u"esta noche", {.relativeDay = 0, .part = Evening}},
                {u"esta tarde", {.relativeDay = 0, .part = Afternoon}},
                {u"esta mañana", {.relativeDay = 0, .part = Morning}},
                {u"este mediodía", {.relativeDay = 0, .part = Noon}},
                {u"el? próximo <weekday>", {.next = 1}},
                {u"este? <weekday>"},
                {u"<weekday> próximo", {.next = 1}},
                {u"<weekday> que viene", {.next = 1}},
                {u"<weekday> de la semana que_viene|próxima", {.weeksAhead = 1}},
                {u"la? semana que_viene <weekday>?", {.weeksAhead = 1}},
                {u"la? próxima semana <weekday>?", {.weeksAhead = 1}},
                {u"este|en_el|durante_el|para_el fin de semana", {.weekend = 0}},
                {u"el? próximo fin de semana", {.weekend = 1}},
                {u"el? fin de semana que_viene|próximo", {.weekend = 1}},
                {u"a|antes_de|para? fin|fines|final|finales de|del mes", {.monthEnd = 1}},
                {u"<day> de <month> .? de|del? <year>?"},
                {u"el <day> <month> .?"},
                {u"<day> / <monthnumber> / <year>"},
                {u"el|del|al|para_el|antes_del <day> / <monthnumber>"},
                {u"<day> / <monthnumber>", {}, WithNeighbour},
                {u"el? día <day>"},
                {u"el? día? <day> del mes que_viene|próximo|siguiente", {.monthsAhead = 1}},
                {u"el? día? <day> del próximo mes", {.monthsAhead = 1}},
                {u"el? día primero", {.day = 1}},
                {u"el? primero de <month>", {.day = 1}},
                {u"el|antes_del|para_el|hasta_el <day>", {}, AtEdge},
                {u"en|dentro_de|de_aquí_a <n> <unit>"},
                {u"en|dentro_de media hora", {.halves = 1, .unit = Hours}},
                {u"en|dentro_de una hora y media", {.halves = 3, .unit = Hours}},
                {u"en|dentro_de <n> horas y media", {.halves = 1, .unit = Hours}},
                {u"en|dentro_de un cuarto de hora", {.halves = 30, .unit = Minutes}},
                {u"<hour> : <mm> h|horas", {.asWritten = 1}},
                {u"<hour> h|hs", {}, WithNeighbour},
                {u"a|las|sobre_las|hacia_las? las|la <hour> horas|h?", {}, AtEdge},
                {u"de <hour> a <until> h|horas?", {}, WithNeighbour},
                {u"entre las <hour> y las <until>", {}, AtEdge},
                {u"las|la <hour> y media", {.shift = 30}},
                {u"las|la <hour> y cuarto", {.shift = 15}},
                {u"las|la <hour> menos cuarto", {.shift = -15}},
                {u"las|la <hour> y <minute>"},
                {u"las|la <hour> menos <minute>", {.minutesBefore = 1}},
                {u"las|la <hour> <minute>", {}, AtEdge},
                {u"las <hour> en punto"},
                {u"las <hour> . <mm>", {.asWritten = 1}, AtEdge},
                {u"a? medianoche", {.hour = 24}},
                {u"al|a mediodía", {.hour = 12, .asWritten = 1}},
            },
        .before =
            u"a|el|a_las|las|la|antes_de|antes_del|antes_de_las|para|para_el|para_las|hasta|hasta_el|después_"
            u"de|después_de_las|desde|desde_el|sobre_las|hacia_las|del|de|este|esta|en|por|antes|al",
        .between = u"a|a_las|de|el|por|en|al|del",
        .after = u"en_punto|h|horas",
        .notAfter = u"la|una|pasado|último|cada|todos_los|capítulo|versión|página|ayer|anteayer",
        .notBefore = u"pasado|personas|euros|por_ciento|de_ramos|y_la_noche|en_día",
        .idioms = u"roupa_de_domingo|traje_de_domingo|ropa_de_domingo|black_friday",
    };
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
        .dates = dates(),
    };
    return rules;
}
