#include "reminders/languages/Languages.h"
#include "reminders/languages/SharedMonths.h"

namespace {
QString datePattern()
{
    return QStringLiteral(R"((?:heute|morgen|übermorgen|gestern|\d{4}[-/]\d{1,2}[-/]\d{1,2}|\d{1,2}\.\s*)")
           + SharedMonths::pattern() + QStringLiteral(R"(|)") + SharedMonths::pattern()
           + QStringLiteral(
               R"(\s+\d{1,2}|(?:nächsten\s+)?(?:montag|dienstag|mittwoch|donnerstag|freitag|samstag|sonntag))?)");
}

QString timePattern()
{
    return QStringLiteral(R"((?:\d{1,2}:\d{2}|\d{1,2}(?::\d{2})?\s*Uhr|halb\s+\d{1,2}))");
}

DateWords dates()
{
    using enum DateWords::Strength;
    using enum DayPart;
    using enum SpanUnit;
    return {
        .relativeDays = {{u"heute", 0}, {u"morgen", 1}, {u"übermorgen|uebermorgen", 2}},
        .weekdays = {{u"sonntag|sonntags", 0}, {u"montag|montags", 1}, {u"dienstag|dienstags", 2},
            {u"mittwoch|mittwochs", 3}, {u"donnerstag|donnerstags", 4}, {u"freitag|freitags", 5},
            {u"samstag|sonnabend|samstags", 6}},
        .months = {{u"januar|jan|jänner", 1}, {u"februar|feb|feber", 2}, {u"märz|maerz|mrz", 3},
            {u"april|apr", 4}, {u"mai", 5}, {u"juni|jun", 6}, {u"juli|jul", 7}, {u"august|aug", 8},
            {u"september|sept|sep", 9}, {u"oktober|okt", 10}, {u"november|nov", 11}, {u"dezember|dez", 12}},
        .numbers = {{u"ein|eins|einem|einer", 1}, {u"zwei|zwo", 2}, {u"drei", 3}, {u"vier", 4}, {u"fünf", 5},
            {u"sechs", 6}, {u"sieben", 7}, {u"acht", 8}, {u"neun", 9}, {u"zehn", 10}, {u"elf", 11},
            {u"zwölf", 12}, {u"dreizehn", 13}, {u"vierzehn", 14}, {u"fünfzehn", 15}, {u"sechzehn", 16},
            {u"siebzehn", 17}, {u"achtzehn", 18}, {u"neunzehn", 19}, {u"zwanzig", 20}, {u"einundzwanzig", 21},
            {u"zweiundzwanzig", 22}, {u"dreiundzwanzig", 23}, {u"fünfundzwanzig", 25},
            {u"dreißig|dreissig", 30}, {u"vierzig", 40}, {u"fünfundvierzig", 45}},
        .ordinals = {{u"ersten", 1}, {u"zweiten", 2}, {u"dritten", 3}, {u"vierten", 4}, {u"fünften", 5},
            {u"sechsten", 6}, {u"siebten|siebenten", 7}, {u"achten", 8}, {u"neunten", 9}, {u"zehnten", 10},
            {u"fünfzehnten", 15}, {u"zwanzigsten", 20}},
        .parts = {{u"früh|morgens|vormittag|vormittags|am_vormittag|am_morgen|morgen", Morning},
            {u"mittag|mittags|am_mittag", Noon}, {u"nachmittag|nachmittags|am_nachmittag", Afternoon},
            {u"abend|abends|am_abend", Evening}, {u"nacht|nachts|in_der_nacht", Night}},
        .units = {{u"minuten|minute|min", Minutes}, {u"stunden|stunde|std", Hours}, {u"tagen|tage|tag", Days},
            {u"wochen|woche", Weeks}, {u"monaten|monate|monat", Months}},
        .rules =
            {
                {u"<relative>"},
                {u"morgen früh", {.relativeDay = 1, .part = Morning}},
                {u"heute früh", {.relativeDay = 0, .part = Morning}},
                {u"<weekdaypart>"},
                {u"nächsten|nächster|nächste <weekday>", {.next = 1}},
                {u"diesen|dieser|kommenden|kommender? <weekday>"},
                {u"<weekday> nächste|nächster|kommende|kommender woche", {.weeksAhead = 1}},
                {u"nächste|kommende woche <weekday>", {.weeksAhead = 1}},
                {u"nächste|kommende woche", {.weeksAhead = 1}},
                {u"<weekday> in einer woche", {.weeksLater = 1}},
                {u"am? <day> . nächsten monats", {.monthsAhead = 1}},
                {u"übernächste woche <weekday>?", {.weeksAhead = 2}},
                {u"mo", {.weekday = 1}, WithNeighbour},
                {u"di", {.weekday = 2}, WithNeighbour},
                {u"mi", {.weekday = 3}, WithNeighbour},
                {u"do", {.weekday = 4}, WithNeighbour},
                {u"fr", {.weekday = 5}, WithNeighbour},
                {u"sa", {.weekday = 6}, WithNeighbour},
                {u"so", {.weekday = 0}, WithNeighbour},
                {u"am|dieses|dies wochenende", {.weekend = 0}},
                {u"nächstes|am_nächsten wochenende", {.weekend = 1}},
                {u"ende des|diesen? monats", {.monthEnd = 1}},
                {u"zum? monatsende", {.monthEnd = 1}},
                {u"ende nächsten monats", {.monthsAhead = 1, .monthEnd = 1}},
                {u"<day> . <month> .? <year>?"},
                {u"<day> <month> .? <year>"},
                {u"<day> . <monthnumber> . <year>?"},
                {u"den? <ordinal> <month> <year>?"},
                {u"am|den|bis|zum|bis_zum <day> . <monthnumber>"},
                {u"am|zum|bis_zum|den <day> .", {}, AtEdge},
                {u"am|zum|bis_zum <ordinal>", {}, AtEdge},
                {u"in <n> <unit>"},
                {u"in einer halben stunde", {.halves = 1, .unit = Hours}},
                {u"in anderthalb|eineinhalb stunden", {.halves = 3, .unit = Hours}},
                {u"in zweieinhalb stunden", {.halves = 5, .unit = Hours}},
                {u"in einer viertelstunde", {.halves = 30, .unit = Minutes}},
                {u"in einer dreiviertelstunde", {.halves = 90, .unit = Minutes}},
                {u"heute|morgen in <n> <unit>"},
                {u"<hour> - <until> uhr"},
                {u"von|zwischen <hour> bis|und <until> uhr"},
                {u"<hour> bis <until> uhr"},
                {u"von|zwischen <hour> : <mm> bis|und <until> : <until> uhr?", {.asWritten = 1}},
                {u"<hour> uhr"},
                {u"<hour> uhr <minute>"},
                {u"<hour> : <mm> uhr|h", {.asWritten = 1}},
                {u"<hour> . <mm> uhr|h", {.asWritten = 1}},
                {u"um <hour> . <mm>", {.asWritten = 1}, AtEdge},
                {u"<hour> h", {}, WithNeighbour},
                {u"um|gegen <hour>", {}, AtEdge},
                {u"ab|bis <hour>", {}, WithNeighbour},
                {u"halb <hour> uhr?", {.shift = -30}},
                {u"viertel nach <hour>", {.shift = 15}},
                {u"viertel vor <hour>", {.shift = -15}},
                {u"dreiviertel|drei_viertel <hour>", {.shift = -15}},
                {u"<minute> minuten? nach <hour>"},
                {u"<minute> minuten? vor <hour>", {.minutesBefore = 1}},
                {u"<minute> nach halb <hour>", {.shift = -30}},
                {u"<minute> vor halb <hour>", {.minutesBefore = 1, .shift = -30}},
                {u"um|am|zu|zum? mitternacht", {.hour = 24}},
                {u"um? zwölf uhr mittags", {.hour = 12, .asWritten = 1}},
            },
        .before =
            u"um|am|ab_dem|bis|bis_zum|bis_zu|ab|vor|vor_dem|nach|für|gegen|spätestens|den|der|zum|von|vom|"
            u"schon|gleich|im",
        .between = u"um|am|den|gegen|ab|der|dem|im",
        .after = u"uhr|herum|genau|pünktlich",
        .notAfter = u"letzten|letzter|vergangenen|guten|jeden|jeder|alle|abschnitt|aufgabe|übung|punkt|"
                    u"nummer|nr|kapitel|version|seite|gestern|vorgestern",
        .notBefore = u"personen|euro|prozent|leuten|platz|stock|weltkrieg|element",
        .idioms = u"am_morgen|guten_morgen|schwarzer_freitag|black_friday",
        .joinsWeekdayAndPart = true,
    };
}
} // namespace

