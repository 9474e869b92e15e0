#include "reminders/dates/DateSlots.h"

#include <algorithm>
#include <iterator>

namespace {
using Kind = DateWord::Kind;

constexpr int partsPerWeekday = 16; // more than there are parts of the day

bool isNumber(const DateWord &word, int first, int last, int maxDigits = 2)
{
    return word.value >= first && word.value <= last && word.digits <= maxDigits;
}

/// False when the fact is set already.
template <typename Fact, typename Value>
bool set(std::optional<Fact> &fact, Value value)
{
    if (fact)
        return false;
    fact = Fact(value);
    return true;
}

// A new slot is a row of this table.
constexpr DateSlot slotTable[] = {
    {u"hour", Kind::Number,
        [](const DateWord &word, DateFacts &facts) {
            return isNumber(word, 0, 24) && set(facts.hour, word.value);
        }},
    {u"minute", Kind::Number,
        [](const DateWord &word, DateFacts &facts) {
            return isNumber(word, 0, 59) && set(facts.minute, word.value);
        }},
    {u"mm", Kind::Number,
        [](const DateWord &word, DateFacts &facts) {
            return isNumber(word, 0, 59) && word.digits == 2 && set(facts.minute, word.value);
        }},
    {u"until", Kind::Number, [](const DateWord &word, DateFacts &) { return isNumber(word, 0, 59); }},
    {u"day", Kind::Number,
        [](const DateWord &word, DateFacts &facts) {
            return isNumber(word, 1, 31) && (word.digits > 0 || word.isHanNumeral)
                   && set(facts.day, word.value);
        }},
    {u"daydigits", Kind::Number,
        [](const DateWord &word, DateFacts &facts) {
            return isNumber(word, 1, 31) && word.digits > 0 && set(facts.day, word.value);
        }},
    {u"ordinal", Kind::Ordinal,
        [](const DateWord &word, DateFacts &facts) { return set(facts.day, word.value); }},
    {u"monthnumber", Kind::Number,
        [](const DateWord &word, DateFacts &facts) {
            return isNumber(word, 1, 12) && set(facts.month, word.value);
        }},
    {u"month", Kind::Month,
        [](const DateWord &word, DateFacts &facts) { return set(facts.month, word.value); }},
    {u"year", Kind::Number,
        [](const DateWord &word, DateFacts &facts) {
            // "5/3/27"; below 25 it may as well be a version.
            if (isNumber(word, 25, 99) && word.digits == 2 && word.followsMark)
                return set(facts.year, 2000 + word.value);
            return isNumber(word, 1900, 2999, 4) && set(facts.year, word.value);
        }},
    {u"n", Kind::Number,
        [](const DateWord &word, DateFacts &facts) {
            facts.halves = facts.halves.value_or(0) + 2 * word.value;
            return isNumber(word, 1, 999, 3);
        }},
    {u"unit", Kind::Unit, [](const DateWord &word, DateFacts &facts) { return set(facts.unit, word.value); }},
    {u"weekday", Kind::Weekday,
        [](const DateWord &word, DateFacts &facts) { return set(facts.weekday, word.value); }},
    {u"shortweekday", Kind::ShortWeekday,
        [](const DateWord &word, DateFacts &facts) { return set(facts.weekday, word.value); }},
    {u"relative", Kind::Relative,
        [](const DateWord &word, DateFacts &facts) { return set(facts.relativeDay, word.value); }},
    {u"part", Kind::Part, [](const DateWord &word, DateFacts &facts) { return set(facts.part, word.value); }},
    {u"weekdaypart", Kind::WeekdayAndPart,
        [](const DateWord &word, DateFacts &facts) {
            return set(facts.weekday, word.value / partsPerWeekday)
                   && set(facts.part, word.value % partsPerWeekday);
        }},
};
} // namespace

DateWord DateWord::joined(int weekday, DayPart part)
{
    return {Kind::WeekdayAndPart, weekday * partsPerWeekday + int(part)};
}

const DateSlot *DateSlot::named(QStringView name)
{
    const auto *found = std::find_if(std::begin(slotTable), std::end(slotTable),
        [name](const DateSlot &slot) { return slot.name == name; });
    return found == std::end(slotTable) ? nullptr : found;
}
