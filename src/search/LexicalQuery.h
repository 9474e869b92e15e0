#pragma once

#include "search/LexicalIndex.h"

#include <QByteArray>
#include <QHash>
#include <QSet>

#include <vector>

/// A query made ready to be compared with many texts.
class LexicalQuery
{
public:
    explicit LexicalQuery(const QString &query);

    [[nodiscard]] bool isEmpty() const { return m_lower.isEmpty(); }
    /// The lexical score of SemanticSearch::rankMatches.
    [[nodiscard]] double score(const LexicalIndex::Lexis &text);

private:
    /// A set of pairs of code points that also tells whether a member has been met in the present text.
    class PairSet
    {
    public:
        explicit PairSet(const std::vector<quint64> &pairs);
        [[nodiscard]] bool meets(quint64 pair, quint32 round);

    private:
        struct Slot {
            quint64 pair = 0; ///< 0 is an empty slot: no letter has the code 0
            quint32 round = 0;
        };
        std::vector<Slot> m_slots; ///< open addressing; at least twice as many as pairs
    };

    [[nodiscard]] int sharedWords(const LexicalIndex::Lexis &text);
    [[nodiscard]] int sharedPairs(const LexicalIndex::Lexis &text);

    QByteArray m_lower;
    QHash<QByteArray, quint32> m_words; ///< with the round in which each has last been met
    std::vector<bool> m_wordShapes;     ///< by first byte and length: which words are worth looking up
    QSet<QString> m_pairs;
    PairSet m_codePointPairs;
    quint32 m_round = 0; ///< one for each text
};
