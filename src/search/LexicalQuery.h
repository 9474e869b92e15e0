#pragma once

#include "search/LexicalIndex.h"

#include <QByteArray>
#include <QHash>
#include <QSet>

#include <vector>

/// A query prepared for comparison with many texts.
class LexicalQuery
{
public:
    explicit LexicalQuery(const QString &query);

    [[nodiscard]] bool isEmpty() const { return m_lower.isEmpty(); }
    /// 100 for containing the query, 3 for each shared word, 1 for each shared pair of characters.
    [[nodiscard]] double score(const LexicalIndex::Lexis &text);

private:
    /// A set of pairs of code points that counts each member once per text.
    class PairSet
    {
    public:
        explicit PairSet(const std::vector<quint64> &pairs);
        /// Whether the pair is a member that has not been asked for in this round.
        [[nodiscard]] bool isNewIn(quint32 round, quint64 pair);

    private:
        struct Slot {
            quint64 pair = 0; ///< 0 marks an empty slot: no letter has the code 0
            quint32 round = 0;
        };
        [[nodiscard]] Slot &slotFor(quint64 pair); ///< the pair's own, or the empty one where it would be

        std::vector<Slot> m_slots; ///< open addressing; at least twice as many as pairs
    };

    [[nodiscard]] int sharedWords(const LexicalIndex::Lexis &text);
    [[nodiscard]] int sharedPairs(const LexicalIndex::Lexis &text);

    QByteArray m_lower;
    QHash<QByteArray, quint32> m_words; ///< with the round in which each was last found
    std::vector<bool> m_wordShapes;     ///< by first byte and length: whether a word is worth looking up
    QSet<QString> m_pairs;
    PairSet m_codePointPairs;
    quint32 m_round = 0; ///< one for each text
};
