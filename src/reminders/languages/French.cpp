#include "reminders/languages/Languages.h"
#include "reminders/languages/SharedMonths.h"

namespace {
QString datePattern()
{
    return QStringLiteral(R"((?:aujourd'hui|demain|après-demain|hier|\d{4}[-/]\d{1,2}[-/]\d{1,2}|\d{1,2}\s*)")
           + SharedMonths::pattern() + QStringLiteral(R"(|)") + SharedMonths::pattern()
           + QStringLiteral(
               R"(\s+\d{1,2}|(?:lundi|mardi|mercredi|jeudi|vendredi|samedi|dimanche)(?:\s+prochain)?)?)");
}

QString timePattern()
{
    return QStringLiteral(R"((?:\d{1,2}:\d{2}|\d{1,2}h(?:\d{2})?(?:\s*(?:et demie|heures?))?))");
}

DateWords dates()
{
    using enum DateWords::Strength;
    using enum DayPart;
    using enum SpanUnit;
    return {
        .relativeDays = {{u"aujourd'hui", 0}, {u"demain", 1}, {u"après-demain|après_demain", 2}},
        .weekdays = {{u"dimanche", 0}, {u"lundi", 1}, {u"mardi", 2}, {u"mercredi", 3}, {u"jeudi", 4},
            {u"vendredi", 5}, {u"samedi", 6}},
        .months = {{u"janvier|janv", 1}, {u"février|fév|févr", 2}, {u"mars", 3}, {u"avril|avr", 4},
            {u"mai", 5}, {u"juin", 6}, {u"juillet|juil", 7}, {u"août", 8}, {u"septembre|sept", 9},
            {u"octobre|oct", 10}, {u"novembre|nov", 11}, {u"décembre|déc", 12}},
        .numbers = {{u"un|une", 1}, {u"deux", 2}, {u"trois", 3}, {u"quatre", 4}, {u"cinq", 5}, {u"six", 6},
            {u"sept", 7}, {u"huit", 8}, {u"neuf", 9}, {u"dix", 10}, {u"onze", 11}, {u"douze", 12},
            {u"treize", 13}, {u"quatorze", 14}, {u"quinze", 15}, {u"seize", 16}, {u"dix-sept", 17},
            {u"dix-huit", 18}, {u"dix-neuf", 19}, {u"vingt", 20},
            {u"vingt_et_une|vingt-et-une|vingt_et_un", 21}, {u"vingt-deux", 22}, {u"vingt-trois", 23},
            {u"vingt-cinq", 25}, {u"trente", 30}, {u"quarante", 40}, {u"quarante-cinq", 45}},
        .ordinals = {{u"premier", 1}},
        .parts = {{u"matin|du_matin|au_matin|dans_la_matinée", Morning}, {u"midi|à_midi", Noon},
            {u"après-midi|l'après-midi|de_l'après-midi|dans_l'après-midi|en_fin_d'après-midi", Afternoon},
            {u"soir|du_soir|au_soir|en_soirée|dans_la_soirée", Evening}, {u"nuit|dans_la_nuit", Night}},
        .units = {{u"minutes|minute|min|mn", Minutes}, {u"heures|heure", Hours}, {u"jours|jour", Days},
            {u"semaines|semaine", Weeks}, {u"mois", Months}},
        .rules =
            {
                {u"<relative>"},
                {u"ce soir", {.relativeDay = 0, .part = Evening}},
                {u"ce matin", {.relativeDay = 0, .part = Morning}},
                {u"cet après-midi", {.relativeDay = 0, .part = Afternoon}},
                {u"ce midi", {.relativeDay = 0, .part = Noon}},
                {u"cette nuit", {.relativeDay = 0, .part = Night}},
                {u"<weekday> prochain", {.next = 1}},
                {u"ce? <weekday>"},
                {u"<weekday> de la semaine prochaine", {.weeksAhead = 1}},
                {u"la? semaine prochaine <weekday>?", {.weeksAhead = 1}},
                {u"<weekday> en huit", {.weeksLater = 1}},
                {u"le <day> du mois prochain", {.monthsAhead = 1}},
                {u"ce|pendant_le|pour_le week-end|weekend", {.weekend = 0}},
                {u"le? week-end|weekend prochain", {.weekend = 1}},
                {u"la? fin du mois", {.monthEnd = 1}},
                {u"fin de? mois", {.monthEnd = 1}},
                {u"la? fin du mois prochain", {.monthsAhead = 1, .monthEnd = 1}},
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
                {u"de|entre <hour> h <mm> à|et <until> h <until>?", {.asWritten = 1}},
                {u"<hour> h"},
                {u"<hour> h <mm>", {.asWritten = 1}},
                {u"<hour> heures|heure", {}, WithNeighbour},
                {u"<hour> heures|heure <minute>", {}, WithNeighbour},
                {u"à|vers|dès|avant|après|pour <hour> heures|heure"},
                {u"à|vers|dès|avant|après|pour <hour> heures|heure <minute>"},
                {u"<hour> heures|heure et demie|demi", {.shift = 30}},
                {u"<hour> heures|heure et quart", {.shift = 15}},
                {u"<hour> heures|heure moins le? quart", {.shift = -15}},
                {u"<hour> heures|heure moins <minute>", {.minutesBefore = 1}},
                {u"à|a midi et demi|demie", {.hour = 12, .shift = 30, .asWritten = 1}},
                {u"à|a|pour midi", {.hour = 12, .asWritten = 1}, AtEdge},
                {u"à|a? minuit", {.hour = 24}},
                {u"à|vers <hour>", {}, WithNeighbour},
            },
        .before = u"à|a|le|avant|avant_le|après|pour|pour_le|dès|vers|jusqu'à|jusqu'au|au|du|de|d'ici|la|les|"
                  u"avant_la|ce|dès_le|en",
        .between = u"à|le|vers|dans|en|au|pour|de",
        .after = u"pile|précises|précise",
        .notAfter = u"dernier|tous_les|chaque|chapitre|version|page|hier|avant-hier|il_y_a",
        .notBefore = u"de_route|de_trajet|de_train|de_sport|de_travail|de_vol|de_marche|de_sommeil|dernier|"
                     u"derniers|personnes|euros|pour_cent|siècle|étage|prix|avril_fish",
        .idioms = u"vendredi_saint|black_friday",
    };
}
} // namespace

