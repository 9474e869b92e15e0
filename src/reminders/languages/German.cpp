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
    };
    return rules;
}
