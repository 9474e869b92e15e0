#include "reminders/languages/Languages.h"

namespace {
QString monthPattern()
{
    return QStringLiteral(R"((?:januari|februari|maart|april|mei|juni)"
                          R"(|juli|augustus|september|oktober|november|december))");
}

QString datePattern()
{
    return QStringLiteral(
               R"((?:vandaag|morgen|overmorgen|gisteren|\d{4}[-/]\d{1,2}[-/]\d{1,2}|\d{1,2}\.?\s*)")
           + monthPattern() + QStringLiteral(R"(|)") + monthPattern()
           + QStringLiteral(
               R"(\s+\d{1,2}|(?:volgende\s+)?(?:maandag|dinsdag|woensdag|donderdag|vrijdag|zaterdag|zondag))?)");
}

QString timePattern()
{
    return QStringLiteral(R"((?:\d{1,2}:\d{2}|\d{1,2}(?::\d{2})?\s*uur|half\s+\d{1,2}))");
}

DateWords dates()
{
    using enum DateWords::Strength;
    using enum DayPart;
    using enum SpanUnit;
    return {
        .relativeDays = {{u"vandaag", 0}, {u"morgen", 1}, {u"overmorgen", 2}},
        .weekdays = {{u"zondag", 0}, {u"maandag", 1}, {u"dinsdag", 2}, {u"woensdag", 3}, {u"donderdag", 4},
            {u"vrijdag", 5}, {u"zaterdag", 6}},
        .months = {{u"januari|jan", 1}, {u"februari|feb", 2}, {u"maart|mrt", 3}, {u"april|apr", 4},
            {u"mei", 5}, {u"juni|jun", 6}, {u"juli|jul", 7}, {u"augustus|aug", 8}, {u"september|sept|sep", 9},
            {u"oktober|okt", 10}, {u"november|nov", 11}, {u"december|dec", 12}},
        .numbers = {{u"een|één", 1}, {u"twee", 2}, {u"drie", 3}, {u"vier", 4}, {u"vijf", 5}, {u"zes", 6},
            {u"zeven", 7}, {u"acht", 8}, {u"negen", 9}, {u"tien", 10}, {u"elf", 11}, {u"twaalf", 12},
            {u"dertien", 13}, {u"veertien", 14}, {u"vijftien", 15}, {u"zestien", 16}, {u"zeventien", 17},
            {u"achttien", 18}, {u"negentien", 19}, {u"twintig", 20}, {u"eenentwintig", 21},
            {u"tweeëntwintig", 22}, {u"drieëntwintig", 23}, {u"vijfentwintig", 25}, {u"dertig", 30},
            {u"veertig", 40}, {u"vijfenveertig", 45}},
        .ordinals = {{u"eerste", 1}, {u"tweede", 2}, {u"derde", 3}, {u"vierde", 4}, {u"vijfde", 5},
            {u"tiende", 10}, {u"vijftiende", 15}},
        .parts = {{u"ochtend|'s_ochtends|'s_morgens|vroeg|in_de_ochtend|voormiddag", Morning},
            {u"middag|'s_middags|in_de_middag|namiddag", Afternoon},
            {u"avond|'s_avonds|in_de_avond", Evening}, {u"nacht|'s_nachts|in_de_nacht", Night}},
        .units = {{u"minuten|minuut|minuutjes|min", Minutes}, {u"uren|uur|uurtje", Hours},
            {u"dagen|dag", Days}, {u"weken|week", Weeks}, {u"maanden|maand", Months}},
        .rules =
            {
                {u"<relative>"},
                {u"<weekdaypart>"},
                {u"vanavond", {.relativeDay = 0, .part = Evening}},
                {u"vanmiddag", {.relativeDay = 0, .part = Afternoon}},
                {u"vanmorgen|vanochtend", {.relativeDay = 0, .part = Morning}},
                {u"vannacht", {.relativeDay = 0, .part = Night}},
                {u"morgenochtend|morgenvroeg", {.relativeDay = 1, .part = Morning}},
                {u"morgenmiddag", {.relativeDay = 1, .part = Afternoon}},
                {u"morgenavond", {.relativeDay = 1, .part = Evening}},
                {u"volgende <weekday>", {.next = 1}},
                {u"deze|komende|aanstaande|aankomende? <weekday>"},
                {u"<weekday> volgende week", {.weeksAhead = 1}},
                {u"<weekday> in de volgende week", {.weeksAhead = 1}},
                {u"volgende week <weekday>?", {.weeksAhead = 1}},
                {u"dit|komend|in_het|voor_het weekend|weekeinde", {.weekend = 0}},
                {u"volgend weekend|weekeinde", {.weekend = 1}},
                {u"het? einde|eind van de|deze maand", {.monthEnd = 1}},
                {u"eind deze? maand", {.monthEnd = 1}},
                {u"<day> e|de|ste? .? <month> .? <year>?"},
                {u"<day> - <monthnumber> - <year>"},
                {u"<day> / <monthnumber> / <year>"},
                {u"<day> . <monthnumber> . <year>"},
                {u"op|voor|tot|vanaf <day> / <monthnumber>"},
                {u"op|voor|tot <day> - <monthnumber>"},
                {u"op|voor|tot|vanaf de <day> e|de|ste?", {}, AtEdge},
                {u"op|voor|tot de? <ordinal> van_de_maand?", {}, AtEdge},
                {u"de? <day> e|de|ste? van volgende maand", {.monthsAhead = 1}},
                {u"<weekday> over een week", {.weeksLater = 1}},
                {u"over|binnen <n> <unit>"},
                {u"over een half uur|uurtje", {.halves = 1, .unit = Hours}},
                {u"over een halfuur", {.halves = 1, .unit = Hours}},
                {u"over anderhalf uur", {.halves = 3, .unit = Hours}},
                {u"over tweeënhalf uur", {.halves = 5, .unit = Hours}},
                {u"over een kwartier", {.halves = 30, .unit = Minutes}},
                {u"over drie kwartier", {.halves = 90, .unit = Minutes}},
                {u"om|tegen|na|voor|vanaf|tot|rond <hour> uur"},
                {u"<hour> uur", {}, WithNeighbour},
                {u"<hour> : <mm> uur|u", {.asWritten = 1}},
                {u"<hour> . <mm> uur|u", {.asWritten = 1}},
                {u"om <hour> . <mm>", {.asWritten = 1}, AtEdge},
                {u"<hour> - <until> uur"},
                {u"van|tussen <hour> tot|en <until> uur"},
                {u"<hour> u"},
                {u"om|tegen|rond <hour>", {}, AtEdge},
                {u"half <hour> uur?", {.shift = -30}},
                {u"kwart over <hour>", {.shift = 15}},
                {u"kwart voor <hour>", {.shift = -15}},
                {u"<minute> minuten? over <hour>"},
                {u"<minute> minuten? voor <hour>", {.minutesBefore = 1}},
                {u"<minute> over half <hour>", {.shift = -30}},
                {u"<minute> voor half <hour>", {.minutesBefore = 1, .shift = -30}},
                {u"om? middernacht", {.hour = 24}},
                {u"om twaalf uur 's_middags", {.hour = 12, .asWritten = 1}},
            },
        .before = u"om|op|voor|voor_het|tegen|tot|na|vanaf|rond|uiterlijk|de|van|in|in_de|aan",
        .between = u"om|op|in|de|van|rond|tegen",
        .after = u"uur|precies|stipt",
        .notAfter = u"vorige|afgelopen|elke|iedere|hoofdstuk|versie|pagina|gisteren|eergisteren|goede|guten",
        .notBefore = u"personen|mensen|euro|procent|wereldoorlog|redenen|bergen",
        .idioms = u"am_morgen|guten_morgen|goede_morgen",
        .joinsWeekdayAndPart = true,
    };
}
} // namespace

