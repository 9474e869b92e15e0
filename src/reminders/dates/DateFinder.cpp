#include "reminders/dates/DateFinder.h"

#include "foundation/Scripts.h"

#include <algorithm>

namespace {
constexpr int maxLeadingWords = 3; // "not before the"
constexpr int maxParts = 4;        // "on Friday, 6 March, in the afternoon at 3"
} // namespace

DateFinder::DateFinder(const CompiledGrammar &grammar, const QList<DateToken> &tokens)
    : m_reading(grammar, tokens)
    , m_tokens(tokens)
{
}

QList<DateFinder::Found> DateFinder::find() const
{
    QList<Found> all;
    qsizetype free = 0; // the first token after the previous date
    for (qsizetype start = 0; start < m_tokens.size();) {
        Found best{start, start, {}};
        beginAt(start, start, maxLeadingWords, best);
        if (best.end == start) {
            ++start;
            continue;
        }
        best.start = withWordsBefore(best.start, free);
        best.end = withWordsAfter(best.end);
        all.append(best);
        start = free = best.end;
    }
    return all;
}

bool DateFinder::isType(qsizetype token, Type type) const
{
    return token >= 0 && token < m_tokens.size() && m_tokens[token].type == type;
}

bool DateFinder::isGlued(qsizetype token) const
{
    return token < m_tokens.size() && m_tokens[token].isGlued;
}

bool DateFinder::isHangul(qsizetype token) const
{
    return isType(token, Type::Character) && Scripts::isHangul(m_tokens[token].text.front());
}

bool DateFinder::isHyphen(qsizetype token) const
{
    return isType(token, Type::Mark) && m_tokens[token].text == u"-";
}

// Not within a word, and not after one that excludes a date.
bool DateFinder::mayBeginAt(qsizetype token) const
{
    if (m_reading.startOf(Role::NotAfter, token) != token || m_reading.isWithin(Role::Idiom, token))
        return false;
    if (!isGlued(token))
        return true;
    const qsizetype before = token - 1;
    if (isHangul(token))
        return !isHangul(before);
    if (isHyphen(before))
        return !isGlued(before);
    const bool isElision = isType(before, Type::Word) && m_tokens[before].text.endsWith(u'\'');
    return isElision || !(isType(before, Type::Word) || isType(before, Type::Number))
           || isType(token, Type::Character);
}

bool DateFinder::mayEndAt(qsizetype token) const
{
    if (m_reading.endOf(Role::NotBefore, token) != token || m_reading.isWithin(Role::Idiom, token))
        return false;
    if (!isGlued(token))
        return true;
    if (isHangul(token)) { // a particle may follow
        const qsizetype end = m_reading.endOf(Role::After, token);
        return !isHangul(token - 1) || (end != token && !(isHangul(end) && isGlued(end)));
    }
    if (isHyphen(token))
        return !isGlued(token + 1);
    const bool isPossessive = isType(token, Type::Word) && m_tokens[token].text == u"'s";
    return isPossessive || isType(token, Type::Character)
           || !(isType(token, Type::Word) || isType(token, Type::Number) || isType(token, Type::Barrier));
}

// The end of the draft or of a clause.
bool DateFinder::isEdge(qsizetype token) const
{
    if (token >= m_tokens.size() || isType(token, Type::Barrier)
        || m_reading.endOf(Role::Announcement, token) != token)
        return true;
    return isType(token, Type::Mark)
           && QStringView(u",.;:!?)，。、；！？").contains(m_tokens[token].text.front());
}

// Tries a date that begins with this token, or after the leading words there.
void DateFinder::beginAt(qsizetype start, qsizetype first, int leadingWords, Found &best) const
{
    if (first >= m_tokens.size())
        return;
    if (mayBeginAt(first))
        extend({start, first, {}}, 0, Strength::WithNeighbour, best);
    if (leadingWords == 0)
        return;
    for (const qsizetype next : m_reading.endsOf(Role::Before, first))
        beginAt(start, next, leadingWords - 1, best);
}

// Tries what can follow the parts found so far, and keeps the longest date that can end.
void DateFinder::extend(const Found &sofar, int parts, Strength strength, Found &best) const
{
    const bool isSufficient =
        strength == Strength::Alone || (strength == Strength::AtEdge && (parts > 1 || isEdge(sofar.end)));
    if (parts > 0 && isSufficient && sofar.end > best.end && mayEndAt(sofar.end))
        best = sofar;
    if (parts == maxParts)
        return;
    for (const qsizetype at : continuations(sofar.end, parts)) {
        if (at >= m_tokens.size())
            continue;
        for (const DateReading::Match &match : m_reading.matches(at)) {
            if (const auto facts = DateFacts::combined(sofar.facts, match.facts))
                extend({sofar.start, match.end, *facts}, parts + 1, std::min(strength, match.strength), best);
        }
    }
}

// Where the next part may begin: immediately, or after a comma or a word that joins parts.
QList<qsizetype> DateFinder::continuations(qsizetype end, int parts) const
{
    QList<qsizetype> starts{end};
    if (parts == 0)
        return starts;
    const bool isComma =
        isType(end, Type::Mark) && QStringView(u",，、").contains(m_tokens[end].text.front());
    const qsizetype afterComma = isComma ? end + 1 : end;
    if (isComma)
        starts.append(afterComma);
    for (const Role role : {Role::Between, Role::Before}) {
        for (const qsizetype next : m_reading.endsOf(role, afterComma))
            starts.append(next);
    }
    return starts;
}

// "by the", "spätestens am".
qsizetype DateFinder::withWordsBefore(qsizetype start, qsizetype free) const
{
    for (int i = 0; i < maxLeadingWords; ++i) {
        const qsizetype before = m_reading.startOf(Role::Before, start);
        const bool isPart = isHangul(before) && before > 0 && isHangul(before - 1) && isGlued(before);
        if (before == start || before < free || isPart)
            break;
        start = before;
    }
    return start;
}

qsizetype DateFinder::withWordsAfter(qsizetype end) const
{
    if (isType(end, Type::Word) && m_tokens[end].text == u"'s" && isGlued(end))
        ++end;
    return m_reading.endOf(Role::After, end);
}
