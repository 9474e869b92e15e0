#pragma once

#include "reminders/dates/DateReading.h"

/// Finds the dates of one draft in one language by combining adjacent matches of rules.
class DateFinder
{
public:
    /// @p tokens must outlive the finder.
    DateFinder(const CompiledGrammar &grammar, const QList<DateToken> &tokens);

    struct Found {
        qsizetype start = 0; ///< its first token
        qsizetype end = 0;   ///< the token after its last
        DateFacts facts;
    };
    /// From left to right, not overlapping; from each token on the longest wins. Words that lead to a date or
    /// follow it ("by", "sharp") belong to it.
    [[nodiscard]] QList<Found> find() const;

private:
    using Strength = DateWords::Strength;
    using Role = CompiledGrammar::Role;
    using Type = DateToken::Type;

    [[nodiscard]] bool isType(qsizetype token, Type type) const;
    [[nodiscard]] bool isGlued(qsizetype token) const;
    [[nodiscard]] bool isHangul(qsizetype token) const;
    [[nodiscard]] bool isHyphen(qsizetype token) const;
    [[nodiscard]] bool isEdge(qsizetype token) const;

    [[nodiscard]] bool mayBeginAt(qsizetype token) const;
    [[nodiscard]] bool mayEndAt(qsizetype token) const;
    void beginAt(qsizetype start, qsizetype first, int leadingWords, Found &best) const;
    void extend(const Found &sofar, int parts, Strength strength, Found &best) const;
    [[nodiscard]] QList<qsizetype> continuations(qsizetype end, int parts) const;
    [[nodiscard]] qsizetype withWordsBefore(qsizetype start, qsizetype free) const;
    [[nodiscard]] qsizetype withWordsAfter(qsizetype end) const;

    DateReading m_reading;
    const QList<DateToken> &m_tokens;
};
