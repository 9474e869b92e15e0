#include "reminders/languages/Languages.h"

namespace {
QString monthPattern()
{
    return QStringLiteral(
        R"((?:jan(?:uary)?|feb(?:ruary)?|mar(?:ch)?|apr(?:il)?|may|jun(?:e)?|jul(?:y)?|aug(?:ust)?)"
        R"(|sep(?:t(?:ember)?)?|oct(?:ober)?|nov(?:ember)?|dec(?:ember)?)\.?)");
}

QString datePattern()
{
    return QStringLiteral(
               R"((?:today|tomorrow|the day after tomorrow|yesterday|\d{4}[-/]\d{1,2}[-/]\d{1,2}|)")
           + monthPattern() + QStringLiteral(R"(\s+\d{1,2}(?:st|nd|rd|th)?|\d{1,2}(?:st|nd|rd|th)?\s+)")
           + monthPattern()
           + QStringLiteral(
               R"(|(?:next\s+)?(?:mon(?:day)?|tue(?:s(?:day)?)?|wed(?:nesday)?|thu(?:rs(?:day)?)?)"
               R"(|fri(?:day)?|sat(?:urday)?|sun(?:day)?)))");
}

QString timePattern()
{
    return QStringLiteral(R"((?:\d{1,2}(?::\d{2})?\s*(?:a\.?m\.?|p\.?m\.?)|\d{1,2}:\d{2}))");
}
} // namespace

const LanguageRules &Languages::english()
{
    static const LanguageRules rules{
        .markers = {},
        .date = Regex(datePattern(), Regex::Case::Insensitive),
        .time = Regex(timePattern(), Regex::Case::Insensitive),
        .expression = Regex(
            QStringLiteral("^(?:(") + datePattern() + QStringLiteral(R"()(?:\s*(?:at|on))?\s*()")
                + timePattern() + QStringLiteral(")|(") + timePattern()
                + QStringLiteral(R"()(?:\s+(?:(?:at|on)\s+)?()") + datePattern() + QStringLiteral("))?)"),
            Regex::Case::Insensitive),
        .groups = {.date = 1, .time = 2, .otherDate = 4, .otherTime = 3},
        .today = {u"today", u"yesterday"},
        .tomorrow = {u"tomorrow"},
        .dayAfterTomorrow = {u"the day after tomorrow"},
        .next = {u"next"},
        .weekdays = {{u"sun", 0}, {u"mon", 1}, {u"tue", 2}, {u"wed", 3}, {u"thu", 4}, {u"fri", 5},
            {u"sat", 6}},
        .months = {{u"jan", 1}, {u"feb", 2}, {u"mar", 3}, {u"apr", 4}, {u"may", 5}, {u"jun", 6}, {u"jul", 7},
            {u"aug", 8}, {u"sep", 9}, {u"oct", 10}, {u"nov", 11}, {u"dec", 12}},
        .periods = {{u"pm", HourRule::Afternoon}, {u"p.m.", HourRule::Afternoon},
            {u"am", HourRule::MidnightIsZero}, {u"a.m.", HourRule::MidnightIsZero}},
        .withoutPeriod = HourRule::AsWritten,
        .periodIsInTime = true,
        .triggerPhrases = {u"remind me to", u"remind me", u"remind", u"don't forget to", u"don't forget",
            u"don’t forget to", u"don’t forget", u"dont forget to", u"dont forget", u"remember to",
            u"remember"},
    };
    return rules;
}
