#include "reminders/languages/Languages.h"

const LanguageRules &Languages::chinese()
{
    using enum DateWords::Strength;
    using enum DayPart;
    using enum SpanUnit;
    static const LanguageRules rules{
        .markers = u"今天|明天|后天|後天|昨天|點|点|上午|下午|中午|晚上|凌晨|早上",
        .relativeDays = {{u"今天", 0, u"今日"}, {u"明天", 1, u"明日|明儿"}, {u"后天|後天", 2},
            {u"", 3, u"大后天|大後天"}},
        .weekdays = {{u"", 0, u"周日|周天|星期日|星期天|礼拜天|礼拜日|週日|禮拜天"},
            {u"", 1, u"周一|星期一|礼拜一|週一"}, {u"", 2, u"周二|星期二|礼拜二|週二"},
            {u"", 3, u"周三|星期三|礼拜三|週三"}, {u"", 4, u"周四|星期四|礼拜四|週四"},
            {u"", 5, u"周五|星期五|礼拜五|週五"}, {u"", 6, u"周六|星期六|礼拜六|週六"}},
        .dayParts = {{u"凌晨", EarlyMorning, {}, u"半夜|深夜"},
            {u"早上|上午", Morning, u"清晨|早晨|清早|一早|一大早|早间"}, {u"中午", Noon, u"正午"},
            {u"下午", Afternoon, u"午后"}, {u"傍晚|晚上|夜里|夜晚", Evening, u"晚间"},
            {u"", Night, u"半夜|深夜|午夜"}},
        .triggerPhrases = {u"提醒我", u"提醒", u"别忘了", u"记得"},
        .grammar =
            {
                .date = uR"(<day>|\d{4}[-/年]\d{1,2}[-/月]\d{1,2}日?|\d{1,2}月\d{1,2}日)",
                .time =
                    uR"(\d{1,2}[:：]\d{2}|\d{1,2}[点點](?:半|整|\d{1,2}分?)?|\d{1,2}[时時](?:\d{1,2}分|半)?)",
                .pattern = uR"(^(<date>)?\s*(<part>)?\s*(<time>))",
                .pastDays = u"昨天|前天",
                .colonTimesIgnorePeriod = true,
                .halfPast = u"半",
                .minutes = uR"([点點时時](\d{1,2})分?)",
            },
        .dates =
            {
                .units = {{u"分钟|分鐘", Minutes}, {u"小时|个小时|小時|個小時|钟头|个钟头|个钟", Hours},
                    {u"天|日", Days}, {u"周|个星期|星期|个礼拜|礼拜|週", Weeks}, {u"个月|個月", Months}},
                .rules =
                    {
                        {u"<relative>"},
                        {u"今晚|今夜", {.relativeDay = 0, .part = Evening}},
                        {u"明晚", {.relativeDay = 1, .part = Evening}},
                        {u"明早|明晨", {.relativeDay = 1, .part = Morning}},
                        {u"后晚|後晚", {.relativeDay = 2, .part = Evening}},
                        {u"这|本|这个|本个? <weekday>"},
                        {u"下|下个|下個 <weekday>", {.weeksAhead = 1}},
                        {u"下下|下下个 <weekday>", {.weeksAhead = 2}},
                        {u"下周|下星期|下个星期|下礼拜|下个礼拜|下週", {.weeksAhead = 1}},
                        {u"这|本|这个? 周末|週末", {.weekend = 0}},
                        {u"下|下个 周末|週末", {.weekend = 1}},
                        {u"这个|本|这? 月底|月末", {.monthEnd = true}},
                        {u"下个|下 月底|月末", {.monthsAhead = 1, .monthEnd = true}},
                        {u"下个月|下月 底|末", {.monthsAhead = 1, .monthEnd = true}},
                        {u"<year> 年 <monthnumber> 月 <day> 日|号|號?"},
                        {u"明年 <monthnumber> 月 <day> 日|号|號?"},
                        {u"<monthnumber> 月 <day> 日|号|號"},
                        {u"<monthnumber> / <day>", {}, WithNeighbour},
                        {u"<monthnumber> 月 底|末", {.monthEnd = true}},
                        {u"下个月|下月 <day> 日|号|號", {.monthsAhead = 1}},
                        {u"这个月|本月 <day> 日|号|號", {.monthsAhead = 0}},
                        {u"<day> 号|號"},
                        {u"<daydigits> 日"},
                        {u"再过|过? <n> <unit> 后|後|之后|之後|以后|以後"},
                        {u"再过 <n> <unit>"},
                        {u"<n> 个|個? 半 小时|小時|钟头 后|後|之后|之後|以后|以後",
                            {.halves = 1, .unit = Hours}},
                        {u"半 个|個? 小时|小時|钟头 后|後|之后|之後|以后|以後", {.halves = 1, .unit = Hours}},
                        {u"一刻钟|一刻鐘 后|後|之后|之後|以后|以後", {.halves = 30, .unit = Minutes}},
                        {u"半 个 月 后|後|之后|以后", {.halves = 30, .unit = Days}},
                        {u"<hour> 点|點 到|至 <until> 点|點"},
                        {u"<hour> 点|點 整|钟|鐘?"},
                        {u"<hour> 点|點|时|時 <minute> 分?"},
                        {u"<hour> 时|時", {}, WithNeighbour},
                        {u"<hour> 点|點|时 半", {.shift = 30}},
                        {u"<hour> 点|點 一刻", {.shift = 15}},
                        {u"<hour> 点|點 三刻", {.shift = 45}},
                        {u"差 <minute> 分|分钟? <hour> 点|點", {.minutesBefore = true}},
                        {u"晚 <hour> 点|點", {.part = Evening}},
                        {u"晚 <hour> 点|點 半", {.shift = 30, .part = Evening}},
                        {u"晚 <hour> : <mm>", {.asWritten = true, .part = Evening}},
                        {u"早 <hour> 点|點", {.part = Morning}},
                        {u"早 <hour> 点|點 半", {.shift = 30, .part = Morning}},
                        {u"差一刻 <hour> 点|點", {.shift = -15}},
                        {u"<hour> 点|點 差 <minute> 分", {.minutesBefore = true}},
                        {u"<hour> 点|點 差一刻", {.shift = -15}},
                        {u"午夜|夜里十二点|半夜十二点", {.hour = 24}},
                    },
                .before = u"最晚|最迟|不晚于|截止到|在|于|從|从|约在|约|大约",
                .between = u"的",
                .after = u"之前|以前|前|的时候|时候|的",
                .notAfter = u"第|有|差|提了|快|这|那|几|上|上个|每|每个|每天|昨天|前天|一百零|二月|星",
                .notBefore = u"性|建议|意见|要求|原因|看法|理由|好处|坏处|希望|水|底|之间|也|都|儿|点|东西|"
                             u"感想|体会|启示|说明|注意|楼|线|电池|球衣|登机口|门|房|车|文件|机|店|桌|院|游|"
                             u"本|饼|多|几|问题|想法|思考|贴士|内容|结论|总结|左右的|们|牌|码|综合症|赞|钱",
                .idioms = u"一周一|一周两|两周一|每周一次",
                .hasHanNumerals = true,
            },
    };
    return rules;
}
