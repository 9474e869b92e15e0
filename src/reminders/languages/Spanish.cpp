#include "reminders/languages/Languages.h"

const Words<int> &Languages::spanishMonths()
{
    static const Words<int> months{{u"enero", 1, u"ene"}, {u"febrero", 2, u"feb"}, {u"marzo", 3},
        {u"abril", 4, u"abr"}, {u"mayo", 5}, {u"junio", 6, u"jun"}, {u"julio", 7, u"jul"},
        {u"agosto", 8, u"ago"}, {u"septiembre", 9, u"setiembre|sept|sep"}, {u"octubre", 10, u"oct"},
        {u"noviembre", 11, u"nov"}, {u"diciembre", 12, u"dic"}};
    return months;
}

const LanguageRules &Languages::spanish()
{
    using enum DateWords::Strength;
    using enum DayPart;
    using enum SpanUnit;
    static const LanguageRules rules{
        .markers = u"<day>|<weekday>|a las|tarde|noche|recuerda|acuérdate|olvides|<month>",
        .relativeDays = {{u"hoy", 0}, {u"mañana", 1}, {u"pasado mañana", 2}},
        .weekdays = {{u"domingo", 0}, {u"lunes", 1}, {u"martes", 2}, {u"miércoles", 3}, {u"jueves", 4},
            {u"viernes", 5}, {u"sábado", 6}},
        .months = spanishMonths(),
        .dayParts = {{u"", EarlyMorning, u"de madrugada|de la madrugada"},
            {u"", Morning, u"por la mañana|de la mañana|a la mañana|temprano", u"mañana"},
            {u"", Noon, u"al mediodía|mediodía|a mediodía|del mediodía"},
            {u"", Afternoon, u"por la tarde|de la tarde|a la tarde", u"tarde"},
            {u"", Evening, u"por la noche|de la noche|a la noche|noche"}, {u"", Night, {}, u"noche"}},
        .triggerPhrases = {u"recuérdame", u"recuerda", u"no olvides", u"acuérdate de", u"acuérdate"},
        .grammar =
            {
                .date =
                    uR"(<day>|<ymd>|\d{1,2}\s+de\s+(?:<anymonth>)|(?:<anymonth>)\s+\d{1,2}|(?:el\s+próximo\s+)?(?:<weekday>))",
                .time = uR"(\d{1,2}:\d{2}|\d{1,2}(?::\d{2})?(?:\s*(?:h|y media))?)",
                .pattern = uR"(^(<date>)?\s*(?:a las\s+)?(<time>)(?:\s+de la\s+(<part>))?)",
                .groups = {.date = 1, .period = 3, .time = 2},
                .pastDays = u"ayer",
                .next = u"el próximo",
                .otherMonths = {&frenchMonths(), &germanMonths()},
                .halfPast = u"y media",
            },
        .dates =
            {
                .numbers = {{u"un|una|uno", 1}, {u"dos", 2}, {u"tres", 3}, {u"cuatro", 4}, {u"cinco", 5},
                    {u"seis", 6}, {u"siete", 7}, {u"ocho", 8}, {u"nueve", 9}, {u"diez", 10}, {u"once", 11},
                    {u"doce", 12}, {u"trece", 13}, {u"catorce", 14}, {u"quince", 15}, {u"dieciséis", 16},
                    {u"diecisiete", 17}, {u"dieciocho", 18}, {u"diecinueve", 19}, {u"veinte", 20},
                    {u"veintiuna|veintiuno", 21}, {u"veintidós", 22}, {u"veintitrés", 23},
                    {u"veinticinco", 25}, {u"treinta", 30}, {u"cuarenta", 40}, {u"cuarenta y cinco", 45}},
                .ordinals = {{u"primero", 1}},
                .units = {{u"minutos|minuto|min", Minutes}, {u"horas|hora", Hours}, {u"días|día", Days},
                    {u"semanas|semana", Weeks}, {u"meses|mes", Months}},
                .rules =
                    {
                        {u"<relative>"},
                        {u"esta noche", {.relativeDay = 0, .part = Evening}},
                        {u"esta tarde", {.relativeDay = 0, .part = Afternoon}},
                        {u"esta mañana", {.relativeDay = 0, .part = Morning}},
                        {u"este mediodía", {.relativeDay = 0, .part = Noon}},
                        {u"el? próximo <weekday>", {.next = true}},
                        {u"este? <weekday>"},
                        {u"<weekday> próximo", {.next = true}},
                        {u"<weekday> que viene", {.next = true}},
                        {u"<weekday> de la semana que_viene|próxima", {.weeksAhead = 1}},
                        {u"la? semana que_viene <weekday>?", {.weeksAhead = 1}},
                        {u"la? próxima semana <weekday>?", {.weeksAhead = 1}},
                        {u"este|en_el|durante_el|para_el fin de semana", {.weekend = 0}},
                        {u"el? próximo fin de semana", {.weekend = 1}},
                        {u"el? fin de semana que_viene|próximo", {.weekend = 1}},
                        {u"a|antes_de|para? fin|fines|final|finales de|del mes", {.monthEnd = true}},
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
                        {u"<hour> : <mm> h|horas", {.asWritten = true}},
                        {u"<hour> h|hs", {}, WithNeighbour},
                        {u"a|las|sobre_las|hacia_las? las|la <hour> horas|h?", {}, AtEdge},
                        {u"de <hour> a <until> h|horas?", {}, WithNeighbour},
                        {u"entre las <hour> y las <until>", {}, AtEdge},
                        {u"las|la <hour> y media", {.shift = 30}},
                        {u"las|la <hour> y cuarto", {.shift = 15}},
                        {u"las|la <hour> menos cuarto", {.shift = -15}},
                        {u"las|la <hour> y <minute>"},
                        {u"las|la <hour> menos <minute>", {.minutesBefore = true}},
                        {u"las|la <hour> <minute>", {}, AtEdge},
                        {u"las <hour> en punto"},
                        {u"las <hour> . <mm>", {.asWritten = true}, AtEdge},
                        {u"a? medianoche", {.hour = 24}},
                        {u"al|a mediodía", {.hour = 12, .asWritten = true}},
                    },
                .before = u"a|el|a las|las|la|antes de|antes del|antes de las|para|para el|para "
                          u"las|hasta|hasta el|después de|después de las|desde|desde el|sobre las|hacia "
                          u"las|del|de|este|esta|en|por|antes|al",
                .between = u"a|a las|de|el|por|en|al|del",
                .after = u"en punto|h|horas",
                .notAfter = u"la|una|pasado|último|cada|todos los|capítulo|versión|página|ayer|anteayer",
                .notBefore = u"pasado|personas|euros|por ciento|de ramos|y la noche|en día",
                .idioms = u"roupa de domingo|traje de domingo|ropa de domingo|black friday",
            },
    };
    return rules;
}
