#include "reminders/dates/DateFacts.h"

namespace {
template <typename T>
bool join(std::optional<T> &to, const std::optional<T> &from)
{
    if (to && from)
        return false;
    if (from)
        to = from;
    return true;
}

bool isLetters(DayPart part)
{
    return part == DayPart::Am || part == DayPart::Pm;
}

/// A weekday may stand beside a date, and a week or a month that is told apart beside what lies in it.
bool sayTwoDays(const DateFacts &a, const DateFacts &b)
{
    if (!a.saysDay() || !b.saysDay())
        return false;
    const auto isWeekday = [](const DateFacts &facts) {
        return facts.weekday && !facts.day && !facts.relativeDay;
    };
    const auto isWeek = [](const DateFacts &facts) { return facts.weeksAhead && !facts.weekday; };
    const auto isDate = [](const DateFacts &facts) { return facts.day.has_value(); };
    return !(isWeekday(a) && (isDate(b) || isWeek(b))) && !(isWeekday(b) && (isDate(a) || isWeek(a)));
}
} // namespace

std::optional<DateFacts> DateFacts::together(const DateFacts &a, const DateFacts &b)
{
    const DateFacts nothing;
    if (a == nothing)
        return b;
    if (sayTwoDays(a, b) || a.saysMoment() || b.saysMoment())
        return std::nullopt;
    DateFacts both = a;
    DateFacts other = b;
    // "tonight at 9pm": the letters say it again, and more exactly.
    if (both.part && other.part) {
        if (isLetters(*other.part))
            both.part.reset();
        else if (isLetters(*both.part))
            other.part.reset();
    }
    const bool isGood =
        join(both.relativeDay, b.relativeDay) && join(both.weekday, b.weekday) && join(both.next, b.next)
        && join(both.weeksLater, b.weeksLater) && join(both.weeksAhead, b.weeksAhead) && join(both.day, b.day)
        && join(both.month, b.month) && join(both.year, b.year) && join(both.monthsAhead, b.monthsAhead)
        && join(both.weekend, b.weekend) && join(both.monthEnd, b.monthEnd) && join(both.halves, b.halves)
        && join(both.unit, b.unit) && join(both.hour, b.hour) && join(both.minute, b.minute)
        && join(both.minutesBefore, b.minutesBefore) && join(both.shift, b.shift)
        && join(both.asWritten, b.asWritten) && join(both.part, other.part);
    return isGood ? std::optional(both) : std::nullopt;
}
