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
    };
    return rules;
}
