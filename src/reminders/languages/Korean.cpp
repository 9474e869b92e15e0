#include "reminders/languages/Languages.h"

const LanguageRules &Languages::korean()
{
    using enum DateWords::Strength;
    using enum DayPart;
    using enum SpanUnit;
    static const LanguageRules rules{
        .relativeDays = {{u"오늘", 0}, {u"내일", 1, u"낼"}, {u"모레|내일 모레", 2}, {u"", 3, u"글피"}},
        .weekdays = {{u"일요일", 0}, {u"월요일", 1}, {u"화요일", 2}, {u"수요일", 3}, {u"목요일", 4},
            {u"금요일", 5}, {u"토요일", 6}},
        .dayParts = {{u"오전", Am}, {u"", EarlyMorning, u"새벽"}, {u"아침", Morning, {}, u"새벽"},
            {u"낮", Noon, u"점심때|점심시간", u"점심"}, {u"오후", Afternoon}, {u"저녁", Evening, {}, u"밤"},
            {u"", Night, u"밤"}},
        .triggerPhrases = {u"리마인드해 줘", u"리마인드해줘", u"리마인드", u"잊지 말고", u"기억해 줘",
            u"기억해줘", u"알려 줘", u"알려줘"},
        .grammar =
            {
                .date =
                    uR"(<day>|\d{4}[-/년]\s*\d{1,2}[-/월]\s*\d{1,2}일?|\d{1,2}월\s*\d{1,2}일|(?:다음 주\s*)?(?:<weekday>))",
                .time = uR"(\d{1,2}[:：]\d{2}|\d{1,2}시(?:\s*(?:반|\d{1,2}분))?)",
                .pattern = uR"(^(<date>)?\s*(<part>)?\s*(<time>))",
                .pastDays = u"어제|그저께",
                .next = u"다음 주",
                .colonTimesIgnorePeriod = true,
                .halfPast = u"반",
                .minutes = uR"(시\s*(\d{1,2})분?)",
                .joiningParticle = u"에",
            },
        .dates =
            {
                .numbers = {{u"한|하나", 1}, {u"두|둘", 2}, {u"세|셋", 3}, {u"네|넷", 4}, {u"다섯", 5},
                    {u"여섯", 6}, {u"일곱", 7}, {u"여덟", 8}, {u"아홉", 9}, {u"열", 10}, {u"열한", 11},
                    {u"열두", 12}, {u"십", 10}, {u"이십", 20}, {u"삼십", 30}, {u"십오", 15}, {u"사십오", 45}},
                .units = {{u"분", Minutes}, {u"시간", Hours}, {u"일|날", Days}, {u"주|주일", Weeks},
                    {u"달|개월", Months}},
                .rules =
                    {
                        {u"<relative>"},
                        {u"오늘밤", {.relativeDay = 0, .part = Night}},
                        {u"이번주|이번? <weekday>"},
                        {u"다음주 <weekday>", {.next = true}},
                        {u"다다음주 <weekday>", {.weeksAhead = 2}},
                        {u"다음주", {.weeksAhead = 1}},
                        {u"이번|이번주? 주말", {.weekend = 0}},
                        {u"다음|다음주 주말", {.weekend = 1}},
                        {u"이번달|이달? 월말|말일", {.monthEnd = true}},
                        {u"이번달|이달 말", {.monthEnd = true}},
                        {u"다음달 말", {.monthsAhead = 1, .monthEnd = true}},
                        {u"<year> 년 <monthnumber> 월 <day> 일"},
                        {u"<monthnumber> 월 <day> 일"},
                        {u"<monthnumber> / <day>", {}, WithNeighbour},
                        {u"다음달 <day> 일", {.monthsAhead = 1}},
                        {u"이번달 <day> 일", {.monthsAhead = 0}},
                        {u"<day> 일"},
                        {u"<n> <unit> 후|뒤|있다가|이따가"},
                        {u"일주일 후|뒤", {.halves = 2, .unit = Weeks}},
                        {u"하루 후|뒤", {.halves = 2, .unit = Days}},
                        {u"이틀 후|뒤", {.halves = 4, .unit = Days}},
                        {u"사흘 후|뒤", {.halves = 6, .unit = Days}},
                        {u"<n> 시간 반 후|뒤", {.halves = 1, .unit = Hours}},
                        {u"반 시간 후|뒤", {.halves = 1, .unit = Hours}},
                        {u"<hour> 시 부터|에서 <until> 시"},
                        {u"<hour> 시"},
                        {u"<hour> 시 <minute> 분"},
                        {u"<hour> 시 반", {.shift = 30}},
                        {u"자정", {.hour = 24}},
                        {u"정오", {.hour = 12, .asWritten = true}},
                    },
                .after = u"까지|에는|에|부터|쯤에|쯤|경에|경|은|는|의|로|으로|정각에",
                .notAfter = u"지난|지난주|제|매|매주|매일|작년",
                .notBefore = u"전의|전에|전부터|간|동안|만에|째",
            },
    };
    return rules;
}
