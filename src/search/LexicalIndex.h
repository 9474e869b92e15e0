#pragma once

#include "search/SemanticSearch.h"

#include <QByteArray>
#include <QByteArrayView>
#include <QHash>

#include <limits>
#include <span>
#include <vector>

/// Texts made ready to be searched at each key press: folded in one buffer for what contains a query, and
/// with the places of their words for what shares words with it.
///
/// A text is read once and known by its id until it is dropped. What is asked for is the place in an order
/// that the owner gives.
class LexicalIndex
{
public:
    /// What of a text takes part in its lexical score.
    struct Lexis {
        QByteArrayView lower; ///< UTF-8, in lower case
        std::span<const quint8>
            words; ///< for each word the bytes before it and its length, seven bits a byte
        bool isSingleCodePoints = false;
    };

    /// The texts in the order in which results come. Those that are not known yet are read.
    void setOrder(const QList<SemanticCandidate> &texts);
    /// To be called whenever the text under this id has changed or gone; the order is to be set anew.
    void drop(QUuid id);
    [[nodiscard]] qsizetype size() const { return qsizetype(m_order.size()); } ///< of the order

    /// The places of the texts that contain the query, case aside, in ascending order.
    [[nodiscard]] QList<qsizetype> containing(QStringView query) const;

    [[nodiscard]] bool hasWords(qsizetype place) const { return document(place).wordsBegin != notRead; }
    /// Looks for the words of the text at this place: once, and only for texts that are ranked.
    void readWords(qsizetype place, const QString &text);
    [[nodiscard]] Lexis lexis(qsizetype place) const; ///< of a text whose words have been read

private:
    static constexpr quint32 notRead = std::numeric_limits<quint32>::max();
    struct Document {
        size_t begin = 0; ///< in m_folded; a byte that no UTF-8 has follows the text
        quint32 size = 0;
        quint32 wordsBegin = notRead;
        quint32 wordsSize = 0;
        bool isLive = true;
        bool isSingleCodePoints = false;
    };
    [[nodiscard]] const Document &document(qsizetype place) const
    {
        return m_documents[m_order[size_t(place)]];
    }
    quint32 add(const QString &text);
    void dropDead();

    std::vector<char> m_folded;
    std::vector<quint8> m_words;
    std::vector<Document> m_documents; ///< as they stand in m_folded
    QHash<quint32, QByteArray>
        m_lowered; ///< by the document's number; where lower case is not the folded form
    QHash<QUuid, quint32> m_numbers;
    std::vector<quint32> m_order;
    size_t m_deadBytes = 0;
};
