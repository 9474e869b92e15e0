#include "reminders/languages/Languages.h"

namespace {
QString monthPattern()
{
    return QStringLiteral(R"((?:gennaio|febbraio|marzo|aprile|maggio|giugno)"
                          R"(|luglio|agosto|settembre|ottobre|novembre|dicembre))");
}

QString datePattern()
{
    return QStringLiteral(R"((?:oggi|domani|dopodomani|ieri|\d{4}[-/]\d{1,2}[-/]\d{1,2}|\d{1,2}\s*)")
           + monthPattern() + QStringLiteral(R"(|)") + monthPattern()
           + QStringLiteral(
               R"(\s+\d{1,2}|(?:lunedì|martedì|mercoledì|giovedì|venerdì|sabato|domenica)(?:\s+prossimo)?)?)");
}

QString timePattern()
{
    return QStringLiteral(R"((?:\d{1,2}:\d{2}|\d{1,2}(?::\d{2})?(?:\s*(?:e mezza|h))?))");
}

DateWords dates()
{
    using enum DateWords::Strength;
    using enum DayPart;
    using enum SpanUnit;
    return {
        .relativeDays = {{u"oggi", 0}, {u"domani", 1}, {u"dopodomani|dopo_domani", 2}},
        .weekdays = {{u"domenica", 0}, {u"lunedì", 1}, {u"martedì", 2}, {u"mercoledì", 3}, {u"giovedì", 4},
            {u"venerdì", 5}, {u"sabato", 6}},
        .months = {{u"gennaio|gen", 1}, {u"febbraio|feb", 2}, {u"marzo|mar", 3}, {u"aprile|apr", 4},
            {u"maggio|mag", 5}, {u"giugno|giu", 6}, {u"luglio|lug", 7}, {u"agosto|ago", 8},
            {u"settembre|sett|set", 9}, {u"ottobre|ott", 10}, {u"novembre|nov", 11}, {u"dicembre|dic", 12}},
        .numbers = {{u"un|una|uno|un'", 1}, {u"due", 2}, {u"tre", 3}, {u"quattro", 4}, {u"cinque", 5},
            {u"sei", 6}, {u"sette", 7}, {u"otto", 8}, {u"nove", 9}, {u"dieci", 10}, {u"undici", 11},
            {u"dodici", 12}, {u"tredici", 13}, {u"quattordici", 14}, {u"quindici", 15}, {u"sedici", 16},
            {u"diciassette", 17}, {u"diciotto", 18}, {u"diciannove", 19}, {u"venti", 20}, {u"ventuno", 21},
            {u"ventidue", 22}, {u"ventitré|ventitre", 23}, {u"venticinque", 25}, {u"trenta", 30},
            {u"quaranta", 40}, {u"quarantacinque", 45}},
        .ordinals = {{u"primo", 1}},
        .parts = {{u"mattina|di_mattina|della_mattina|mattino|del_mattino|in_mattinata|di_primo_mattino",
                      Morning},
            {u"mezzogiorno|a_mezzogiorno|a_pranzo", Noon},
            {u"pomeriggio|del_pomeriggio|di_pomeriggio|nel_pomeriggio", Afternoon},
            {u"sera|di_sera|della_sera|in_serata", Evening}, {u"notte|di_notte|della_notte", Night}},
        .units = {{u"minuti|minuto|min", Minutes}, {u"ore|ora", Hours}, {u"giorni|giorno|gg", Days},
            {u"settimane|settimana", Weeks}, {u"mesi|mese", Months}},
        .rules =
            {
                {u"<relative>"},
                {u"stasera", {.relativeDay = 0, .part = Evening}},
                {u"stamattina|stamani", {.relativeDay = 0, .part = Morning}},
                {u"stanotte", {.relativeDay = 0, .part = Night}},
                {u"domattina", {.relativeDay = 1, .part = Morning}},
                {u"questo pomeriggio", {.relativeDay = 0, .part = Afternoon}},
                {u"questa sera", {.relativeDay = 0, .part = Evening}},
                {u"questo|questa? <weekday>"},
                {u"<weekday> prossimo|prossima", {.next = 1}},
                {u"il|la? prossimo|prossima <weekday>", {.next = 1}},
                {u"<weekday> della settimana prossima", {.weeksAhead = 1}},
                {u"<weekday> della prossima settimana", {.weeksAhead = 1}},
                {u"la? settimana prossima <weekday>?", {.weeksAhead = 1}},
                {u"la? prossima settimana <weekday>?", {.weeksAhead = 1}},
                {u"questo|nel|per_il|durante_il weekend|week-end|fine_settimana", {.weekend = 0}},
                {u"il? prossimo weekend|week-end|fine_settimana", {.weekend = 1}},
                {u"a|entro|entro_la? fine mese", {.monthEnd = 1}},
                {u"a|alla|entro|entro_la|la? fine del mese", {.monthEnd = 1}},
                {u"il|l'? <day> °|º? <month> .? <year>?"},
                {u"il? primo <month> <year>?", {.day = 1}},
                {u"<day> / <monthnumber> / <year>"},
                {u"il|del|dal|entro_il|per_il <day> / <monthnumber>"},
                {u"<day> / <monthnumber>", {}, WithNeighbour},
                {u"il|entro_il|per_il|dal <day> °|º?", {}, AtEdge},
                {u"il primo del mese", {.day = 1}},
                {u"il <day> del mese prossimo", {.monthsAhead = 1}},
                {u"il <day> del prossimo mese", {.monthsAhead = 1}},
                {u"tra|fra|entro <n> <unit>"},
                {u"tra|fra mezz' ora", {.halves = 1, .unit = Hours}},
                {u"tra|fra mezzora", {.halves = 1, .unit = Hours}},
                {u"tra|fra un' ora e mezza|mezzo", {.halves = 3, .unit = Hours}},
                {u"tra|fra <n> ore e mezza|mezzo", {.halves = 1, .unit = Hours}},
                {u"tra|fra un quarto d' ora", {.halves = 30, .unit = Minutes}},
                {u"alle|dalle|per_le|verso_le|le|dopo_le|prima_delle|entro_le <hour> in_punto?", {}, AtEdge},
                {u"alle|dalle|per_le|verso_le|dopo_le|prima_delle|entro_le ore? <hour> : <mm>",
                    {.asWritten = 1}},
                {u"alle|dalle|per_le|verso_le|dopo_le|prima_delle|entro_le ore? <hour> . <mm>",
                    {.asWritten = 1}},
                {u"dalle <hour> alle <until>", {}, AtEdge},
                {u"tra|fra le <hour> e le <until>", {}, AtEdge},
                {u"ore <hour>", {}, AtEdge},
                {u"alle ore <hour>"},
                {u"ore <hour> . <mm>", {.asWritten = 1}},
                {u"alle|le|all' <hour> e mezza|mezzo", {.shift = 30}},
                {u"alle|le|all' <hour> e un quarto", {.shift = 15}},
                {u"alle|le|all' <hour> e tre quarti", {.shift = 45}},
                {u"alle|le|all' <hour> meno un quarto", {.shift = -15}},
                {u"alle|le|all' <hour> e <minute>"},
                {u"alle|le|all' <hour> meno <minute>", {.minutesBefore = 1}},
                {u"all' una", {.hour = 1}},
                {u"all' una e mezza|mezzo", {.hour = 1, .shift = 30}},
                {u"a|per? mezzanotte", {.hour = 24}},
                {u"a|per mezzogiorno", {.hour = 12, .asWritten = 1}},
                {u"a mezzogiorno e mezzo|mezza", {.hour = 12, .shift = 30, .asWritten = 1}},
            },
        .before = u"alle|il|la|entro|entro_il|entro_le|prima_del|prima_delle|per|per_il|per_le|dopo|dopo_le|"
                  u"dal|dalle|da|fino_a|verso_le|a|di|del|nel|le",
        .between = u"alle|a|il|di|nel|del|verso_le",
        .after = u"in_punto|precise",
        .notAfter = u"scorso|ogni|tutti_i|capitolo|versione|pagina|ieri|l'altro|della|la",
        .notBefore = u"scorso|scorsa|persone|euro|per_cento|come_oggi|ragazze|per_giorno",
        .idioms = u"oggi_come_oggi|oggi_giorno|black_friday",
    };
}
} // namespace