const LanguageRules &Languages::french()
{
    static const LanguageRules rules{
        .markers = {u"demain", u"aujourd", u"lundi", u"mardi", u"mercredi", u"jeudi", u"vendredi", u"samedi",
            u"dimanche", u"matin", u"après-midi", u"soir", u"nuit", u"heures", u"rappelle", u"n'oublie",
            u"pense"},
        .date = Regex(datePattern(), Regex::Case::Insensitive),
        .time = Regex(timePattern()),
        .expression =
            Regex(QStringLiteral("^(") + datePattern() + QStringLiteral(R"()\s*(?:à\s+)?()") + timePattern()
                      + QStringLiteral(R"()(?:\s+((?:du matin|de l'après-midi|du soir)))?)"),
                Regex::Case::Insensitive),
        .groups = {.date = 1, .period = 3, .time = 2},
        .today = {u"aujourd'hui", u"hier"},
        .tomorrow = {u"demain"},
        .dayAfterTomorrow = {u"après-demain"},
        .next = {u"prochain"},
        .weekdays = {{u"dimanche", 0}, {u"lundi", 1}, {u"mardi", 2}, {u"mercredi", 3}, {u"jeudi", 4},
            {u"vendredi", 5}, {u"samedi", 6}},
        .months = SharedMonths::numbers(),
        .periods = {{u"du matin", HourRule::AsWritten}, {u"de l'après-midi", HourRule::Afternoon},
            {u"du soir", HourRule::Evening}},
        .halfPast = u"et demie",
        .minutes = Regex(QStringLiteral(R"(h(\d{1,2}))"), Regex::Case::Insensitive),
        .triggerPhrases = {u"rappelle-moi", u"rappelle", u"n'oublie pas", u"pense à", u"pensez à"},
        .dates = dates(),
    };
    return rules;
}
