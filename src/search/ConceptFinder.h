#pragma once

#include "search/ConceptLexicon.h"
#include "search/TermTree.h"

#include <vector>

/// Finds the concepts that a text speaks of, in whatever language it is written.
///
/// Case, accents, hyphens and the width of letters do not count. In scripts with blanks between words a term
/// is whole words, and a word that is no term is tried without its ending and then in its parts
/// ("Zahnarzttermin"); in the others the longest term counts, from left to right.
class ConceptFinder
{
public:
    explicit ConceptFinder(const ConceptLexicon &lexicon);

    struct Found {
        int meaning = 0;   ///< index of the concept
        double weight = 0; ///< 1 for a term that tells all by itself
    };
    /// In the order of the text; a concept once for each term.
    [[nodiscard]] std::vector<Found> find(QStringView text) const;

    /// The form in which terms and texts are compared.
    [[nodiscard]] static QString normalized(QStringView text);
    /// Whether a word stands in every text of one of the languages, so that in another it is no term either.
    [[nodiscard]] static bool isStopWord(QStringView word);

private:
    /// Where a term may stand.
    enum class Place {
        Anywhere,
        NotWithinHan,      ///< one character that Chinese uses otherwise
        NotWithinKatakana, ///< short, and often a part of another word
        NotBehindHiragana,
        HangulWord, ///< one syllable, with or without a particle
    };
    struct Meanings {
        std::vector<int> concepts;
        bool isKnownToChinese = false;
        double weight = 0; ///< of each
        Place place = Place::Anywhere;
    };
    struct Term {
        quint32 firstMeaning = 0;
        quint16 meaningCount = 0;
        Place place = Place::Anywhere;
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
