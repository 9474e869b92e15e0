#pragma once

#include "search/SemanticSearch.h"

#include <QByteArray>
#include <QByteArrayView>
#include <QHash>

#include <limits>
#include <span>
#include <vector>

/// Texts prepared for searching on every keystroke: case-folded in one buffer to find what contains a query,
/// and with the offsets of their words to find what shares words with it.
///
/// A text is read once and known by its id until it is dropped. Indexes refer to the order last set.
class LexicalIndex
{
public:
    /// What of a text takes part in its lexical score.
    struct Lexis {
        QByteArrayView lower; ///< UTF-8, in lower case
        /// For each word the number of bytes before it and its length, as variable-length integers.
        std::span<const quint8> words;
        bool isSingleCodePoints = false; ///< each character is one code point
    };

    /// Bytes of dropped texts beyond which the buffer is compacted, once they are more than half of it.
    static constexpr size_t defaultWasteLimit = 65536;
    explicit LexicalIndex(size_t wasteLimit = defaultWasteLimit)
        : m_wasteLimit(wasteLimit)
    {
    }

    /// The texts in the order in which results come. Texts that are not known yet are read.
    void setOrder(const QList<SemanticCandidate> &texts);
    /// Call when the text with this id has changed or is gone; the order must be set again afterwards.
    void drop(QUuid id);

    /// The indexes of the texts that contain the trimmed query, case aside, in ascending order. All texts
    /// contain a blank query.
    [[nodiscard]] QList<qsizetype> containing(QStringView query) const;
    /// The same for one text; @p query is trimmed, folded and in UTF-8.
    [[nodiscard]] bool contains(qsizetype index, QByteArrayView query) const;
    [[nodiscard]] static QByteArray prepared(QStringView query); ///< for contains()

    [[nodiscard]] bool hasWords(qsizetype index) const { return document(index).wordsBegin != notRead; }
    /// Finds the words of the text at this index. Called once for each text, when it is first ranked.
    void readWords(qsizetype index, const QString &text);
    /// The words must have been read. Valid until the index changes.
    [[nodiscard]] Lexis lexis(qsizetype index) const;

private:
    static constexpr quint32 notRead = std::numeric_limits<quint32>::max();
    struct Document {
        size_t begin = 0; ///< in m_folded; a byte that never occurs in UTF-8 follows the text
        quint32 size = 0;
        quint32 wordsBegin = notRead;
        quint32 wordsSize = 0;
        bool isLive = true;
        bool isSingleCodePoints = false;
    };
    [[nodiscard]] const Document &document(qsizetype index) const
    {
        return m_documents[m_order[size_t(index)]];
    }
    [[nodiscard]] QByteArrayView folded(const Document &document) const
    {
        return {m_folded.data() + document.begin, qsizetype(document.size)};
    }
    quint32 add(const QString &text);
    void compact();

    size_t m_wasteLimit;
    std::vector<char> m_folded;
    std::vector<quint8> m_words;
    std::vector<Document> m_documents; ///< in the order of m_folded
    /// By document number, only where lower case differs from the folded form.
    QHash<quint32, QByteArray> m_lowered;
    QHash<QUuid, quint32> m_numbers;
    std::vector<quint32> m_order;
    size_t m_deadBytes = 0;
};