const LanguageRules &Languages::german()
{
    static const LanguageRules rules{
        .markers = {u"uhr", u"morgen", u"übermorgen", u"gestern", u"heute", u"montag", u"dienstag",
            u"mittwoch", u"donnerstag", u"freitag", u"samstag", u"sonntag", u"halb", u"erinnere"},
        .date = Regex(datePattern(), Regex::Case::Insensitive),
        .time = Regex(timePattern()),
        .expression = Regex(
            QStringLiteral("^(") + datePattern()
                + QStringLiteral(R"()\s*((?:morgens|vormittags|mittags|nachmittags|abends|nachts)"
                                 R"(|am morgen|am vormittag|am mittag|am nachmittag|am abend|in der nacht)?)"
                                 R"()?\s*(?:um\s+)?()")
                + timePattern() + QStringLiteral(")"),
            Regex::Case::Insensitive),
        .groups = {.date = 1, .period = 2, .time = 3},
        .today = {u"heute", u"gestern"},
        .tomorrow = {u"morgen"},
        .dayAfterTomorrow = {u"übermorgen"},
        .next = {u"nächsten"},
        .weekdays = {{u"sonntag", 0}, {u"montag", 1}, {u"dienstag", 2}, {u"mittwoch", 3}, {u"donnerstag", 4},
            {u"freitag", 5}, {u"samstag", 6}},
        .months = SharedMonths::numbers(),
        .periods = {{u"morgens", HourRule::AsWritten}, {u"vormittags", HourRule::AsWritten},
            {u"mittags", HourRule::AsWritten}, {u"am morgen", HourRule::AsWritten},
            {u"am vormittag", HourRule::AsWritten}, {u"am mittag", HourRule::AsWritten},
            {u"nachmittags", HourRule::Afternoon}, {u"am nachmittag", HourRule::Afternoon},
            {u"abends", HourRule::Evening}, {u"am abend", HourRule::Evening}, {u"nachts", HourRule::Night},
            {u"in der nacht", HourRule::Night}},
        .halfBefore = u"halb",
        .triggerPhrases = {u"erinnere mich", u"erinnere", u"nicht vergessen", u"denk dran", u"denk daran"},
        .dates = dates(),
    };
    return rules;
}
