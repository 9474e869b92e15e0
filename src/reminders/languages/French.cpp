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
    };
    return rules;
}
