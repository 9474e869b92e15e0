#include "reminders/dates/DateReading.h"

#include "foundation/Scripts.h"

#include <algorithm>

namespace {
using Kind = DateWord::Kind;

constexpr qsizetype longestPhrase = 5; // in tokens

/// 十五 is 15, 二十 is 20; -1 for anything that is not a number of this form below a hundred.
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

DateReading::DateReading(const CompiledGrammar &grammar, const QList<DateToken> &tokens)
    : m_grammar(grammar)
    , m_tokens(tokens)
    , m_arcs(size_t(tokens.size()))
{
    for (qsizetype start = 0; start < tokens.size(); ++start) {
        const DateToken &token = tokens[start];
        if (token.type == DateToken::Type::Barrier)
            continue;
        if (token.type == DateToken::Type::Number) {
            const bool followsMark = token.isGlued && tokens[start - 1].type == DateToken::Type::Mark;
            m_arcs[size_t(start)].push_back(
                {{Kind::Number, token.value, token.digits, false, followsMark}, start + 1});
        }
        addNumeralArc(start);
        addPhraseArcs(start);
    }
}

void DateReading::addPhraseArcs(qsizetype start)
{
    CompiledGrammar::NodeIndex node = CompiledGrammar::root;
    for (qsizetype at = start; at < m_tokens.size(); ++at) {
        const DateToken &token = m_tokens[at];
        const bool isBroken = at > start && token.type == DateToken::Type::Character && !token.isGlued
                              && !Scripts::isHangul(token.text.front());
        node = m_grammar.next(node, token.text);
        if (isBroken || token.type == DateToken::Type::Barrier || node == CompiledGrammar::root)
            return;
        for (const DateWord &word : m_grammar.words(node))
            m_arcs[size_t(start)].push_back({word, at + 1});
    }
}

void DateReading::addNumeralArc(qsizetype start)
{
    if (!m_grammar.hasHanNumerals() || !isHanNumeral(m_tokens[start])
        || (start > 0 && m_tokens[start].isGlued && isHanNumeral(m_tokens[start - 1])))
        return;
    QString numeral;
    qsizetype end = start;
    for (; end < m_tokens.size() && isHanNumeral(m_tokens[end]) && (end == start || m_tokens[end].isGlued);
         ++end)
        numeral += m_tokens[end].text;
    if (const int value = hanNumeral(numeral); value >= 0)
        m_arcs[size_t(start)].push_back({{Kind::Number, value, 0, true}, end});
}

void DateReading::walk(const CompiledGrammar::Rule &rule, size_t element, qsizetype at,
    const DateFacts &facts, std::vector<Match> &found) const
{
    if (element == rule.elements.size()) {
        found.push_back({at, facts, rule.strength});
        return;
    }
    const CompiledGrammar::Element &expected = rule.elements[element];
    if (expected.isOptional)
        walk(rule, element + 1, at, facts, found);
    if (at >= m_tokens.size())
        return;
    // A separator within a number has no space on either side.
    const bool isMark = m_tokens[at].type == DateToken::Type::Mark && m_tokens[at].text != u"(";
    const bool followsMark = at > 0 && element > 0 && m_tokens[at - 1].type == DateToken::Type::Mark
                             && QStringView(u":/-").contains(m_tokens[at - 1].text.front());
    if ((isMark || followsMark) && !m_tokens[at].isGlued)
        return;
    for (const Arc &arc : m_arcs[size_t(at)]) {
        if (!expected.accepts(arc.word))
            continue;
        DateFacts more = facts;
        if (!expected.slot || expected.slot->take(arc.word, more))
            walk(rule, element + 1, arc.end, more, found);
    }
}

std::vector<DateReading::Match> DateReading::matches(qsizetype start) const
{
    std::vector<Match> found;
    std::vector<CompiledGrammar::RuleIndex> rules;
    for (const Arc &arc : m_arcs[size_t(start)]) {
        for (const CompiledGrammar::RuleIndex rule : m_grammar.rulesFrom(arc.word)) {
            if (std::find(rules.begin(), rules.end(), rule) == rules.end())
                rules.push_back(rule);
        }
    }
    for (const CompiledGrammar::RuleIndex index : rules) {
        const CompiledGrammar::Rule &rule = m_grammar.rule(index);
        const auto before = std::ptrdiff_t(found.size());
        walk(rule, 0, start, rule.facts, found);
        // A rule of optional elements alone also matches nothing at all.
        found.erase(std::remove_if(found.begin() + before, found.end(),
                        [start](const Match &match) { return match.end == start; }),
            found.end());
    }
    return found;
}

bool DateReading::hasRole(const Arc &arc, Role role)
{
    return arc.word.kind == Kind::Role && arc.word.value == int(role);
}

std::vector<qsizetype> DateReading::endsOf(Role role, qsizetype start) const
{
    std::vector<qsizetype> ends;
    if (start < m_tokens.size()) {
        for (const Arc &arc : m_arcs[size_t(start)]) {
            if (hasRole(arc, role))
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
            if (arc.end == end && hasRole(arc, role))
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
