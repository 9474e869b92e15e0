#include "search/LexicalIndex.h"

#include "foundation/CaseFolding.h"
#include "foundation/Characters.h"
#include "foundation/WordTokenizer.h"

#include <algorithm>
#include <cstring>

namespace {
constexpr char separator = '\xFF'; // never occurs in UTF-8

void appendNumber(std::vector<quint8> &bytes, quint32 number)
{
    for (; number >= 0x80; number >>= 7)
        bytes.push_back(quint8(number | 0x80));
    bytes.push_back(quint8(number));
}

/// Releases capacity left over from growth.
template <typename T>
void squeeze(std::vector<T> &list)
{
    if (list.capacity() > list.size() + list.size() / 8)
        list.shrink_to_fit();
}
} // namespace

void LexicalIndex::setOrder(const QList<SemanticCandidate> &texts)
{
    if (m_deadBytes > m_wasteLimit && m_deadBytes > m_folded.size() / 2)
        compact();
    m_order.clear();
    m_order.reserve(size_t(texts.size()));
    m_numbers.reserve(texts.size());
    const size_t known = m_documents.size();
    for (const SemanticCandidate &text : texts) {
        auto number = m_numbers.constFind(text.id);
        if (number == m_numbers.cend())
            number = m_numbers.insert(text.id, add(text.text));
        m_order.push_back(*number);
    }
    if (m_documents.size() > known + known / 2) {
        squeeze(m_folded);
        squeeze(m_documents);
    }
}

quint32 LexicalIndex::add(const QString &text)
{
    const QByteArray folded = CaseFolding::folded(text).toUtf8();
    m_documents.push_back({m_folded.size(), quint32(folded.size())});
    m_folded.insert(m_folded.end(), folded.begin(), folded.end());
    m_folded.push_back(separator);
    return quint32(m_documents.size() - 1);
}

void LexicalIndex::drop(QUuid id)
{
    const auto found = m_numbers.constFind(id);
    if (found == m_numbers.cend())
        return;
    Document &dropped = m_documents[*found];
    dropped.isLive = false;
    m_deadBytes += dropped.size;
    m_lowered.remove(*found);
    m_numbers.erase(found);
}

void LexicalIndex::compact()
{
    LexicalIndex kept(m_wasteLimit);
    std::vector<quint32> newNumbers(m_documents.size());
    for (size_t number = 0; number < m_documents.size(); ++number) {
        Document document = m_documents[number];
        if (!document.isLive)
            continue;
        newNumbers[number] = quint32(kept.m_documents.size());
        const auto text = m_folded.begin() + qsizetype(document.begin);
        document.begin = kept.m_folded.size();
        kept.m_folded.insert(kept.m_folded.end(), text, text + document.size + 1);
        if (document.wordsBegin != notRead) {
            const auto words = m_words.begin() + document.wordsBegin;
            document.wordsBegin = quint32(kept.m_words.size());
            kept.m_words.insert(kept.m_words.end(), words, words + document.wordsSize);
        }
        kept.m_documents.push_back(document);
    }
    for (auto [number, lower] : m_lowered.asKeyValueRange())
        kept.m_lowered.insert(newNumbers[number], lower);
    for (auto [id, number] : m_numbers.asKeyValueRange())
        kept.m_numbers.insert(id, newNumbers[number]);
    *this = std::move(kept);
}

QList<qsizetype> LexicalIndex::containing(QStringView query) const
{
    const QByteArray wanted = prepared(query);
    std::vector<bool> isHit(m_documents.size());
    const char *const begin = m_folded.data();
    const char *const end = begin + m_folded.size();
    auto document = m_documents.begin();
    for (const char *from = begin; from < end;) {
        const auto *hit =
            static_cast<const char *>(memmem(from, size_t(end - from), wanted.data(), size_t(wanted.size())));
        if (!hit)
            break;
        // The document of the hit is mostly near the previous one, hence the search in doubling steps.
        const auto startsBefore = [&](const Document &each) { return begin + each.begin <= hit; };
        qsizetype step = 1;
        while (m_documents.end() - document > step && startsBefore(*(document + step))) {
            document += step;
            step *= 2;
        }
        const auto limit = document + std::min(step, qsizetype(m_documents.end() - document));
        document = std::partition_point(document, limit, startsBefore) - 1;
        isHit[size_t(document - m_documents.begin())] = true;
        from = begin + document->begin + document->size + 1;
    }
    QList<qsizetype> indexes;
    for (size_t index = 0; index < m_order.size(); ++index) {
        if (isHit[m_order[index]])
            indexes.append(qsizetype(index));
    }
    return indexes;
}

bool LexicalIndex::contains(qsizetype index, QByteArrayView query) const
{
    return folded(document(index)).contains(query);
}

QByteArray LexicalIndex::prepared(QStringView query)
{
    return CaseFolding::folded(query.trimmed()).toUtf8();
}

void LexicalIndex::readWords(qsizetype index, const QString &text)
{
    const quint32 number = m_order[size_t(index)];
    Document &document = m_documents[number];
    const QString lower = text.toLower();
    const QByteArray bytes = lower.toUtf8();
    if (bytes != folded(document))
        m_lowered.insert(number, bytes);
    document.isSingleCodePoints = Characters::areSingleCodePoints(lower);

    document.wordsBegin = quint32(m_words.size());
    qsizetype end = 0; // of the last word, in the text
    for (const TextRange range : WordTokenizer::words(lower)) {
        const QStringView word = QStringView(lower).sliced(range.start, range.length());
        if (!SemanticSearch::isToken(word))
            continue;
        appendNumber(m_words, quint32(QStringView(lower).sliced(end, range.start - end).toUtf8().size()));
        appendNumber(m_words, quint32(word.toUtf8().size()));
        end = range.end;
    }
    document.wordsSize = quint32(m_words.size()) - document.wordsBegin;
}

LexicalIndex::Lexis LexicalIndex::lexis(qsizetype index) const
{
    const quint32 number = m_order[size_t(index)];
    const Document &found = m_documents[number];
    const auto lowered = m_lowered.constFind(number);
    return {lowered != m_lowered.cend() ? QByteArrayView(*lowered) : folded(found),
        std::span(m_words).subspan(found.wordsBegin, found.wordsSize), found.isSingleCodePoints};
}
