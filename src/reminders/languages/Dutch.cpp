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
    };
    return rules;
}
