#include "search/LexicalIndex.h"

#include "foundation/CaseFolding.h"
#include "foundation/Characters.h"
#include "foundation/WordTokenizer.h"

#include <algorithm>
#include <cstring>

namespace {
constexpr char separator = '\xFF'; // stands in no UTF-8

void appendNumber(std::vector<quint8> &bytes, quint32 number)
{
    for (; number >= 0x80; number >>= 7)
        bytes.push_back(quint8(number | 0x80));
    bytes.push_back(quint8(number));
}

/// Lets go of room that growth has left over.
template <typename T>
void squeeze(std::vector<T> &list)
{
    if (list.capacity() > list.size() + list.size() / 8)
        list.shrink_to_fit();
}
} // namespace

void LexicalIndex::setOrder(const QList<SemanticCandidate> &texts)
{
    constexpr size_t littleWaste = 65536;
    if (m_deadBytes > littleWaste && m_deadBytes > m_folded.size() / 2)
        dropDead();
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

void LexicalIndex::dropDead()
{
    LexicalIndex kept;
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
    const QByteArray wanted = CaseFolding::folded(query).toUtf8();
    std::vector<bool> isHit(m_documents.size());
    const char *const begin = m_folded.data();
    const char *const end = begin + m_folded.size();
    auto document = m_documents.begin();
    for (const char *from = begin; from < end;) {
        const auto *hit =
            static_cast<const char *>(memmem(from, size_t(end - from), wanted.data(), size_t(wanted.size())));
        if (!hit)
            break;
        // The document that the hit lies in: mostly near the last one, so in steps that double.
        const auto liesBehind = [&](const Document &each) { return begin + each.begin <= hit; };
        qsizetype step = 1;
        while (m_documents.end() - document > step && liesBehind(*(document + step))) {
            document += step;
            step *= 2;
        }
        const auto limit = document + std::min(step, qsizetype(m_documents.end() - document));
        document = std::partition_point(document, limit, liesBehind) - 1;
        isHit[size_t(document - m_documents.begin())] = true;
        from = begin + document->begin + document->size + 1;
    }
    QList<qsizetype> places;
    for (size_t place = 0; place < m_order.size(); ++place) {
        if (isHit[m_order[place]])
            places.append(qsizetype(place));
    }
    return places;
}

void LexicalIndex::readWords(qsizetype place, const QString &text)
{
    const quint32 number = m_order[size_t(place)];
    Document &document = m_documents[number];
    const QString lower = text.toLower();
    const QByteArray bytes = lower.toUtf8();
    if (bytes != QByteArrayView(m_folded.data() + document.begin, document.size))
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

LexicalIndex::Lexis LexicalIndex::lexis(qsizetype place) const
{
    const quint32 number = m_order[size_t(place)];
    const Document &found = m_documents[number];
    const auto lowered = m_lowered.constFind(number);
    return {lowered != m_lowered.cend() ? QByteArrayView(*lowered)
                                        : QByteArrayView(m_folded.data() + found.begin, found.size),
        std::span(m_words).subspan(found.wordsBegin, found.wordsSize), found.isSingleCodePoints};
}
