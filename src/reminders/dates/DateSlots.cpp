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

template <auto Fact>
bool take(const DateWord &word, DateFacts &facts)
{
    return set(facts.*Fact, word.value);
}

template <auto Fact, int First, int Last>
bool number(const DateWord &word, DateFacts &facts)
{
    return isNumber(word, First, Last) && take<Fact>(word, facts);
}

// A new slot is a row of this table.
constexpr DateSlot slotTable[] = {
    {u"hour", Kind::Number, number<&DateFacts::hour, 0, 24>},
    {u"minute", Kind::Number, number<&DateFacts::minute, 0, 59>},
    {u"mm", Kind::Number,
        [](const DateWord &word, DateFacts &facts) {
            return word.digits == 2 && number<&DateFacts::minute, 0, 59>(word, facts);
        }},
    {u"until", Kind::Number, [](const DateWord &word, DateFacts &) { return isNumber(word, 0, 59); }},
    {u"day", Kind::Number,
        [](const DateWord &word, DateFacts &facts) {
            return (word.digits > 0 || word.isHanNumeral) && number<&DateFacts::day, 1, 31>(word, facts);
        }},
    {u"daydigits", Kind::Number,
        [](const DateWord &word, DateFacts &facts) {
            return word.digits > 0 && number<&DateFacts::day, 1, 31>(word, facts);
        }},
    {u"ordinal", Kind::Ordinal, take<&DateFacts::day>},
    {u"monthnumber", Kind::Number, number<&DateFacts::month, 1, 12>},
    {u"month", Kind::Month, take<&DateFacts::month>},
    {u"year", Kind::Number,
        [](const DateWord &word, DateFacts &facts) {
            // "5/3/27"; below 25 it may as well be a version.
            if (isNumber(word, 25, 99) && word.digits == 2 && word.followsMark)
                return set(facts.year, 2000 + word.value);
            return isNumber(word, 1900, 2999, 4) && set(facts.year, word.value);
        }},
    {u"n", Kind::Number,
        [](const DateWord &word, DateFacts &facts) {
            if (!isNumber(word, 1, 999, 3))
                return false;
            facts.halves = facts.halves.value_or(0) + 2 * word.value;
            return true;
        }},
    {u"unit", Kind::Unit, take<&DateFacts::unit>},
    {u"weekday", Kind::Weekday, take<&DateFacts::weekday>},
    {u"shortweekday", Kind::ShortWeekday, take<&DateFacts::weekday>},
    {u"relative", Kind::Relative, take<&DateFacts::relativeDay>},
    {u"part", Kind::Part, take<&DateFacts::part>},
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
