#pragma once

#include "search/ConceptLexicon.h"
#include "search/TermTree.h"

#include <vector>

/// Finds the concepts that occur in a text in any of the languages of the lexicon.
///
/// Case, accents, hyphens and the width of letters are ignored. In scripts with spaces between words a term
/// consists of whole words, and a word that is not a term is looked up without its ending and then in its
/// parts ("Zahnarzttermin"); in other scripts the longest term wins, from left to right.
class ConceptFinder
{
public:
    explicit ConceptFinder(const ConceptLexicon &lexicon);

    struct Found {
        int meaning = 0;   ///< index of the concept
        double weight = 0; ///< 1 for a term that identifies the concept alone
    };
    /// In text order. A concept is listed once for each of its terms in the text.
    [[nodiscard]] std::vector<Found> find(QStringView text) const;

    /// The form in which terms and texts are compared.
    [[nodiscard]] static QString normalized(QStringView text);
    /// Whether a word is so common in one of the languages that it is not used as a term in any other.
    [[nodiscard]] static bool isStopWord(QStringView word);

private:
    /// The context in which a term counts.
    enum class Context {
        Anywhere,
        NotWithinHan,      ///< one character that Chinese uses in another meaning
        NotWithinKatakana, ///< short, and often part of another word
        NotBehindHiragana,
        HangulWord, ///< one syllable, with or without a particle
    };
    struct Meanings {
        std::vector<int> concepts;
        bool isKnownToChinese = false;
        double weight = 0; ///< of each
        Context context = Context::Anywhere;
    };
    struct Term {
        quint32 firstMeaning = 0;
        quint16 meaningCount = 0;
        Context context = Context::Anywhere;
        float weight = 0;
    };
    struct Table {
        TermTree tree;
        std::vector<Term> terms;
    };
    struct Hit {
        qsizetype length = 0;
        const Term *term = nullptr;
    };

    [[nodiscard]] Hit longestAt(QStringView text, qsizetype position) const;
    [[nodiscard]] const Term *word(QStringView word) const;
    void addParts(QStringView word, std::vector<Found> &found) const;
    void add(const Term &term, std::vector<Found> &found) const;
    [[nodiscard]] Table table(const QMap<QString, Meanings> &meanings);

    std::vector<quint16> m_meanings;
    Table m_whole; ///< terms as they are written
    Table m_stems; ///< words without their endings
};
