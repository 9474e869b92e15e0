#include "reminders/dates/DateResolver.h"

using namespace std::chrono;

namespace {
std::optional<ClockTime> resolveTime(const DateFacts &facts)
{
    const int written = facts.minutesBefore ? -facts.minute.value_or(0) : facts.minute.value_or(0);
    int total = *facts.hour * 60 + written + facts.shift.value_or(0);
    if (total < 0 || (total < 60 && *facts.hour >= 1)) // "a quarter to one"
        total += 12 * 60;
    const int hour = total / 60;
    const int minute = total % 60;
    if (hour == 24 && minute == 0)
        return ClockTime{{0, 0}, 1};
    if (hour > 23)
        return std::nullopt;
    const DayPart part = facts.part.value_or(facts.asWritten ? DayPart::AsWritten : DayPart::Unnamed);
    return DayParts::clockTime(part, {hour, minute}, DayParts::Engine::Detection);
}

local_days mondayOf(Calendar::Day day)
{
    const local_days date(day);
    return date - (weekday(date) - Monday);
}

std::optional<Calendar::Day> existing(Calendar::Day day)
{
    return day.ok() ? std::optional(day) : std::nullopt;
}

std::optional<Calendar::Day> resolveDate(const DateFacts &facts, Calendar::Day today)
{
    const day dayOfMonth(unsigned(facts.day.value_or(1)));
    if (facts.month) {
        const month monthOfYear(unsigned(*facts.month));
        if (facts.year)
            return existing({year(*facts.year), monthOfYear, dayOfMonth});
        Calendar::Day date(today.year(), monthOfYear, dayOfMonth);
        for (int i = 0; i < 8 && (!date.ok() || local_days(date) < local_days(today)); ++i) {
            if (!date.ok() && !(monthOfYear == February && dayOfMonth == day(29)))
                return std::nullopt;
            date = {date.year() + years(1), monthOfYear, dayOfMonth};
        }
        return existing(date);
    }
    year_month month(today.year(), today.month());
    if (facts.monthsAhead)
        return existing({(month + months(*facts.monthsAhead)).year(),
            (month + months(*facts.monthsAhead)).month(), dayOfMonth});
    // The next month that has such a day.
    for (int i = 0; i < 12; ++i, month += months(1)) {
        const Calendar::Day date(month.year(), month.month(), dayOfMonth);
        if (date.ok() && local_days(date) >= local_days(today))
            return date;
    }
    return std::nullopt;
}

std::optional<Calendar::Day> resolveDay(const DateFacts &facts, Calendar::Day today)
{
    const local_days date(today);
    if (facts.unit) {
        const int count = facts.halves.value_or(2) / 2;
        if (facts.unit == SpanUnit::Months) {
            const year_month_day shifted = today + months(count);
            return shifted.ok() ? shifted : Calendar::Day(shifted.year() / shifted.month() / last);
        }
        return Calendar::Day(date + days(facts.unit == SpanUnit::Weeks ? 7 * count : count));
    }
    if (facts.monthEnd) {
        year_month month = year_month(today.year(), today.month()) + months(facts.monthsAhead.value_or(0));
        if (facts.month) {
            const bool isNextYear = std::chrono::month(unsigned(*facts.month)) < today.month();
            month = (today.year() + years(isNextYear)) / std::chrono::month(unsigned(*facts.month));
        }
        return Calendar::Day(month / last);
    }
    if (facts.relativeDay)
        return Calendar::Day(date + days(*facts.relativeDay));
    if (facts.day || facts.month)
        return resolveDate(facts, today);
    if (facts.weekend)
        return Calendar::Day(mondayOf(today) + days(5 + 7 * *facts.weekend));
    if (facts.weeksAhead) {
        const int weekdayFromMonday = (facts.weekday.value_or(1) + 6) % 7;
        return Calendar::Day(mondayOf(today) + days(7 * *facts.weeksAhead + weekdayFromMonday));
    }
    const int ahead = (*facts.weekday - int(weekday(date).c_encoding()) + 7) % 7;
    const int nearest = ahead == 0 && facts.next ? 7 : ahead;
    return Calendar::Day(date + days(nearest + 7 * facts.weeksLater.value_or(0)));
}
} // namespace

std::optional<DateDetection> DateResolver::resolve(
    const DateFacts &facts, Instant now, const Calendar &calendar)
{
    using Kind = DateDetection::Kind;
    if (facts.saysMoment()) {
        const int unitMinutes = facts.unit == SpanUnit::Hours ? 60 : 1;
        const Instant moment = now + minutes(facts.halves.value_or(2) * unitMinutes / 2);
        return DateDetection{Kind::Moment, {}, {}, {}, ceil<minutes>(moment), {}, {}};
    }
    const Calendar::Day today = calendar.day(now);
    const auto day = facts.saysDay() ? resolveDay(facts, today) : std::optional(today);
    auto time = std::optional(ClockTime{DayParts::defaultTimeOfDay});
    if (facts.saysTime())
        time = resolveTime(facts);
    else if (facts.part)
        time->time = DayParts::defaultTime(*facts.part);
    const auto fireAt = day && time ? time->on(*day, calendar) : std::nullopt;
    if (!fireAt)
        return std::nullopt;
    const bool hasTime = facts.saysTime() || facts.part;
    const Kind kind = !hasTime ? Kind::Day : facts.saysDay() ? Kind::DayAndTime : Kind::Time;
    return DateDetection{kind, {}, *day, *time, *fireAt, {}, {}};
}
