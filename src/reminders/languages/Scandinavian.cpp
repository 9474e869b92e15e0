#include "reminders/languages/Languages.h"

const LanguageRules &Languages::scandinavian()
{
    using enum DateWords::Strength;
    using enum DayPart;
    using enum SpanUnit;
    static const LanguageRules rules{
        .relativeDays = {{u"i dag|idag", 0}, {u"i morgen|imorgen|i morgon|imorgon", 1},
            {u"i overmorgen|overmorgen|i övermorgon|övermorgon", 2, u"iovermorgen|iövermorgon"}},
        .weekdays = {{u"søndag|söndag", 0, u"sønd"}, {u"mandag|måndag", 1}, {u"tirsdag|tisdag", 2},
            {u"onsdag", 3}, {u"torsdag", 4}, {u"fredag", 5}, {u"lørdag|lördag", 6}},
        .months = {{u"januar|januari", 1, u"jan"}, {u"februar|februari", 2, u"feb|febr"}, {u"marts|mars", 3},
            {u"april", 4, u"apr"}, {u"maj|mai", 5}, {u"juni", 6, u"jun"}, {u"juli", 7, u"jul"},
            {u"august|augusti", 8, u"aug"}, {u"september", 9, u"sept|sep"}, {u"oktober", 10, u"okt"},
            {u"november", 11, u"nov"}, {u"december|desember", 12, u"dec|des"}},
        .dayParts =
            {{u"morgen|morgon|formiddag|förmiddag", Morning,
                 u"om morgenen|på morgonen|om formiddagen|på förmiddagen|tidlig|tidligt|bitti|tidig morgon"},
                {u"", Noon, u"ved middagstid|ved lunchtid", u"middag"},
                {u"eftermiddag|ettermiddag", Afternoon,
                    u"om eftermiddagen|på eftermiddagen|om ettermiddagen|på ettermiddagen"},
                {u"aften|kveld|kväll", Evening, u"om aftenen|om kvelden|på kvelden|på kvällen",
                    u"i aften|i kveld|i kväll"},
                {u"nat|natt", Night, u"om natten|på natten|om natta"}},
        .triggerPhrases = {u"husk at", u"husk å", u"husk", u"mind mig om", u"minn meg på", u"påminn mig",
            u"kom ihåg att", u"kom ihåg", u"glem ikke", u"glöm inte", u"ikke glem"},
        .grammar =
            {
                .date =
                    uR"((?:<day>|<ymd>|\d{1,2}\.?\s*(?:<month>)|(?:næste|neste|nästa)\s*)?(?:<weekday>)?)",
                .time = uR"(\d{1,2}:\d{2}|\d{1,2}(?::\d{2})?|halv\s+\d{1,2})",
                .pattern = uR"(^(<date>)\s*(<part>)?\s*(?:kl\.?|klokka|klockan|om)?\s*(<time>))",
                .pastDays = u"i går|igår",
                .next = u"næste|neste|nästa",
                .halfBefore = u"halv",
            },
        .dates =
            {
                .numbers = {{u"en|et|ett|ei|én|ét", 1}, {u"to|två", 2}, {u"tre", 3}, {u"fire|fyra", 4},
                    {u"fem", 5}, {u"seks|sex", 6}, {u"syv|sju", 7}, {u"otte|åtte|åtta", 8}, {u"ni|nio", 9},
                    {u"ti|tio", 10}, {u"elleve|elva", 11}, {u"tolv", 12}, {u"tretten|tretton", 13},
                    {u"fjorten|fjorton", 14}, {u"femten|femton", 15}, {u"seksten|sexton", 16},
                    {u"sytten|sjutton", 17}, {u"atten|arton", 18}, {u"nitten|nitton", 19},
                    {u"tyve|tjue|tjugo", 20}, {u"tredive|tretti|trettio", 30}, {u"fyrre|førti|fyrtio", 40},
                    {u"femogfyrre|førtifem|fyrtiofem", 45}},
                .ordinals = {{u"første|första", 1}, {u"femte", 5}, {u"tiende|tionde", 10},
                    {u"femtende|femtonde", 15}},
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
                        {u"næste|neste|nästa <weekday>", {.next = true}},
                        {u"<weekday> i? næste|neste|nästa uge|uke|vecka", {.weeksAhead = 1}},
                        {u"i? næste|neste|nästa uge|uke|vecka <weekday>?", {.weeksAhead = 1}},
                        {u"<weekday> kväll|kveld|aften", {.part = Evening}},
                        {u"<relative> middag", {.part = Noon}},
                        {u"<weekday> middag", {.part = Noon}},
                        {u"i weekenden|helgen|helga", {.weekend = 0}},
                        {u"næste|neste weekend|helg", {.weekend = 1}},
                        {u"nästa helg", {.weekend = 1}},
                        {u"udgangen|slutten|slutet|slutningen av|af måneden|månaden", {.monthEnd = true}},
                        {u"månedens udgang|slutning", {.monthEnd = true}},
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
                        {u"kl|klokka|klokken|klockan .? <hour> . <mm>", {.asWritten = true}},
                        {u"kl|klokka|klokken|klockan .? <hour> : <mm>", {.asWritten = true}},
                        {u"<hour> . <mm>", {.asWritten = true}, WithNeighbour},
                        {u"kl|klokka|klokken|klockan .? halv <hour>", {.shift = -30}},
                        {u"kl|klokka|klokken|klockan .? <hour> - <until>"},
                        {u"fra|från|mellan|mellom|mellem kl|klokka|klokken|klockan? .? <hour> "
                         u"til|till|og|och "
                         u"<until>",
                            {}, WithNeighbour},
                        {u"halv <hour>", {.shift = -30}},
                        {u"kvart over|över <hour>", {.shift = 15}},
                        {u"kvart i|på <hour>", {.shift = -15}},
                        {u"<minute> minutter|minuter? over|över <hour>"},
                        {u"<minute> minutter|minuter? i|på <hour>", {.minutesBefore = true}},
                        {u"<minute> over|över halv <hour>", {.shift = -30}},
                        {u"<minute> i|på halv <hour>", {.minutesBefore = true, .shift = -30}},
                        {u"ved|vid|til? midnat|midnatt", {.hour = 24}},
                        {u"ved middag", {.hour = 12, .asWritten = true}},
                    },
                .before = u"kl|kl.|klokka|klokken|klockan|om|på|den|inden|innen|senest|senast|før|före|efter|"
                          u"etter|til|till|fra|från|ved|vid|i|fram til|nu|omkring|inden den|innen den",
                .between = u"kl|kl.|klokka|klokken|klockan|den|om|på|i|ved",
                .after = u"præcis|presis|prick",
                .notAfter = u"forrige|sidste|förra|hver|hvert|varje|alle|kapitel|version|side|i "
                            u"går|god|gode|guten|goede",
                .notBefore = u"personer|kroner|kronor|prosent|procent|verdenskrig|plads|plass|etage|etasje|"
                             u"sal|element|stykker",
            },
    };
    return rules;
}

const Languages::ScandinavianMarkers &Languages::scandinavianMarkers()
{
    static const ScandinavianMarkers markers{
        .anyOfThem = u"i morgen|i morgon|i overmorgen|i övermorgon|overmorgen|övermorgon|i "
                     u"går|igår|næste|neste|nästa|<weekday>|klokka|klockan|klokken|halv|marts|kveld|kväll|"
                     u"aften|ettermiddag|eftermiddag",
        .swedish = u"igår|i morgon|i övermorgon|övermorgon|kväll|klockan|måndag|tisdag|lördag|söndag|nästa",
        .danish = u"marts|aften|eftermiddag|klokken",
        .norwegian = u"kveld|ettermiddag|klokka|mars",
    };
    return markers;
}
