#include "reminders/dates/DateReading.h"

#include <algorithm>

namespace {
constexpr qsizetype longestPhrase = 5; // in tokens

/// 十五 is 15, 二十 is 20; -1 for what is no such number below a hundred.
int hanNumeral(const QString &characters)
{
    static const QString digits = QStringLiteral("〇一二三四五六七八九");
    const auto digit = [](QChar character) {
        if (character == u'零')
            return 0;
        if (character == u'两' || character == u'兩')
            return 2;
        return int(digits.indexOf(character));
    };
    const qsizetype ten = characters.indexOf(u'十');
    if (ten < 0) {
        int value = 0;
        for (const QChar character : characters)
            value = value * 10 + digit(character);
        return characters.size() <= 4 ? value : -1;
    }
    if (ten > 1 || characters.size() > ten + 2)
        return -1;
    const int tens = ten == 0 ? 1 : digit(characters.front());
    const int ones = characters.size() == ten + 1 ? 0 : digit(characters.back());
    return tens * 10 + ones;
}

bool isHanNumeral(const DateToken &token)
{
    return token.type == DateToken::Type::Character
           && QStringView(u"〇零一二两兩三四五六七八九十").contains(token.text.front());
}
} // namespace

DateReading::DateReading(const DateGrammar &grammar, const QList<DateToken> &tokens)
    : m_grammar(grammar)
    , m_tokens(tokens)
    , m_arcs(size_t(tokens.size()))
{
    for (qsizetype start = 0; start < tokens.size(); ++start) {
        const DateToken &token = tokens[start];
        if (token.type == DateToken::Type::Barrier)
            continue;
        if (token.type == DateToken::Type::Number) {
            const bool isBehindMark = token.isGlued && tokens[start - 1].type == DateToken::Type::Mark;
            m_arcs[size_t(start)].push_back(
                {{Kind::Number, token.value}, start + 1, token.digits, false, isBehindMark});
        }
        addNumeralArc(start);
        addPhraseArcs(start);
    }
}

void DateReading::addPhraseArcs(qsizetype start)
{
    const std::vector<DateGrammar::Node> &nodes = m_grammar.m_nodes;
    size_t node = 0;
    for (qsizetype at = start; at < m_tokens.size(); ++at) {
        const DateToken &token = m_tokens[at];
        const bool isBroken = at > start && token.type == DateToken::Type::Character && !token.isGlued
                              && !DateTokens::isHangul(token.text.front());
        node = m_grammar.next(node, token.text);
        if (isBroken || token.type == DateToken::Type::Barrier || node == 0)
            return;
        for (const Entry &entry : nodes[node].entries)
            m_arcs[size_t(start)].push_back({entry, at + 1, 0});
    }
}

void DateReading::addNumeralArc(qsizetype start)
{
    if (!m_grammar.m_hasHanNumerals || !isHanNumeral(m_tokens[start])
        || (start > 0 && m_tokens[start].isGlued && isHanNumeral(m_tokens[start - 1])))
        return;
    QString numeral;
    qsizetype end = start;
    for (; end < m_tokens.size() && isHanNumeral(m_tokens[end]) && (end == start || m_tokens[end].isGlued);
         ++end)
        numeral += m_tokens[end].text;
    if (const int value = hanNumeral(numeral); value >= 0)
        m_arcs[size_t(start)].push_back({{Kind::Number, value}, end, 0, true, false});
}

bool DateReading::take(const Element &element, const Arc &arc, DateFacts &facts)
{
    const int value = arc.entry.value;
    const auto isKind = [&arc](Kind kind) { return arc.entry.kind == kind; };
    const auto isNumber = [&](int first, int last, int mostDigits = 2) {
        return isKind(Kind::Number) && value >= first && value <= last && arc.digits <= mostDigits;
    };
    const auto say = [](auto &fact, auto said) {
        if (fact)
            return false;
        fact = said;
        return true;
    };
    switch (element.slot) {
    case Slot::Literal:
        return isKind(Kind::Literal)
               && std::find(element.literals.begin(), element.literals.end(), value)
                      != element.literals.end();
    case Slot::Hour:
        return isNumber(0, 24) && say(facts.hour, value);
    case Slot::Minute:
        return isNumber(0, 59) && say(facts.minute, value);
    case Slot::TwoDigits:
        return isNumber(0, 59) && arc.digits == 2 && say(facts.minute, value);
    case Slot::Day:
        return isNumber(1, 31) && (arc.digits > 0 || arc.isHanNumeral) && say(facts.day, value);
    case Slot::DayInDigits:
        return isNumber(1, 31) && arc.digits > 0 && say(facts.day, value);
    case Slot::MonthNumber:
        return isNumber(1, 12) && say(facts.month, value);
    case Slot::Month:
        return isKind(Kind::Month) && say(facts.month, value);
    case Slot::Year:
        // "5/3/27"; what looks like the years before may as well be a version.
        if (isNumber(25, 99) && arc.digits == 2 && arc.isBehindMark)
            return say(facts.year, 2000 + value);
        return isNumber(1900, 2999, 4) && say(facts.year, value);
    case Slot::Count:
        if (!isNumber(1, 999, 3))
            return false;
        facts.halves = facts.halves.value_or(0) + 2 * value;
        return true;
    case Slot::Unit:
        return isKind(Kind::Unit) && say(facts.unit, SpanUnit(value));
    case Slot::Weekday:
        return isKind(Kind::Weekday) && say(facts.weekday, value);
    case Slot::Relative:
        return isKind(Kind::Relative) && say(facts.relativeDay, value);
    case Slot::Part:
        return isKind(Kind::Part) && say(facts.part, DayPart(value));
    case Slot::Ordinal:
        return isKind(Kind::Ordinal) && say(facts.day, value);
    case Slot::Until:
        return isNumber(0, 59);
    case Slot::WeekdayAndPart:
        return isKind(Kind::WeekdayAndPart) && say(facts.weekday, value / DateGrammar::partsInAWeekday)
               && say(facts.part, DayPart(value % DateGrammar::partsInAWeekday));
    }
    return false;
}

