#include "search/SemanticSearch.h"

#include "foundation/Characters.h"
#include "foundation/WordTokenizer.h"

#include <algorithm>
#include <cmath>

namespace {
QStringView slice(const QString &text, TextRange range)
{
    return QStringView(text).sliced(range.start, range.length());
}

char32_t firstCodePoint(QStringView character)
{
    return character.front().isHighSurrogate() && character.size() > 1
               ? QChar::surrogateToUcs4(character[0], character[1])
               : character.front().unicode();
}
} // namespace

bool SemanticSearch::isToken(QStringView word)
{
    if (std::any_of(word.begin(), word.end(), [](QChar unit) { return unit.isSpace(); }))
        return false;
    if (!Characters::areSingleCodePoints(word))
        return Characters::all(word).size() >= 2;
    const auto isFirstUnit = [](QChar unit) { return !unit.isLowSurrogate(); };
    return std::count_if(word.begin(), word.end(), isFirstUnit) >= 2;
}

QSet<QString> SemanticSearch::wordTokens(const QString &text)
{
    QSet<QString> tokens;
    for (const TextRange range : WordTokenizer::words(text)) {
        const QString word = slice(text, range).toString().toLower();
        if (isToken(word))
            tokens.insert(word);
    }
    return tokens;
}

QSet<QString> SemanticSearch::characterBigrams(const QString &text)
{
    QSet<QString> pairs;
    QStringView previous;
    for (const TextRange range : Characters::all(text)) {
        const QStringView character = slice(text, range);
        if (!QChar::isLetterOrNumber(firstCodePoint(character)))
            continue;
        if (!previous.isEmpty())
            pairs.insert(previous.toString().append(character));
        previous = character;
    }
    return pairs;
}

double SemanticSearch::norm(const Vector &vector)
{
    double sum = 0;
    for (const double value : vector)
        sum += value * value;
    return std::sqrt(sum);
}