const LanguageRules &Languages::dutch()
{
    static const LanguageRules rules{
        .markers = {u"uur", u"half", u"vandaag", u"overmorgen", u"gisteren", u"maart", u"maandag", u"dinsdag",
            u"woensdag", u"donderdag", u"vrijdag", u"zaterdag", u"zondag", u"vanavond", u"vannacht",
            u"vanmiddag", u"vanmorgen", u"volgende", u"vergeet", u"herinner"},
        .date = Regex(datePattern(), Regex::Case::Insensitive),
        .time = Regex(timePattern()),
        .expression =
            Regex(QStringLiteral("^(") + datePattern()
                      + QStringLiteral(R"()\s*((?:'s morgens|'s ochtends|'s middags|'s avonds|'s nachts)"
                                       R"(|vanmorgen|vanmiddag|vanavond|vannacht)?)?\s*(?:om\s+)?()")
                      + timePattern() + QStringLiteral(")"),
                Regex::Case::Insensitive),
        .groups = {.date = 1, .period = 2, .time = 3},
        .today = {u"vandaag", u"gisteren"},
        .tomorrow = {u"morgen"},
        .dayAfterTomorrow = {u"overmorgen"},
        .next = {u"volgende"},
        .weekdays = {{u"zondag", 0}, {u"maandag", 1}, {u"dinsdag", 2}, {u"woensdag", 3}, {u"donderdag", 4},
            {u"vrijdag", 5}, {u"zaterdag", 6}},
        .months = {{u"januari", 1}, {u"februari", 2}, {u"maart", 3}, {u"april", 4}, {u"mei", 5}, {u"juni", 6},
            {u"juli", 7}, {u"augustus", 8}, {u"september", 9}, {u"oktober", 10}, {u"november", 11},
            {u"december", 12}},
        .periods = {{u"'s morgens", HourRule::AsWritten}, {u"'s ochtends", HourRule::AsWritten},
            {u"vanmorgen", HourRule::AsWritten}, {u"'s middags", HourRule::AsWritten},
            {u"vanmiddag", HourRule::AsWritten}, {u"'s avonds", HourRule::Evening},
            {u"vanavond", HourRule::Evening}, {u"'s nachts", HourRule::Night},
            {u"vannacht", HourRule::Night}},
        .halfBefore = u"half",
        .triggerPhrases = {u"vergeet niet", u"vergeet", u"herinner me", u"denk eraan", u"onthoud"},
        .dates = dates(),
    };
    return rules;
}
