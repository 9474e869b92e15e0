#include "reminders/languages/Languages.h"

namespace {
QString datePattern()
{
    return QStringLiteral(
        R"((?:오늘|내일 모레|모레|내일|어제|그저께|\d{4}[-/년]\s*\d{1,2}[-/월]\s*\d{1,2}일?)"
        R"(|\d{1,2}월\s*\d{1,2}일|(?:다음 주\s*)?(?:월|화|수|목|금|토|일)요일)?)");
}

QString timePattern()
{
    return QStringLiteral(R"((\d{1,2}[:：]\d{2}|\d{1,2}시(?:\s*(?:반|\d{1,2}분))?))");
}
} // namespace

const LanguageRules &Languages::korean()
{
    static const LanguageRules rules{
        .markers = {},
        .date = Regex(datePattern()),
        .time = Regex(timePattern()),
        .expression =
            Regex(QStringLiteral("^(") + datePattern()
                  + QStringLiteral(R"()\s*((?:오전|오후|아침|새벽|낮|점심|저녁|밤)?)\s*)") + timePattern()),
        .groups = {.date = 1, .period = 2, .time = 3},
        .today = {u"오늘", u"어제", u"그저께"},
        .tomorrow = {u"내일"},
        .dayAfterTomorrow = {u"모레", u"내일 모레"},
        .next = {u"다음 주"},
        .weekdays = {{u"일요일", 0}, {u"월요일", 1}, {u"화요일", 2}, {u"수요일", 3}, {u"목요일", 4},
            {u"금요일", 5}, {u"토요일", 6}},
        .months = {},
        .periods = {{u"오전", HourRule::MidnightIsZero}, {u"오후", HourRule::Afternoon},
            {u"아침", HourRule::AsWritten}, {u"새벽", HourRule::AsWritten}, {u"낮", HourRule::AsWritten},
            {u"점심", HourRule::AsWritten}, {u"저녁", HourRule::Evening}, {u"밤", HourRule::Evening}},
        .colonTimesIgnorePeriod = true,
        .halfPast = u"반",
        .minutes = Regex(QStringLiteral(R"(시\s*(\d{1,2})분?)")),
        .triggerPhrases = {u"리마인드해 줘", u"리마인드해줘", u"리마인드", u"잊지 말고", u"기억해 줘",
            u"기억해줘", u"알려 줘", u"알려줘"},
        .joiningParticle = u"에",
    };
    return rules;
}
