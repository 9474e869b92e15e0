#include "search/ConceptFinder.h"

#include "foundation/CaseFolding.h"

#include <QMap>
#include <QSet>

#include <algorithm>
#include <array>

namespace {
bool isHan(QChar character)
{
    return (character >= u'\u4E00' && character <= u'\u9FFF')
           || (character >= u'\u3400' && character <= u'\u4DBF');
}

bool isHiragana(QChar character)
{
    return character >= u'\u3041' && character <= u'\u309F';
}

bool isKatakana(QChar character)
{
    return character >= u'\u30A1' && character <= u'\u30FF';
}

bool isHangul(QChar character)
{
    return character >= u'\uAC00' && character <= u'\uD7A3';
}

/// A letter or digit of a script with spaces between words.
bool isWordLetter(QChar character)
{
    return character < u'\u2E80' && character.isLetterOrNumber();
}

/// The base letter of a precomposed letter with an accent.
QChar withoutAccent(QChar letter)
{
    constexpr char16_t first = 0x00C0;
    constexpr char16_t last = 0x024F;
    static const auto table = [] {
        std::array<char16_t, last - first + 1> letters;
        for (char16_t unit = first; unit <= last; ++unit) {
            const QString parts = QChar(unit).decomposition();
            const bool isAccented = QChar(unit).decompositionTag() == QChar::Canonical && !parts.isEmpty();
            letters[unit - first] =
                isAccented ? QString(parts.front()).normalized(QString::NormalizationForm_D)[0].unicode()
                           : unit;
        }
        return letters;
    }();
    return letter >= first && letter <= last ? QChar(table[letter.unicode() - first]) : letter;
}

/// The word without a common ending, or unchanged if it has none.
QStringView stem(QStringView word)
{
    // Longest first. One list for nine languages: the forms of a word need only become equal.
    static constexpr QStringView endings[] = {u"ungen", u"arna", u"erna", u"orna", u"ando", u"endo", u"ing",
        u"ene", u"ern", u"ers", u"ies", u"ed", u"es", u"en", u"er", u"em", u"ar", u"or", u"as", u"os", u"is",
        u"s", u"e", u"n", u"a", u"o", u"i", u"y"};
    for (const QStringView ending : endings) {
        const qsizetype shortest = ending == u"s" ? 3 : 4;
        if (word.size() >= ending.size() + shortest && word.endsWith(ending))
            return word.chopped(ending.size());
    }
    return word;
}

bool isOneWord(QStringView term)
{
    return std::all_of(term.begin(), term.end(), isWordLetter);
}
} // namespace

ConceptFinder::ConceptFinder(const ConceptLexicon &lexicon)
    : m_whole{TermTree({}), {}}
    , m_stems{TermTree({}), {}}
{
    const auto note = [](Meanings &meanings, int meaning) {
        if (std::find(meanings.concepts.begin(), meanings.concepts.end(), meaning) == meanings.concepts.end())
            meanings.concepts.push_back(meaning);
    };
    QMap<QString, Meanings> whole;
    QMap<QString, Meanings> stems;
    for (const ConceptLexicon::Term &term : lexicon.terms) {
        const QString text = normalized(term.text);
        Meanings &meanings = whole[text];
        note(meanings, term.meaning);
        meanings.isKnownToChinese |= term.language == QStringLiteral("zh");
        meanings.weight =
            std::max(meanings.weight, lexicon.concepts[size_t(term.meaning)].isVague ? 0.5 : 1.0);
        if (text.size() >= 4 && isOneWord(text)) {
            Meanings &stemmed = stems[stem(text).toString()];
            note(stemmed, term.meaning);
            stemmed.weight = std::max(stemmed.weight, meanings.weight);
        }
    }
    const auto all = [](QStringView text, bool (*is)(QChar)) {
        return std::all_of(text.begin(), text.end(), is);
    };
    for (auto [text, meanings] : whole.asKeyValueRange()) {
        if (text.size() == 1 && isHan(text.front())) {
            meanings.weight *= 0.6; // one character is often part of another word
            if (!meanings.isKnownToChinese)
                meanings.context = Context::NotWithinHan;
        } else if (text.size() == 1 && isHangul(text.front())) {
            meanings.context = Context::HangulWord;
        } else if (text.size() <= 3 && all(text, isKatakana)) {
            meanings.context = Context::NotWithinKatakana;
        } else if (text.size() <= 3 && all(text, isHiragana)) {
            meanings.context = Context::NotBehindHiragana;
        }
    }
    // A stem shared by many words does not identify a concept.
    stems.removeIf([](const auto &each) { return each.value().concepts.size() > 2; });
    m_whole = table(whole);
    m_stems = table(stems);
}