const LanguageRules &Languages::italian()
{
    static const LanguageRules rules{
        .markers = {u"alle", u"domani", u"oggi", u"ieri", u"lunedì", u"martedì", u"mercoledì", u"giovedì",
            u"venerdì", u"sabato", u"domenica", u"mezza", u"ricordami", u"dimenticare", u"di sera",
            u"di mattina", u"del pomeriggio", u"di notte", u"gennaio", u"febbraio", u"maggio", u"giugno",
            u"luglio", u"settembre", u"ottobre", u"novembre", u"dicembre"},
        .date = Regex(datePattern(), Regex::Case::Insensitive),
        .time = Regex(timePattern()),
        .expression = Regex(
            QStringLiteral("^(") + datePattern() + QStringLiteral(R"()\s*(?:alle\s+)?()") + timePattern()
                + QStringLiteral(R"()(?:\s+((?:di mattina|del pomeriggio|di sera|di notte)))?)"),
            Regex::Case::Insensitive),
        .groups = {.date = 1, .period = 3, .time = 2},
        .today = {u"oggi", u"ieri"},
        .tomorrow = {u"domani"},
        .dayAfterTomorrow = {u"dopodomani"},
        .next = {u"prossimo"},
        .weekdays = {{u"domenica", 0}, {u"lunedì", 1}, {u"martedì", 2}, {u"mercoledì", 3}, {u"giovedì", 4},
            {u"venerdì", 5}, {u"sabato", 6}},
        .months = {{u"gennaio", 1}, {u"febbraio", 2}, {u"marzo", 3}, {u"aprile", 4}, {u"maggio", 5},
            {u"giugno", 6}, {u"luglio", 7}, {u"agosto", 8}, {u"settembre", 9}, {u"ottobre", 10},
            {u"novembre", 11}, {u"dicembre", 12}},
        .periods = {{u"di mattina", HourRule::AsWritten}, {u"del pomeriggio", HourRule::Afternoon},
            {u"di sera", HourRule::Evening}, {u"di notte", HourRule::Night}},
        .halfPast = u"e mezza",
        .triggerPhrases = {u"ricordami", u"ricorda", u"non dimenticare"},
        .dates = dates(),
    };
    return rules;
}
