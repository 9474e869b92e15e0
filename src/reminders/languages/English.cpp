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

DateWords dates()
{
    using enum DateWords::Strength;
    using enum DayPart;
    using enum SpanUnit;
    return {
        .relativeDays = {{u"today", 0}, {u"tomorrow|tmrw|tmr|tomorow|tommorow|tommorrow", 1},
            {u"the_day_after_tomorrow|day_after_tomorrow|overmorrow", 2}},
        .weekdays = {{u"sunday", 0}, {u"monday", 1}, {u"tuesday|tues|tue", 2}, {u"wednesday|weds", 3},
            {u"thursday|thurs|thur|thu", 4}, {u"friday|fri", 5}, {u"saturday", 6}},
        .months = {{u"january|jan", 1}, {u"february|feb", 2}, {u"march|mar", 3}, {u"april|apr", 4},
            {u"may", 5}, {u"june|jun", 6}, {u"july|jul", 7}, {u"august|aug", 8}, {u"september|sept|sep", 9},
            {u"october|oct", 10}, {u"november|nov", 11}, {u"december|dec", 12}},
        .numbers = {{u"one", 1}, {u"two", 2}, {u"three", 3}, {u"four", 4}, {u"five", 5}, {u"six", 6},
            {u"seven", 7}, {u"eight", 8}, {u"nine", 9}, {u"ten", 10}, {u"eleven", 11}, {u"twelve", 12},
            {u"thirteen", 13}, {u"fourteen", 14}, {u"fifteen", 15}, {u"sixteen", 16}, {u"seventeen", 17},
            {u"eighteen", 18}, {u"nineteen", 19}, {u"twenty", 20}, {u"twenty-five", 25}, {u"thirty", 30},
            {u"forty", 40}, {u"forty-five", 45}},
        .ordinals = {{u"first", 1}, {u"second", 2}, {u"third", 3}, {u"fourth", 4}, {u"fifth", 5},
            {u"sixth", 6}, {u"seventh", 7}, {u"eighth", 8}, {u"ninth", 9}, {u"tenth", 10}, {u"eleventh", 11},
            {u"twelfth", 12}, {u"fifteenth", 15}, {u"twentieth", 20}},
        .parts = {{u"morning|in_the_morning", Morning}, {u"noon|midday|lunchtime", Noon},
            {u"afternoon|in_the_afternoon", Afternoon}, {u"evening|in_the_evening", Evening},
            {u"night|at_night", Night}, {u"am|a.m.|a.m", Am}, {u"pm|p.m.|p.m", Pm}},
        .units = {{u"minutes|minute|mins|min", Minutes}, {u"hours|hour|hrs|hr", Hours}, {u"days|day", Days},
            {u"weeks|week", Weeks}, {u"months|month", Months}},
        .rules =
            {
                {u"<relative>"},
                {u"tonight|tonite", {.relativeDay = 0, .part = Evening}},
                {u"this morning", {.relativeDay = 0, .part = Morning}},
                {u"this afternoon", {.relativeDay = 0, .part = Afternoon}},
                {u"this evening", {.relativeDay = 0, .part = Evening}},
                {u"this|coming|upcoming? <weekday>"},
                {u"next <weekday>", {.next = 1}},
                {u"sun", {.weekday = 0}, WithNeighbour},
                {u"mon", {.weekday = 1}, WithNeighbour},
                {u"wed", {.weekday = 3}, WithNeighbour},
                {u"sat", {.weekday = 6}, WithNeighbour},
                {u"on|by|this|until sun", {.weekday = 0}, AtEdge},
                {u"on|by|this|until mon", {.weekday = 1}},
                {u"on|by|this|until wed", {.weekday = 3}},
                {u"on|by|this|until sat", {.weekday = 6}},
                {u"next sun", {.weekday = 0, .next = 1}},
                {u"next mon", {.weekday = 1, .next = 1}},
                {u"next wed", {.weekday = 3, .next = 1}},
                {u"next sat", {.weekday = 6, .next = 1}},
                {u"sun <part>", {.weekday = 0}},
                {u"mon <part>", {.weekday = 1}},
                {u"wed <part>", {.weekday = 3}},
                {u"sat <part>", {.weekday = 6}},
                {u"next week", {.weeksAhead = 1}},
                {u"this|at_the|over_the|on_the|for_the|by_the weekend", {.weekend = 0}},
                {u"next weekend", {.weekend = 1}},
                {u"the? end of the|this? month", {.monthEnd = 1}},
                {u"the? end of next month", {.monthsAhead = 1, .monthEnd = 1}},
                {u"on|by|until|before|from the <day> st|nd|rd|th of_the_month?", {}, AtEdge},
                {u"on|by|until|before the <ordinal> of_the_month?", {}, AtEdge},
                {u"<month> .? <day> st|nd|rd|th? ,? <year>?"},
                {u"the? <day> st|nd|rd|th? of? <month> .? ,? <year>?"},
                {u"the <ordinal> of <month>"},
                {u"next month on? the? <day> st|nd|rd|th", {.monthsAhead = 1}},
                {u"the? <day> st|nd|rd|th of next month", {.monthsAhead = 1}},
                {u"<weekday> week", {.weeksLater = 1}},
                {u"a week on|from? <weekday>", {.weeksLater = 1}},
                {u"<monthnumber> / <day> / <year>"},
                {u"<monthnumber> / <day>", {}, WithNeighbour},
                {u"on|by|until|before <monthnumber> / <day>"},
                {u"in|within <n> <unit>"},
                {u"in|within a|an <unit>"},
                {u"in a couple of? <unit>", {.halves = 4}},
                {u"in half an hour", {.halves = 1, .unit = Hours}},
                {u"in a half hour", {.halves = 1, .unit = Hours}},
                {u"in an hour and a half", {.halves = 3, .unit = Hours}},
                {u"in <n> and a half <unit>", {.halves = 1}},
                {u"in a quarter of an hour", {.halves = 30, .unit = Minutes}},
                {u"<n> <unit> from now|today"},
                {u"a|an|one <unit> from now|today"},
                {u"<hour> am|a.m.|a.m", {.part = Am}, AtEdge},
                {u"at|by|until|till|before|after|from|around|@ <hour> am|a.m.|a.m", {.part = Am}},
                {u"<hour> pm|p.m.|p.m", {.part = Pm}},
                {u"<hour> . <mm> am|a.m.", {.part = Am}},
                {u"<hour> . <mm> pm|p.m.", {.part = Pm}},
                {u"at|@|until|around <hour>", {}, AtEdge},
                {u"by <hour>", {}, WithNeighbour},
                {u"<hour> - <until> am|a.m.", {.part = Am}},
                {u"<hour> - <until> pm|p.m.", {.part = Pm}},
                {u"from|between <hour> to|until|till|and <until> am|a.m.", {.part = Am}},
                {u"from|between <hour> to|until|till|and <until> pm|p.m.", {.part = Pm}},
                {u"from|between <hour> to|until|till|and <until>", {}, WithNeighbour},
                {u"from|between <hour> : <mm> to|until|till|and <until> : <until>", {.asWritten = 1}},
                {u"at <hour> <minute>", {}, AtEdge},
                {u"<hour> <minute> am|a.m.", {.part = Am}},
                {u"<hour> <minute> pm|p.m.", {.part = Pm}},
                {u"<hour> o'clock|oclock"},
                {u"half past <hour>", {.shift = 30}},
                {u"half <hour>", {.shift = 30}, WithNeighbour},
                {u"quarter past|after <hour>", {.shift = 15}},
                {u"a quarter past|after <hour>", {.shift = 15}},
                {u"quarter to|of|before|til <hour>", {.shift = -15}},
                {u"a quarter to|of|before|til <hour>", {.shift = -15}},
                {u"<minute> minutes? past|after <hour>"},
                {u"at|by <minute> to|before <hour>", {.minutesBefore = 1}},
                {u"<minute> minutes to|before <hour>", {.minutesBefore = 1}},
                {u"noon|midday", {.hour = 12, .asWritten = 1}},
                {u"midnight", {.hour = 24}},
            },
        .before = u"at|on|by|until|till|before|after|from|for|around|about|no_later_than|starting|on_the|"
                  u"first_thing",
        .between = u"at|on|in|the|of|around|by",
        .after = u"sharp|o'clock",
        .notAfter = u"last|past|black|good|since|chapter|version|level|page|every",
        .notBefore = u"ago|percent|euros|dollars|bucks|people|times|of_march",
        .idioms = u"black_friday|good_friday|palm_sunday|sunday_school|easter_sunday",
    };
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
        .dates = dates(),
    };
    return rules;
}
