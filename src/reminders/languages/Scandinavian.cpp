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

DateWords dates()
{
    using enum DateWords::Strength;
    using enum DayPart;
    using enum SpanUnit;
    return {
        .relativeDays = {{u"i_dag|idag", 0}, {u"i_morgen|imorgen|i_morgon|imorgon", 1},
            {u"i_overmorgen|overmorgen|i_övermorgon|övermorgon|iovermorgen|iövermorgon", 2}},
        .weekdays = {{u"søndag|söndag|sønd", 0}, {u"mandag|måndag", 1}, {u"tirsdag|tisdag", 2},
            {u"onsdag", 3}, {u"torsdag", 4}, {u"fredag", 5}, {u"lørdag|lördag", 6}},
        .months = {{u"januar|januari|jan", 1}, {u"februar|februari|feb|febr", 2}, {u"marts|mars", 3},
            {u"april|apr", 4}, {u"maj|mai", 5}, {u"juni|jun", 6}, {u"juli|jul", 7},
            {u"august|augusti|aug", 8}, {u"september|sept|sep", 9}, {u"oktober|okt", 10},
            {u"november|nov", 11}, {u"december|desember|dec|des", 12}},
        .numbers = {{u"en|et|ett|ei|én|ét", 1}, {u"to|två", 2}, {u"tre", 3}, {u"fire|fyra", 4}, {u"fem", 5},
            {u"seks|sex", 6}, {u"syv|sju", 7}, {u"otte|åtte|åtta", 8}, {u"ni|nio", 9}, {u"ti|tio", 10},
            {u"elleve|elva", 11}, {u"tolv", 12}, {u"tretten|tretton", 13}, {u"fjorten|fjorton", 14},
            {u"femten|femton", 15}, {u"seksten|sexton", 16}, {u"sytten|sjutton", 17}, {u"atten|arton", 18},
            {u"nitten|nitton", 19}, {u"tyve|tjue|tjugo", 20}, {u"tredive|tretti|trettio", 30},
            {u"fyrre|førti|fyrtio", 40}, {u"femogfyrre|førtifem|fyrtiofem", 45}},
        .ordinals = {{u"første|första", 1}, {u"femte", 5}, {u"tiende|tionde", 10},
            {u"femtende|femtonde", 15}},
        .parts = {{u"morgen|om_morgenen|morgon|på_morgonen|formiddag|om_formiddagen|förmiddag|på_förmiddagen|"
                   u"tidlig|tidligt|bitti|tidig_morgon",
                      Morning},
            {u"ved_middagstid|ved_lunchtid", Noon},
            {u"eftermiddag|om_eftermiddagen|på_eftermiddagen|ettermiddag|om_ettermiddagen|på_ettermiddagen",
                Afternoon},
            {u"aften|om_aftenen|kveld|om_kvelden|på_kvelden|kväll|på_kvällen", Evening},
            {u"nat|om_natten|natt|på_natten|om_natta", Night}},
        .units = {{u"minutter|minut|minutt|minuter|minutten|min", Minutes},
            {u"timer|time|timmar|timme", Hours}, {u"dage|dag|dager|dagar|døgn|dygn", Days},
            {u"uger|uge|uker|uke|veckor|vecka", Weeks}, {u"måneder|måned|månader|månad", Months}},
        .rules =
            {
                {u"<relative>"},
                {u"i aften|kveld|kväll", {.relativeDay = 0, .part = Evening}},
                {u"ikväll|ikveld", {.relativeDay = 0, .part = Evening}},
                {u"i eftermiddag|ettermiddag", {.relativeDay = 0, .part = Afternoon}},
                {u"i formiddag|förmiddag", {.relativeDay = 0, .part = Morning}},
                {u"i nat|natt", {.relativeDay = 0, .part = Night}},
                {u"på|nu_på|kommende|førstkommende|kommande|denne|den_her? <weekday>"},
                {u"næste|neste|nästa <weekday>", {.next = 1}},
                {u"<weekday> i? næste|neste|nästa uge|uke|vecka", {.weeksAhead = 1}},
                {u"i? næste|neste|nästa uge|uke|vecka <weekday>?", {.weeksAhead = 1}},
                {u"<weekday> kväll|kveld|aften", {.part = Evening}},
                {u"<relative> middag", {.part = Noon}},
                {u"<weekday> middag", {.part = Noon}},
                {u"i weekenden|helgen|helga", {.weekend = 0}},
                {u"næste|neste weekend|helg", {.weekend = 1}},
                {u"nästa helg", {.weekend = 1}},
                {u"udgangen|slutten|slutet|slutningen av|af måneden|månaden", {.monthEnd = 1}},
                {u"månedens udgang|slutning", {.monthEnd = 1}},
                {u"den? <day> . <month> .? <year>?"},
                {u"den? <day> : e|a <month> <year>?"},
                {u"den? <day> <month> .? <year>?"},
                {u"<day> . <monthnumber> . <year>?"},
                {u"<day> / <monthnumber> <year>?", {}, WithNeighbour},
                {u"den|senest|innen|inden|före|på <day> / <monthnumber>"},
                {u"den|innen_den|inden_den <day> .", {}, AtEdge},
                {u"den <day> : e|a", {}, AtEdge},
                {u"den <ordinal>", {}, AtEdge},
                {u"<weekday> om en uge|uke|vecka", {.weeksLater = 1}},
                {u"om <n> <unit>"},
                {u"om en halv time|timme", {.halves = 1, .unit = Hours}},
                {u"om en halvtime|halvtimme", {.halves = 1, .unit = Hours}},
                {u"om halvanden|halvannen time", {.halves = 3, .unit = Hours}},
                {u"om en og|och en? halv time|timme", {.halves = 3, .unit = Hours}},
                {u"om et|ett|en kvarter|kvart", {.halves = 30, .unit = Minutes}},
                {u"om et par <unit>", {.halves = 4}},
                {u"kl|klokka|klokken|klockan .? <hour>"},
                {u"kl|klokka|klokken|klockan .? <hour> . <mm>", {.asWritten = 1}},
                {u"kl|klokka|klokken|klockan .? <hour> : <mm>", {.asWritten = 1}},
                {u"<hour> . <mm>", {.asWritten = 1}, WithNeighbour},
                {u"kl|klokka|klokken|klockan .? halv <hour>", {.shift = -30}},
                {u"kl|klokka|klokken|klockan .? <hour> - <until>"},
                {u"fra|från|mellan|mellom|mellem kl|klokka|klokken|klockan? .? <hour> til|till|og|och "
                 u"<until>",
                    {}, WithNeighbour},
                {u"halv <hour>", {.shift = -30}},
                {u"kvart over|över <hour>", {.shift = 15}},
                {u"kvart i|på <hour>", {.shift = -15}},
                {u"<minute> minutter|minuter? over|över <hour>"},
                {u"<minute> minutter|minuter? i|på <hour>", {.minutesBefore = 1}},
                {u"<minute> over|över halv <hour>", {.shift = -30}},
                {u"<minute> i|på halv <hour>", {.minutesBefore = 1, .shift = -30}},
                {u"ved|vid|til? midnat|midnatt", {.hour = 24}},
                {u"ved middag", {.hour = 12, .asWritten = 1}},
            },
        .before = u"kl|kl.|klokka|klokken|klockan|om|på|den|inden|innen|senest|senast|før|före|efter|etter|"
                  u"til|till|fra|från|ved|vid|i|fram_til|nu|omkring|inden_den|innen_den",
        .between = u"kl|kl.|klokka|klokken|klockan|den|om|på|i|ved",
        .after = u"præcis|presis|prick",
        .notAfter =
            u"forrige|sidste|förra|hver|hvert|varje|alle|kapitel|version|side|i_går|god|gode|guten|goede",
        .notBefore = u"personer|kroner|kronor|prosent|procent|verdenskrig|plads|plass|etage|etasje|sal|"
                     u"element|stykker",
    };
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
        .dates = dates(),
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