ConceptFinder::Table ConceptFinder::table(const QMap<QString, Meanings> &meanings)
{
    Table made{TermTree(meanings.keys()), {}};
    for (const Meanings &each : meanings) {
        made.terms.push_back({quint32(m_meanings.size()), quint16(each.concepts.size()), each.context,
            float(each.weight / double(each.concepts.size()))});
        m_meanings.insert(m_meanings.end(), each.concepts.begin(), each.concepts.end());
    }
    return made;
}

QString ConceptFinder::normalized(QStringView text)
{
    const QString folded = CaseFolding::folded(text).normalized(QString::NormalizationForm_C);
    QString result;
    result.reserve(folded.size());
    qsizetype wordStart = 0;
    const auto endWord = [&] {
        // In short words an accent is significant: "thé" is not "the".
        constexpr qsizetype shortWord = 3;
        if (result.size() - wordStart > shortWord) {
            for (qsizetype i = wordStart; i < result.size(); ++i)
                result[i] = withoutAccent(result[i]);
        }
    };
    for (QChar character : folded) {
        if (character >= u'\uFF01' && character <= u'\uFF5E')
            character = QChar(character.unicode() - 0xFEE0).toLower();
        if (isWordLetter(character)) {
            result.append(character);
            continue;
        }
        endWord();
        const bool isGap = character.isSpace() || QStringView(u"-'’‐_").contains(character);
        if (!isGap)
            result.append(character);
        else if (!result.endsWith(u' '))
            result.append(u' ');
        wordStart = result.size();
    }
    endWord();
    return result;
}

bool ConceptFinder::isStopWord(QStringView word)
{
    static const QSet<QString> words = [] {
        const QStringList list = QStringLiteral(
            "the and for with not but all any are was were has have had his her its our your they them this "
            "that these those from into "
            "over then than when what who how why can could will would should may might must about just some "
            "more most very too also only "
            "out off one two get got let make made take took want need still well back here there which "
            "while been being does did done "
            "der die das den dem des ein eine einen einem einer und oder aber nicht ist sind war hat haben "
            "mit von bei aus auf für zum zur "
            "ich du er sie wir ihr mein dein noch nur schon auch wie was wenn dann doch mal man bis nach vor "
            "über unter "
            "les des une est sont dans sur pour par avec pas plus que qui aux mes tes ses nos vos son sans "
            "mais donc ils elle nous vous "
            "los las una con por para del sus mis que más pero como muy son hay está este esta esto ese todo "
            "det der som til med har kan skal vil var ikke men når hvor hvad jeg mig dig han hun vi os dem "
            "sin sit "
            "att och för inte från till med som den hon han vad när där var mig dig sig min din "
            "het een van voor met niet dat die dit maar ook nog wel naar bij uit aan was zijn heeft mijn "
            "haar "
            "che con per non del della dei sono alla nel una gli suo mio come più ma anche questo quello "
            "não com uma para por dos das que mais mas como seu sua meu minha foi são está isso")
                                     .split(u' ');
        return QSet<QString>(list.begin(), list.end());
    }();
    return words.contains(word.toString());
}

