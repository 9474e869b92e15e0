#include "search/LexicalQuery.h"

#include <array>
#include <bit>
#include <cstring>

namespace {
constexpr size_t shapeCount = 256 * 32;

size_t shape(const char *word, size_t size)
{
    return size_t(quint8(word[0])) * 32 + size % 32;
}

quint64 pairOf(char32_t first, char32_t second)
{
    return quint64(first) << 32 | second;
}

/// Decodes the code point at @p at, which must be well-formed UTF-8, and advances past it.
char32_t nextCodePoint(const char *&at)
{
    const auto byte = [&at](int index) { return char32_t(quint8(at[index])); };
    const char32_t first = byte(0);
    if (first < 0x80) {
        at += 1;
        return first;
    }
    if (first < 0xE0) {
        const char32_t codePoint = (first & 0x1F) << 6 | (byte(1) & 0x3F);
        at += 2;
        return codePoint;
    }
    if (first < 0xF0) {
        const char32_t codePoint = (first & 0x0F) << 12 | (byte(1) & 0x3F) << 6 | (byte(2) & 0x3F);
        at += 3;
        return codePoint;
    }
    const char32_t codePoint =
        (first & 0x07) << 18 | (byte(1) & 0x3F) << 12 | (byte(2) & 0x3F) << 6 | (byte(3) & 0x3F);
    at += 4;
    return codePoint;
}

bool isLetterOrNumber(char32_t codePoint)
{
    static const auto ascii = [] {
        std::array<bool, 128> table;
        for (char32_t each = 0; each < table.size(); ++each)
            table[each] = QChar::isLetterOrNumber(each);
        return table;
    }();
    if (codePoint < ascii.size())
        return ascii[codePoint];
    const bool isCommonHan = codePoint >= 0x4E00 && codePoint < 0x9FA6;
    return isCommonHan || QChar::isLetterOrNumber(codePoint);
}

/// The pairs whose characters are one code point each. Others occur only in texts that are not
/// Lexis::isSingleCodePoints.
std::vector<quint64> codePointPairs(const QSet<QString> &pairs)
{
    std::vector<quint64> found;
    for (const QString &pair : pairs) {
        const QList<uint> codePoints = pair.toUcs4();
        if (codePoints.size() == 2)
            found.push_back(pairOf(codePoints[0], codePoints[1]));
    }
    return found;
}

quint32 readNumber(const quint8 *&at)
{
    quint32 number = 0;
    for (int shift = 0;; shift += 7) {
        number |= quint32(*at & 0x7F) << shift;
        if (*at++ < 0x80)
            return number;
    }
}
} // namespace

LexicalQuery::PairSet::PairSet(const std::vector<quint64> &pairs)
    : m_slots(std::bit_ceil(pairs.size() * 4 + 1))
{
    for (const quint64 pair : pairs)
        slotFor(pair).pair = pair;
}

LexicalQuery::PairSet::Slot &LexicalQuery::PairSet::slotFor(quint64 pair)
{
    size_t at = pair * 0x9E3779B97F4A7C15u >> 20 & (m_slots.size() - 1);
    while (m_slots[at].pair != 0 && m_slots[at].pair != pair)
        at = (at + 1) & (m_slots.size() - 1);
    return m_slots[at];
}

bool LexicalQuery::PairSet::isNewIn(quint32 round, quint64 pair)
{
    Slot &slot = slotFor(pair);
    return slot.pair == pair && std::exchange(slot.round, round) != round;
}

LexicalQuery::LexicalQuery(const QString &query)
    : m_lower(query.trimmed().toLower().toUtf8())
    , m_wordShapes(shapeCount)
    , m_pairs(SemanticSearch::characterBigrams(query.trimmed().toLower()))
    , m_codePointPairs(codePointPairs(m_pairs))
{
    for (const QString &word : SemanticSearch::wordTokens(QString::fromUtf8(m_lower))) {
        const QByteArray bytes = word.toUtf8();
        m_words.insert(bytes, 0);
        m_wordShapes[shape(bytes.data(), size_t(bytes.size()))] = true;
    }
}

double LexicalQuery::score(const LexicalIndex::Lexis &text)
{
    ++m_round;
    const bool contains =
        text.lower.size() >= m_lower.size()
        && memmem(text.lower.data(), size_t(text.lower.size()), m_lower.data(), size_t(m_lower.size()));
    return (contains ? SemanticSearch::substringScore : 0) + SemanticSearch::wordScore * sharedWords(text)
           + sharedPairs(text);
}

int LexicalQuery::sharedWords(const LexicalIndex::Lexis &text)
{
    int shared = 0;
    const char *at = text.lower.data();
    const quint8 *const end = text.words.data() + text.words.size();
    for (const quint8 *number = text.words.data(); number < end;) {
        at += readNumber(number);
        const quint32 size = readNumber(number);
        if (m_wordShapes[shape(at, size)]) {
            const auto found = m_words.find(QByteArray::fromRawData(at, size));
            if (found != m_words.end() && std::exchange(*found, m_round) != m_round)
                ++shared;
        }
        at += size;
    }
    return shared;
}

int LexicalQuery::sharedPairs(const LexicalIndex::Lexis &text)
{
    int shared = 0;
    if (!text.isSingleCodePoints) {
        for (const QString &pair : SemanticSearch::characterBigrams(QString::fromUtf8(text.lower)))
            shared += m_pairs.contains(pair) ? 1 : 0;
        return shared;
    }
    char32_t previous = 0;
    const char *const end = text.lower.data() + text.lower.size();
    for (const char *at = text.lower.data(); at < end;) {
        const char32_t codePoint = nextCodePoint(at);
        if (!isLetterOrNumber(codePoint))
            continue;
        if (previous != 0 && m_codePointPairs.isNewIn(m_round, pairOf(previous, codePoint)))
            ++shared;
        previous = codePoint;
    }
    return shared;
}
