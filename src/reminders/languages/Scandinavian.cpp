#include "reminders/languages/Languages.h"

namespace {
QString monthPattern()
{
    return QStringLiteral(
        R"((?:januar|januari|februar|februari|marts|mars|april|maj|mai|juni|juli|august|augusti|september)"
        R"(|oktober|november|december|desember))");
}

QString datePattern()
{
    return QStringLiteral(
               R"((?:i dag|idag|i morgen|imorgen|i morgon|imorgon|i overmorgen|i övermorgon|overmorgen|övermorgon|i går|igår)"
               R"(|\d{4}[-/]\d{1,2}[-/]\d{1,2}|\d{1,2}\.?\s*)")
           + monthPattern()
           + QStringLiteral(
               R"(|(?:næste|neste|nästa)\s*)?(?:mandag|måndag|tirsdag|tisdag|onsdag|torsdag|fredag|lørdag|lördag|søndag|söndag)?)");
}

QString timePattern()
{
    return QStringLiteral(
        R"((?:\d{1,2}:\d{2}|(?:kl\.?|klokka|klockan)\s*\d{1,2}(?::\d{2})?|halv\s+\d{1,2}))");
}
} // namespace

const LanguageRules &Languages::scandinavian()
{
    static const LanguageRules rules{
        .markers = {},
        .date = Regex(datePattern(), Regex::Case::Insensitive),
        .time = Regex(timePattern()),
        .expression =
            Regex(QStringLiteral("^(") + datePattern()
                      + QStringLiteral(R"()\s*((?:i aften|i kveld|i kväll|morgen|morgon|formiddag|förmiddag)"
                                       R"(|middag|eftermiddag|ettermiddag|aften|kveld|kväll|nat|natt)?)"
                                       // The "kl." belongs to the expression here, not to the time.
                                       R"()?\s*(?:kl\.?|klokka|klockan|om)?\s*()"
                                       R"((?:\d{1,2}:\d{2}|\d{1,2}(?::\d{2})?|halv\s+\d{1,2})))"),
                Regex::Case::Insensitive),
        .groups = {.date = 1, .period = 2, .time = 3},
        .today = {u"i dag", u"idag", u"i går", u"igår"},
        .tomorrow = {u"i morgen", u"imorgen", u"i morgon", u"imorgon"},
        .dayAfterTomorrow = {u"i overmorgen", u"overmorgen", u"i övermorgon", u"övermorgon"},
        .next = {u"næste", u"neste", u"nästa"},
        .weekdays = {{u"søndag", 0}, {u"söndag", 0}, {u"mandag", 1}, {u"måndag", 1}, {u"tirsdag", 2},
            {u"tisdag", 2}, {u"onsdag", 3}, {u"torsdag", 4}, {u"fredag", 5}, {u"lørdag", 6}, {u"lördag", 6}},
        .months = {{u"januar", 1}, {u"februar", 2}, {u"marts", 3}, {u"mars", 3}, {u"april", 4}, {u"maj", 5},
            {u"mai", 5}, {u"juni", 6}, {u"juli", 7}, {u"august", 8}, {u"september", 9}, {u"oktober", 10},
            {u"november", 11}, {u"december", 12}, {u"desember", 12}},
        .periods = {{u"morgen", HourRule::AsWritten}, {u"morgon", HourRule::AsWritten},
            {u"formiddag", HourRule::AsWritten}, {u"förmiddag", HourRule::AsWritten},
            {u"middag", HourRule::AsWritten}, {u"eftermiddag", HourRule::Afternoon},
            {u"ettermiddag", HourRule::Afternoon}, {u"aften", HourRule::Evening},
            {u"kveld", HourRule::Evening}, {u"kväll", HourRule::Evening}, {u"i aften", HourRule::Evening},
            {u"i kveld", HourRule::Evening}, {u"i kväll", HourRule::Evening}, {u"nat", HourRule::Night},
            {u"natt", HourRule::Night}},
        .halfBefore = u"halv",
        .triggerPhrases = {u"husk at", u"husk å", u"husk", u"mind mig om", u"minn meg på", u"påminn mig",
            u"kom ihåg att", u"kom ihåg", u"glem ikke", u"glöm inte", u"ikke glem"},
    };
    return rules;
}

const ScandinavianMarkers &Languages::scandinavianMarkers()
{
    static const ScandinavianMarkers markers{
        .dateWords = {u"i morgen", u"i morgon", u"i overmorgen", u"i övermorgon", u"overmorgen",
            u"övermorgon", u"i går", u"igår", u"næste", u"neste", u"nästa", u"mandag", u"måndag", u"tirsdag",
            u"tisdag", u"onsdag", u"torsdag", u"fredag", u"lørdag", u"lördag", u"søndag", u"söndag"},
        .timeWords = {u"klokka", u"klockan", u"klokken", u"halv", u"marts", u"kveld", u"kväll", u"aften",
            u"ettermiddag", u"eftermiddag"},
        .swedishWords = {u"igår", u"i morgon", u"i övermorgon", u"övermorgon", u"kväll", u"klockan",
            u"måndag", u"tisdag", u"lördag", u"söndag", u"nästa"},
        .danishWords = {u"marts", u"aften", u"eftermiddag", u"klokken"},
        .norwegianWords = {u"kveld", u"ettermiddag", u"klokka", u"mars"},
    };
    return markers;
}