ConceptFinder::Hit ConceptFinder::longestAt(QStringView text, qsizetype position) const
{
    const auto at = [&](qsizetype index) {
        return index >= 0 && index < text.size() ? text[index] : QChar(u' ');
    };
    const QChar before = at(position - 1);
    Hit longest;
    m_whole.tree.prefixesOf(text.sliced(position), [&](qsizetype length, int number) {
        const Term &term = m_whole.terms[size_t(number)];
        const QChar after = at(position + length);
        const auto fits = [&] {
            if (isWordLetter(at(position + length - 1)) && isWordLetter(after))
                return false;
            switch (term.context) {
            case Context::Anywhere:
                return true;
            case Context::NotWithinHan:
                return !isHan(before) && !isHan(after);
            case Context::NotWithinKatakana:
                return !isKatakana(before) && !isKatakana(after);
            case Context::NotBehindHiragana:
                return !isHiragana(before);
            case Context::HangulWord:
                return !isHangul(before)
                       && (!isHangul(after) || QStringView(u"이가을를은는에의도로과와만랑").contains(after));
            }
            return true;
        };
        if (fits())
            longest = {length, &term};
    });
    return longest;
}

const ConceptFinder::Term *ConceptFinder::word(QStringView word) const
{
    if (const int number = m_whole.tree.find(word); number >= 0)
        return &m_whole.terms[size_t(number)];
    const int number = m_stems.tree.find(stem(word));
    return number >= 0 ? &m_stems.terms[size_t(number)] : nullptr;
}

void ConceptFinder::addParts(QStringView compound, std::vector<Found> &found) const
{
    constexpr qsizetype shortest = 4;
    for (qsizetype split = compound.size() - shortest; split >= shortest; --split) {
        const Term *first = word(compound.first(split));
        if (!first)
            continue;
        for (const QStringView joint : {u"", u"s", u"n", u"e", u"es", u"en"}) {
            const QStringView rest = compound.sliced(split);
            if (!rest.startsWith(joint) || rest.size() - joint.size() < shortest)
                continue;
            if (const Term *last = word(rest.sliced(joint.size()))) {
                add(*first, found);
                add(*last, found);
                return;
            }
        }
    }
    // The last part of a compound determines its meaning.
    constexpr qsizetype telling = 5;
    for (qsizetype split = 2; compound.size() - split >= telling; ++split) {
        if (const int number = m_whole.tree.find(compound.sliced(split)); number >= 0) {
            add(m_whole.terms[size_t(number)], found);
            return;
        }
    }
}

void ConceptFinder::add(const Term &term, std::vector<Found> &found) const
{
    for (quint32 i = 0; i < term.meaningCount; ++i)
        found.push_back({m_meanings[term.firstMeaning + i], double(term.weight)});
}

std::vector<ConceptFinder::Found> ConceptFinder::find(QStringView original) const
{
    const QString text = normalized(original);
    std::vector<Found> found;
    for (qsizetype position = 0; position < text.size();) {
        const bool isWord = isWordLetter(text[position]);
        if (!isWord && !text[position].isLetter()) {
            ++position;
            continue;
        }
        if (const Hit hit = longestAt(text, position); hit.term) {
            add(*hit.term, found);
            position += hit.length;
            continue;
        }
        if (!isWord) {
            ++position;
            continue;
        }
        const qsizetype start = position;
        while (position < text.size() && isWordLetter(text[position]))
            ++position;
        const QStringView unknown = QStringView(text).sliced(start, position - start);
        constexpr qsizetype maxWordLength = 40; // longer ones are not words and have many parts
        if (unknown.size() > maxWordLength)
            continue;
        if (isStopWord(unknown))
            continue;
        if (const Term *term = word(unknown))
            add(*term, found);
        else
            addParts(unknown, found);
    }
    return found;
}