void DateReading::walk(
    const Rule &rule, size_t element, qsizetype at, const DateFacts &facts, std::vector<Match> &found) const
{
    if (element == rule.elements.size()) {
        found.push_back({at, facts, rule.strength});
        return;
    }
    if (rule.elements[element].isOptional)
        walk(rule, element + 1, at, facts, found);
    if (at >= m_tokens.size())
        return;
    // What holds a number together has nothing on either side of it.
    const bool isMark = m_tokens[at].type == DateToken::Type::Mark && m_tokens[at].text != u"(";
    const bool followsMark = at > 0 && element > 0 && m_tokens[at - 1].type == DateToken::Type::Mark
                             && QStringView(u":/-").contains(m_tokens[at - 1].text.front());
    if ((isMark || followsMark) && !m_tokens[at].isGlued)
        return;
    for (const Arc &arc : m_arcs[size_t(at)]) {
        DateFacts more = facts;
        if (take(rule.elements[element], arc, more))
            walk(rule, element + 1, arc.end, more, found);
    }
}

std::vector<DateReading::Match> DateReading::matches(qsizetype start) const
{
    std::vector<Match> found;
    std::vector<size_t> rules;
    for (const Arc &arc : m_arcs[size_t(start)]) {
        const size_t first = DateGrammar::index(arc.entry);
        if (first < m_grammar.m_rulesByFirst.size()) {
            for (const size_t rule : m_grammar.m_rulesByFirst[first]) {
                if (std::find(rules.begin(), rules.end(), rule) == rules.end())
                    rules.push_back(rule);
            }
        }
    }
    for (const size_t rule : rules) {
        const std::vector<Match>::size_type before = found.size();
        walk(m_grammar.m_rules[rule], 0, start, m_grammar.m_rules[rule].facts, found);
        // A rule whose elements are all optional matches nothing at all, too.
        found.erase(std::remove_if(found.begin() + std::ptrdiff_t(before), found.end(),
                        [start](const Match &match) { return match.end == start; }),
            found.end());
    }
    return found;
}

std::vector<qsizetype> DateReading::endsOf(Role role, qsizetype start) const
{
    std::vector<qsizetype> ends;
    if (start < m_tokens.size()) {
        for (const Arc &arc : m_arcs[size_t(start)]) {
            if (arc.entry.kind == Kind::Role && arc.entry.value == int(role))
                ends.push_back(arc.end);
        }
    }
    return ends;
}

qsizetype DateReading::endOf(Role role, qsizetype start) const
{
    const std::vector<qsizetype> ends = endsOf(role, start);
    return ends.empty() ? start : *std::max_element(ends.begin(), ends.end());
}

qsizetype DateReading::startOf(Role role, qsizetype end) const
{
    for (qsizetype start = std::max<qsizetype>(0, end - longestPhrase); start < end; ++start) {
        for (const Arc &arc : m_arcs[size_t(start)]) {
            if (arc.end == end && arc.entry.kind == Kind::Role && arc.entry.value == int(role))
                return start;
        }
    }
    return end;
}

bool DateReading::isWithin(Role role, qsizetype token) const
{
    for (qsizetype start = std::max<qsizetype>(0, token - longestPhrase); start < token; ++start) {
        const std::vector<qsizetype> ends = endsOf(role, start);
        if (std::any_of(ends.begin(), ends.end(), [token](qsizetype end) { return end > token; }))
            return true;
    }
    return false;
}
