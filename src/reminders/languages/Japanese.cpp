#include "reminders/languages/Languages.h"

const LanguageRules &Languages::japanese()
{
    using enum DateWords::Strength;
    using enum DayPart;
    using enum SpanUnit;
    static const LanguageRules rules{
        .markers = u"明後日|曜日|午前|午後|明日|時",
        .relativeDays = {{u"今日|きょう", 0, u"本日"}, {u"明日|あした", 1, u"あす"}, {u"明後日|あさって", 2},
            {u"", 3, u"明々後日|しあさって"}},
        .weekdays = {{u"日曜日", 0, u"日曜"}, {u"月曜日", 1, u"月曜"}, {u"火曜日", 2, u"火曜"},
            {u"水曜日", 3, u"水曜"}, {u"木曜日", 4, u"木曜"}, {u"金曜日", 5, u"金曜"},
            {u"土曜日", 6, u"土曜"}},
        .dayParts = {{u"午前", Am}, {u"朝|早朝", Morning, u"午前中"}, {u"昼", Noon, u"お昼|正午"},
            {u"午後", Afternoon}, {u"夕方|夜", Evening, u"晩", u"夜中"}, {u"", Night, u"夜中|深夜"}},
        .triggerPhrases = {u"リマインドして", u"リマインド", u"忘れずに", u"忘れないで", u"覚えておいて",
            u"思い出させて"},
        .grammar =
            {
                .date =
                    uR"(<day>|\d{4}[-/年]\d{1,2}[-/月]\d{1,2}日?|\d{1,2}月\d{1,2}日|(?:来週の)?(?:<weekday>))",
                .time = uR"(\d{1,2}[:：]\d{2}|\d{1,2}(?:時|点)(?:半|\d{1,2}分?)?)",
                .pattern = uR"(^(<date>)?\s*(<part>)?\s*(<time>))",
                .pastDays = u"昨日|きのう|一昨日|おととい",
                .next = u"来週の",
                .colonTimesIgnorePeriod = true,
                .halfPast = u"半",
                .minutes = uR"([時点](\d{1,2})分?)",
                .joiningParticle = u"に",
            },
        .dates =
            {
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
                        {u"来週の|来週 <weekday>", {.next = true}},
                        {u"再来週の|再来週 <weekday>", {.weeksAhead = 2}},
                        {u"来週", {.weeksAhead = 1}},
                        {u"今|この? 週末", {.weekend = 0}},
                        {u"来週末|来週の週末", {.weekend = 1}},
                        {u"今? 月末", {.monthEnd = true}},
                        {u"来月末", {.monthsAhead = 1, .monthEnd = true}},
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
                        {u"正午", {.hour = 12, .asWritten = true}},
                    },
                .between = u"の|、",
                .after = u"までに|までには|まで|には|に|から|ごろに|頃に|ごろ|頃|の|は|で",
                .notAfter = u"第|毎|先週の|先週|去年の|先月の|毎週|毎日|同|一",
                .notBefore =
                    u"間|前|以内|目|的|の出|大根|坊主|市|街道|後れ|曜|大工|病|満点|どうでしょう|人|年|円|個",
                .hasHanNumerals = true,
            },
    };
    return rules;
}
