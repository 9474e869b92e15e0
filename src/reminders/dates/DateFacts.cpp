#include "reminders/dates/DateFacts.h"

#include <tuple>

namespace {
/// Every fact, so that combining needs no list of its own.
constexpr auto allFacts = std::tuple(&DateFacts::relativeDay, &DateFacts::weekday, &DateFacts::next,
    &DateFacts::weeksLater, &DateFacts::weeksAhead, &DateFacts::day, &DateFacts::month, &DateFacts::year,
    &DateFacts::monthsAhead, &DateFacts::weekend, &DateFacts::monthEnd, &DateFacts::halves, &DateFacts::unit,
    &DateFacts::hour, &DateFacts::minute, &DateFacts::minutesBefore, &DateFacts::shift, &DateFacts::asWritten,
    &DateFacts::part);

/// A fact that both state is a contradiction, even if the values are equal.
template <typename Fact>
bool add(Fact &to, const Fact &from)
{
    if (to && from)
        return false;
    if (from)
        to = from;
    return true;
}

bool isAmOrPm(DayPart part)
{
    return part == DayPart::Am || part == DayPart::Pm;
}

/// Two days contradict each other, except a weekday beside its date or its week.
bool sayTwoDays(const DateFacts &a, const DateFacts &b)
{
    if (!a.saysDay() || !b.saysDay())
        return false;
    const auto isWeekday = [](const DateFacts &facts) {
        return facts.weekday && !facts.day && !facts.relativeDay;
    };
    const auto isDateOrWeek = [](const DateFacts &facts) {
        return facts.day || (facts.weeksAhead && !facts.weekday);
    };
    return !(isWeekday(a) && isDateOrWeek(b)) && !(isWeekday(b) && isDateOrWeek(a));
}
} // namespace

std::optional<DateFacts> DateFacts::combined(const DateFacts &a, const DateFacts &b)
{
    if (a == DateFacts())
        return b;
    if (sayTwoDays(a, b) || a.saysMoment() || b.saysMoment())
        return std::nullopt;
    DateFacts both = a;
    DateFacts other = b;
    // "tonight at 9pm": am or pm repeats the part of the day more precisely.
    if (both.part && other.part) {
        if (isAmOrPm(*other.part))
            both.part.reset();
        else if (isAmOrPm(*both.part))
            other.part.reset();
    }
    const bool isConsistent =
        std::apply([&](auto... facts) { return (add(both.*facts, other.*facts) && ...); }, allFacts);
    return isConsistent ? std::optional(both) : std::nullopt;
}
