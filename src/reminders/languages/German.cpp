#include "reminders/languages/Languages.h"

const Words<int> &Languages::germanMonths()
{
    static const Words<int> months{{u"januar", 1, u"jan|jänner"}, {u"februar", 2, u"feb|feber"},
        {u"märz|maerz", 3, u"mrz"}, {u"april", 4, u"apr"}, {u"mai", 5}, {u"juni", 6, u"jun"},
        {u"juli", 7, u"jul"}, {u"august", 8, u"aug"}, {u"september", 9, u"sept|sep"},
        {u"oktober", 10, u"okt"}, {u"november", 11, u"nov"}, {u"dezember", 12, u"dez"}};
    return months;
}

const LanguageRules &Languages::german()
{
    using enum DateWords::Strength;
    using enum DayPart;
    using enum SpanUnit;
    static const LanguageRules rules{
        .markers = u"uhr|<day>|<weekday>|halb|erinnere",
        .relativeDays = {{u"heute", 0}, {u"morgen", 1}, {u"übermorgen", 2, u"uebermorgen"}},
        .weekdays = {{u"sonntag", 0, u"sonntags"}, {u"montag", 1, u"montags"}, {u"dienstag", 2, u"dienstags"},
            {u"mittwoch", 3, u"mittwochs"}, {u"donnerstag", 4, u"donnerstags"}, {u"freitag", 5, u"freitags"},
            {u"samstag", 6, u"sonnabend|samstags"}},
        .months = germanMonths(),
        .dayParts = {{u"morgens|vormittags|am vormittag|am morgen", Morning, u"früh|vormittag|morgen"},
            {u"mittags|am mittag", Noon, u"mittag"}, {u"nachmittags|am nachmittag", Afternoon, u"nachmittag"},
            {u"abends|am abend", Evening, u"abend"}, {u"nachts|in der nacht", Night, u"nacht"}},
        .triggerPhrases = {u"erinnere mich", u"erinnere", u"nicht vergessen", u"denk dran", u"denk daran"},
        .grammar =
            {
                .date =
                    uR"(<day>|<ymd>|\d{1,2}\.\s*(?:<anymonth>)|(?:<anymonth>)\s+\d{1,2}|(?:nächsten\s+)?(?:<weekday>))",
                .time = uR"(\d{1,2}:\d{2}|\d{1,2}(?::\d{2})?\s*Uhr|halb\s+\d{1,2})",
                .pattern = uR"(^(<date>)?\s*(<part>)?\s*(?:um\s+)?(<time>))",
                .pastDays = u"gestern",
                .next = u"nächsten",
                .otherMonths = {&frenchMonths(), &spanishMonths()},
                .halfBefore = u"halb",
            },
        .dates =
            {
                .shortWeekdays = {{u"so", 0}, {u"mo", 1}, {u"di", 2}, {u"mi", 3}, {u"do", 4}, {u"fr", 5},
                    {u"sa", 6}},
                .numbers = {{u"ein|eins|einem|einer", 1}, {u"zwei|zwo", 2}, {u"drei", 3}, {u"vier", 4},
                    {u"fünf", 5}, {u"sechs", 6}, {u"sieben", 7}, {u"acht", 8}, {u"neun", 9}, {u"zehn", 10},
                    {u"elf", 11}, {u"zwölf", 12}, {u"dreizehn", 13}, {u"vierzehn", 14}, {u"fünfzehn", 15},
                    {u"sechzehn", 16}, {u"siebzehn", 17}, {u"achtzehn", 18}, {u"neunzehn", 19},
                    {u"zwanzig", 20}, {u"einundzwanzig", 21}, {u"zweiundzwanzig", 22},
                    {u"dreiundzwanzig", 23}, {u"fünfundzwanzig", 25}, {u"dreißig|dreissig", 30},
                    {u"vierzig", 40}, {u"fünfundvierzig", 45}},
                .ordinals = {{u"ersten", 1}, {u"zweiten", 2}, {u"dritten", 3}, {u"vierten", 4},
                    {u"fünften", 5}, {u"sechsten", 6}, {u"siebten|siebenten", 7}, {u"achten", 8},
                    {u"neunten", 9}, {u"zehnten", 10}, {u"fünfzehnten", 15}, {u"zwanzigsten", 20}},
                .units = {{u"minuten|minute|min", Minutes}, {u"stunden|stunde|std", Hours},
                    {u"tagen|tage|tag", Days}, {u"wochen|woche", Weeks}, {u"monaten|monate|monat", Months}},
                .rules =
                    {
                        {u"<relative>"},
                        {u"morgen früh", {.relativeDay = 1, .part = Morning}},
                        {u"heute früh", {.relativeDay = 0, .part = Morning}},
                        {u"<weekdaypart>"},
                        {u"nächsten|nächster|nächste <weekday>", {.next = true}},
                        {u"diesen|dieser|kommenden|kommender? <weekday>"},
                        {u"<weekday> nächste|nächster|kommende|kommender woche", {.weeksAhead = 1}},
                        {u"nächste|kommende woche <weekday>", {.weeksAhead = 1}},
                        {u"nächste|kommende woche", {.weeksAhead = 1}},
                        {u"<weekday> in einer woche", {.weeksLater = 1}},
                        {u"am? <day> . nächsten monats", {.monthsAhead = 1}},
                        {u"übernächste woche <weekday>?", {.weeksAhead = 2}},
                        {u"<shortweekday>", {}, WithNeighbour},
                        {u"am|dieses|dies wochenende", {.weekend = 0}},
                        {u"nächstes|am_nächsten wochenende", {.weekend = 1}},
                        {u"ende des|diesen? monats", {.monthEnd = true}},
                        {u"zum? monatsende", {.monthEnd = true}},
                        {u"ende nächsten monats", {.monthsAhead = 1, .monthEnd = true}},
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
                        {u"von|zwischen <hour> : <mm> bis|und <until> : <until> uhr?", {.asWritten = true}},
                        {u"<hour> uhr"},
                        {u"<hour> uhr <minute>"},
                        {u"<hour> : <mm> uhr|h", {.asWritten = true}},
                        {u"<hour> . <mm> uhr|h", {.asWritten = true}},
                        {u"um <hour> . <mm>", {.asWritten = true}, AtEdge},
                        {u"<hour> h", {}, WithNeighbour},
                        {u"um|gegen <hour>", {}, AtEdge},
                        {u"ab|bis <hour>", {}, WithNeighbour},
                        {u"halb <hour> uhr?", {.shift = -30}},
                        {u"viertel nach <hour>", {.shift = 15}},
                        {u"viertel vor <hour>", {.shift = -15}},
                        {u"dreiviertel|drei_viertel <hour>", {.shift = -15}},
                        {u"<minute> minuten? nach <hour>"},
                        {u"<minute> minuten? vor <hour>", {.minutesBefore = true}},
                        {u"<minute> nach halb <hour>", {.shift = -30}},
                        {u"<minute> vor halb <hour>", {.minutesBefore = true, .shift = -30}},
                        {u"um|am|zu|zum? mitternacht", {.hour = 24}},
                        {u"um? zwölf uhr mittags", {.hour = 12, .asWritten = true}},
                    },
                .before = u"um|am|ab dem|bis|bis zum|bis zu|ab|vor|vor "
                          u"dem|nach|für|gegen|spätestens|den|der|zum|von|vom|schon|gleich|im",
                .between = u"um|am|den|gegen|ab|der|dem|im",
                .after = u"uhr|herum|genau|pünktlich",
                .notAfter = u"letzten|letzter|vergangenen|guten|jeden|jeder|alle|abschnitt|aufgabe|übung|"
                            u"punkt|nummer|nr|kapitel|version|seite|gestern|vorgestern",
                .notBefore = u"personen|euro|prozent|leuten|platz|stock|weltkrieg|element",
                .idioms = u"am morgen|guten morgen|schwarzer freitag|black friday",
                .joinsWeekdayAndPart = true,
            },
    };
    return rules;
}
