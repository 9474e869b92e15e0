#include "reminders/languages/Languages.h"

const LanguageRules &Languages::chinese()
{
    static const LanguageRules rules{
        .markers = {u"今天", u"明天", u"后天", u"後天", u"昨天", u"點", u"点", u"上午", u"下午", u"中午",
            u"晚上", u"凌晨", u"早上"},
        .date = Regex(QStringLiteral(R"((?:今天|明天|后天|昨天|前天|周[一二三四五六日天]|\d{1,2}月\d{1,2}日)"
                                     R"(|\d{4}[-/年]\d{1,2}[-/月]\d{1,2}日?))")),
        .time = Regex(QStringLiteral(
            R"((\d{1,2}[:：]\d{2}|\d{1,2}[点點](?:半|整|\d{1,2}分?)?|\d{1,2}[时時](?:\d{1,2}分|半)?))")),
        .expression = Regex(QStringLiteral(
            R"(^((?:今天|明天|后天|後天|昨天|前天|\d{4}[-/年]\d{1,2}[-/月]\d{1,2}日?|\d{1,2}月\d{1,2}日)?)\s*)"
            R"(((?:凌晨|半夜|深夜|早上|上午|中午|下午|傍晚|晚上|夜里|夜晚)?)\s*)"
            R"((\d{1,2}[:：]\d{2}|\d{1,2}[点點](?:半|整|\d{1,2}分?)?|\d{1,2}[时時](?:\d{1,2}分|半)?))")),
        .groups = {.date = 1, .period = 2, .time = 3},
        .today = {u"今天", u"昨天", u"前天"},
        .tomorrow = {u"明天"},
        .dayAfterTomorrow = {u"后天", u"後天"},
        .next = {},
        .weekdays = {},
        .months = {},
        .periods = {{u"凌晨", HourRule::MidnightIsZero}, {u"半夜", HourRule::MidnightIsZero},
            {u"深夜", HourRule::MidnightIsZero}, {u"早上", HourRule::AsWritten},
            {u"上午", HourRule::AsWritten}, {u"中午", HourRule::AsWritten}, {u"下午", HourRule::Afternoon},
            {u"傍晚", HourRule::Evening}, {u"晚上", HourRule::Evening}, {u"夜里", HourRule::Evening},
            {u"夜晚", HourRule::Evening}},
        .colonTimesIgnorePeriod = true,
        .halfPast = u"半",
        .minutes = Regex(QStringLiteral(R"([点點时時](\d{1,2})分?)")),
        .triggerPhrases = {u"提醒我", u"提醒", u"别忘了", u"记得"},
    };
    return rules;
}
