#include "reminders/DayParts.h"

#include <algorithm>
#include <iterator>

namespace {
enum class Twelve { IsNoon, IsZero, EndsTheDay };

struct Hours {
    int first = 1;
    int last = 0; ///< included

    [[nodiscard]] constexpr bool contains(int hour) const { return hour >= first && hour <= last; }
};

struct Row {
    DayPart part;
    int hourAlone;
    Twelve twelve;
    Hours grammar;   ///< to which the grammar adds 12
    Hours detection; ///< to which date detection adds 12
};

using enum Twelve;
constexpr Hours none;
constexpr Hours beforeNoon{-1, 11}; // "halb 0" is -1:30
constexpr Row table[] = {
    {DayPart::AsWritten, 9, IsNoon, none, none},
    {DayPart::Unnamed, 9, IsNoon, {1, 6}, {1, 6}},
    {DayPart::EarlyMorning, 9, IsZero, none, none},
    {DayPart::Am, 9, IsZero, none, none},
    {DayPart::Morning, 9, IsNoon, none, none},
    {DayPart::Noon, 12, IsNoon, none, {1, 4}},
    {DayPart::Afternoon, 15, IsNoon, beforeNoon, beforeNoon},
    {DayPart::Pm, 15, IsNoon, beforeNoon, beforeNoon},
    {DayPart::Evening, 20, EndsTheDay, beforeNoon, beforeNoon},
    {DayPart::Night, 22, EndsTheDay, {7, 11}, {6, 11}},
};

const Row &row(DayPart part)
{
    return *std::find_if(
        std::begin(table), std::end(table), [part](const Row &row) { return row.part == part; });
}
} // namespace

std::optional<Instant> ClockTime::on(Calendar::Day day, const Calendar &calendar) const
{
    const std::optional<Instant> instant = calendar.instant(day, time);
    return instant && dayOffset != 0 ? calendar.addingDays(*instant, dayOffset) : instant;
}

ClockTime DayParts::clockTime(DayPart part, Calendar::TimeOfDay written, Engine engine)
{
    const Row &rule = row(part);
    const auto [hour, minute] = written;
    if (hour == 12 && rule.twelve == IsZero)
        return {{0, minute}};
    // The grammar reads "0 in the evening" as 12:00.
    if (rule.twelve == EndsTheDay && (hour == 12 || (hour == 0 && engine == Engine::Detection)))
        return {{0, minute}, 1};
    const Hours &afterNoon = engine == Engine::Grammar ? rule.grammar : rule.detection;
    return {{afterNoon.contains(hour) ? hour + 12 : hour, minute}};
}

Calendar::TimeOfDay DayParts::defaultTime(DayPart part)
{
    return {row(part).hourAlone, 0};
}
