#include "reminders/languages/Languages.h"

namespace {
QString datePattern()
{
    return QStringLiteral(
        R"((?:今日|きょう|明日|あした|明後日|あさって|昨日|きのう|一昨日|おととい)"
        R"(|\d{4}[-/年]\d{1,2}[-/月]\d{1,2}日?|\d{1,2}月\d{1,2}日|(?:来週の)?(?:月|火|水|木|金|土|日)曜日)?)");
}

QString timePattern()
{
    return QStringLiteral(R"((\d{1,2}[:：]\d{2}|\d{1,2}(?:時|点)(?:半|\d{1,2}分?)?))");
}

DateWords dates()
{
    using enum DateWords::Strength;
    using enum DayPart;
    using enum SpanUnit;
    return {
        .relativeDays = {{u"今日|きょう|本日", 0}, {u"明日|あした|あす", 1}, {u"明後日|あさって", 2},
            {u"明々後日|しあさって", 3}},
        .weekdays = {{u"日曜日|日曜", 0}, {u"月曜日|月曜", 1}, {u"火曜日|火曜", 2}, {u"水曜日|水曜", 3},
            {u"木曜日|木曜", 4}, {u"金曜日|金曜", 5}, {u"土曜日|土曜", 6}},
        .months = {},
        .numbers = {},
        .ordinals = {},
        .parts = {{u"午前", Am}, {u"午前中", Morning}, {u"朝|早朝", Morning}, {u"昼|お昼|正午", Noon},
            {u"午後", Afternoon}, {u"夕方|夜|晩", Evening}, {u"夜中|深夜", Night}},
        .units = {{u"分間|分", Minutes}, {u"時間", Hours}, {u"日間|日", Days}, {u"週間", Weeks},
            {u"ヶ月|か月|カ月|ヵ月", Months}},
        .rules =
            {
                {u"<relative>"},
                {u"今夜|今晩", {.relativeDay = 0, .part = Evening}},
                {u"今朝", {.relativeDay = 0, .part = Morning}},
                {u"明朝", {.relativeDay = 1, .part = Morning}},
                {u"明晩", {.relativeDay = 1, .part = Evening}},
                {u"今週の|今度の|次の? <weekday>"},
                {u"来週の|来週 <weekday>", {.next = 1}},
                {u"再来週の|再来週 <weekday>", {.weeksAhead = 2}},
                {u"来週", {.weeksAhead = 1}},
                {u"今|この? 週末", {.weekend = 0}},
                {u"来週末|来週の週末", {.weekend = 1}},
                {u"今? 月末", {.monthEnd = 1}},
                {u"来月末", {.monthsAhead = 1, .monthEnd = 1}},
                {u"<year> 年 <monthnumber> 月 <day> 日"},
                {u"<monthnumber> 月 <day> 日"},
                {u"<monthnumber> 月 <day> 日 ( 日|月|火|水|木|金|土 )"},
                {u"<monthnumber> / <day>", {}, WithNeighbour},
                {u"来月の|来月 <day> 日", {.monthsAhead = 1}},
                {u"今月の|今月 <day> 日", {.monthsAhead = 0}},
                {u"<daydigits> 日"},
                {u"あと? <n> <unit> 後"},
                {u"あと <n> 分|分間 で", {.unit = Minutes}},
                {u"あと <n> 時間 で", {.unit = Hours}},
                {u"<n> 時間 半 後", {.halves = 1, .unit = Hours}},
                {u"半時間 後", {.halves = 1, .unit = Hours}},
                {u"<hour> 時 から <until> 時"},
                {u"<hour> 時"},
                {u"<hour> 時 <minute> 分"},
                {u"<hour> 時 半", {.shift = 30}},
                {u"正午", {.hour = 12, .asWritten = 1}},
            },
        .before = u"",
        .between = u"の|、",
        .after = u"までに|までには|まで|には|に|から|ごろに|頃に|ごろ|頃|の|は|で",
        .notAfter = u"第|毎|先週の|先週|去年の|先月の|毎週|毎日|同|一",
        .notBefore = u"間|前|以内|目|的|の出|大根|坊主|市|街道|後れ|曜|大工|病|満点|どうでしょう|人|年|円|個",
        .hasHanNumerals = true,
    };
}
} // namespace

const LanguageRules &Languages::japanese()
{
    static const LanguageRules rules{
        .markers = {u"明後日", u"曜日", u"午前", u"午後", u"明日", u"時"},
        .date = Regex(datePattern()),
        .time = Regex(timePattern()),
        .expression =
            Regex(QStringLiteral("^(") + datePattern()
                  + QStringLiteral(R"()\s*((?:午前|午後|朝|早朝|昼|夕方|夜|夜中)?)\s*)") + timePattern()),
        .groups = {.date = 1, .period = 2, .time = 3},
        .today = {u"今日", u"きょう", u"昨日", u"きのう", u"一昨日", u"おととい"},
        .tomorrow = {u"明日", u"あした"},
        .dayAfterTomorrow = {u"明後日", u"あさって"},
        .next = {u"来週の"},
        .weekdays = {{u"日曜日", 0}, {u"月曜日", 1}, {u"火曜日", 2}, {u"水曜日", 3}, {u"木曜日", 4},
            {u"金曜日", 5}, {u"土曜日", 6}},
        .months = {},
        .periods = {{u"午前", HourRule::MidnightIsZero}, {u"午後", HourRule::Afternoon},
            {u"朝", HourRule::AsWritten}, {u"早朝", HourRule::AsWritten}, {u"昼", HourRule::AsWritten},
            {u"夕方", HourRule::Evening}, {u"夜", HourRule::Evening}, {u"夜中", HourRule::Evening}},
        .colonTimesIgnorePeriod = true,
        .halfPast = u"半",
        .minutes = Regex(QStringLiteral(R"([時点](\d{1,2})分?)")),
        .triggerPhrases = {u"リマインドして", u"リマインド", u"忘れずに", u"忘れないで", u"覚えておいて",
            u"思い出させて"},
        .joiningParticle = u"に",
        .dates = dates(),
    };
    return rules;
}
