#include "reminders/languages/Languages.h"

const Words<int> &Languages::frenchMonths()
{
    static const Words<int> months{{u"janvier", 1, u"janv"}, {u"février", 2, u"fév|févr"}, {u"mars", 3},
        {u"avril", 4, u"avr"}, {u"mai", 5}, {u"juin", 6}, {u"juillet", 7, u"juil"}, {u"août", 8},
        {u"septembre", 9, u"sept"}, {u"octobre", 10, u"oct"}, {u"novembre", 11, u"nov"},
        {u"décembre", 12, u"déc"}};
    return months;
}

const LanguageRules &Languages::french()
{
    using enum DateWords::Strength;
    using enum DayPart;
    using enum SpanUnit;
    static const LanguageRules rules{
        .markers = u"demain|aujourd|<weekday>|matin|après-midi|soir|nuit|heures|rappelle|n'oublie|pense",
        .relativeDays = {{u"aujourd'hui", 0}, {u"demain", 1}, {u"après-demain", 2, u"après demain"}},
        .weekdays = {{u"dimanche", 0}, {u"lundi", 1}, {u"mardi", 2}, {u"mercredi", 3}, {u"jeudi", 4},
            {u"vendredi", 5}, {u"samedi", 6}},
        .months = frenchMonths(),
        .dayParts = {{u"du matin", Morning, u"matin|au matin|dans la matinée"}, {u"", Noon, u"midi|à midi"},
            {u"de l'après-midi", Afternoon, u"après-midi|l'après-midi|dans l'après-midi|en fin d'après-midi"},
            {u"du soir", Evening, u"soir|au soir|en soirée|dans la soirée"},
            {u"", Night, u"nuit|dans la nuit"}},
        .triggerPhrases = {u"rappelle-moi", u"rappelle", u"n'oublie pas", u"pense à", u"pensez à"},
        .grammar =
            {
                .date =
                    uR"(<day>|<ymd>|\d{1,2}\s*(?:<anymonth>)|(?:<anymonth>)\s+\d{1,2}|(?:<weekday>)(?:\s+prochain)?)",
                .time = uR"(\d{1,2}:\d{2}|\d{1,2}h(?:\d{2})?(?:\s*(?:et demie|heures?))?)",
                .pattern = uR"(^(<date>)?\s*(?:à\s+)?(<time>)(?:\s+(<part>))?)",
                .groups = {.date = 1, .period = 3, .time = 2},
                .pastDays = u"hier",
                .next = u"prochain",
                .otherMonths = {&germanMonths(), &spanishMonths()},
                .halfPast = u"et demie",
                .minutes = uR"(h(\d{1,2}))",
            },
        .dates =
            {
                .numbers = {{u"un|une", 1}, {u"deux", 2}, {u"trois", 3}, {u"quatre", 4}, {u"cinq", 5},
                    {u"six", 6}, {u"sept", 7}, {u"huit", 8}, {u"neuf", 9}, {u"dix", 10}, {u"onze", 11},
                    {u"douze", 12}, {u"treize", 13}, {u"quatorze", 14}, {u"quinze", 15}, {u"seize", 16},
                    {u"dix-sept", 17}, {u"dix-huit", 18}, {u"dix-neuf", 19}, {u"vingt", 20},
                    {u"vingt et une|vingt-et-une|vingt et un", 21}, {u"vingt-deux", 22}, {u"vingt-trois", 23},
                    {u"vingt-cinq", 25}, {u"trente", 30}, {u"quarante", 40}, {u"quarante-cinq", 45}},
                .ordinals = {{u"premier", 1}},
                .units = {{u"minutes|minute|min|mn", Minutes}, {u"heures|heure", Hours},
                    {u"jours|jour", Days}, {u"semaines|semaine", Weeks}, {u"mois", Months}},
                .rules =
                    {
                        {u"<relative>"},
                        {u"ce soir", {.relativeDay = 0, .part = Evening}},
                        {u"ce matin", {.relativeDay = 0, .part = Morning}},
                        {u"cet après-midi", {.relativeDay = 0, .part = Afternoon}},
                        {u"ce midi", {.relativeDay = 0, .part = Noon}},
                        {u"cette nuit", {.relativeDay = 0, .part = Night}},
                        {u"<weekday> prochain", {.next = true}},
                        {u"ce? <weekday>"},
                        {u"<weekday> de la semaine prochaine", {.weeksAhead = 1}},
                        {u"la? semaine prochaine <weekday>?", {.weeksAhead = 1}},
                        {u"<weekday> en huit", {.weeksLater = 1}},
                        {u"le <day> du mois prochain", {.monthsAhead = 1}},
                        {u"ce|pendant_le|pour_le week-end|weekend", {.weekend = 0}},
                        {u"le? week-end|weekend prochain", {.weekend = 1}},
                        {u"la? fin du mois", {.monthEnd = true}},
                        {u"fin de? mois", {.monthEnd = true}},
                        {u"la? fin du mois prochain", {.monthsAhead = 1, .monthEnd = true}},
                        {u"le|l'? <day> er|e|eme|ème? <month> .? <year>?"},
                        {u"le? premier <month> <year>?", {.day = 1}},
                        {u"<day> / <monthnumber> / <year>"},
                        {u"le|du|au|avant_le|pour_le <day> / <monthnumber>"},
                        {u"<day> / <monthnumber>", {}, WithNeighbour},
                        {u"le|au|avant_le|pour_le|d'ici_le <day> er?", {}, AtEdge},
                        {u"dans|d'ici|sous <n> <unit>"},
                        {u"dans|d'ici <n> demi-heure|demi_heure", {.halves = -1, .unit = Hours}},
                        {u"dans|d'ici une heure et demie|demi", {.halves = 3, .unit = Hours}},
                        {u"dans <n> heures et demie|demi", {.halves = 1, .unit = Hours}},
                        {u"dans un quart d' heure", {.halves = 30, .unit = Minutes}},
                        {u"dans trois quarts d' heure", {.halves = 90, .unit = Minutes}},
                        {u"dans <n> h", {.unit = Hours}},
                        {u"de|entre <hour> h à|et <until> h"},
                        {u"de|entre <hour> h <mm> à|et <until> h <until>?", {.asWritten = true}},
                        {u"<hour> h"},
                        {u"<hour> h <mm>", {.asWritten = true}},
                        {u"<hour> heures|heure", {}, WithNeighbour},
                        {u"<hour> heures|heure <minute>", {}, WithNeighbour},
                        {u"à|vers|dès|avant|après|pour <hour> heures|heure"},
                        {u"à|vers|dès|avant|après|pour <hour> heures|heure <minute>"},
                        {u"<hour> heures|heure et demie|demi", {.shift = 30}},
                        {u"<hour> heures|heure et quart", {.shift = 15}},
                        {u"<hour> heures|heure moins le? quart", {.shift = -15}},
                        {u"<hour> heures|heure moins <minute>", {.minutesBefore = true}},
                        {u"à|a midi et demi|demie", {.hour = 12, .shift = 30, .asWritten = true}},
                        {u"à|a|pour midi", {.hour = 12, .asWritten = true}, AtEdge},
                        {u"à|a? minuit", {.hour = 24}},
                        {u"à|vers <hour>", {}, WithNeighbour},
                    },
                .before = u"à|a|le|avant|avant le|après|pour|pour "
                          u"le|dès|vers|jusqu'à|jusqu'au|au|du|de|d'ici|la|les|avant la|ce|dès le|en",
                .between = u"à|le|vers|dans|en|au|pour|de",
                .after = u"pile|précises|précise",
                .notAfter = u"dernier|tous les|chaque|chapitre|version|page|hier|avant-hier|il y a",
                .notBefore =
                    u"de route|de trajet|de train|de sport|de travail|de vol|de marche|de "
                    u"sommeil|dernier|derniers|personnes|euros|pour cent|siècle|étage|prix|avril fish",
                .idioms = u"vendredi saint|black friday",
            },
    };
    return rules;
}
