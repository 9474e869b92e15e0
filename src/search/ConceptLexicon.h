#pragma once

#include "foundation/Result.h"

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <vector>

/// Words with the same meaning: themes contain concepts, concepts contain terms in thirteen languages.
///
/// A theme is a text file, a concept a line of it:
///     breakfast: zh 早饭, 早餐; en breakfast, brunch; de Frühstück
/// A "?" after the name marks a concept whose terms are unspecific ("problem"). Empty lines and lines that
/// begin with "#" are ignored.
struct ConceptLexicon {
    struct Theme {
        QString name;
        QByteArray text; ///< UTF-8
    };
    struct Concept {
        QString name;
        int theme = 0; ///< index into themes
        bool isVague = false;
    };
    struct Term {
        QString text;
        QString language; ///< "zh", "en" ...
        int meaning = 0;  ///< index into concepts
    };

    QStringList themes;
    std::vector<Concept> concepts;
    std::vector<Term> terms;

    /// The languages in which each concept has terms.
    [[nodiscard]] static const QStringList &languages();
    /// The error message names file and line of the first invalid line.
    [[nodiscard]] static Result<ConceptLexicon> parse(const QList<Theme> &files);
    /// The lexicon in the program's resources.
    [[nodiscard]] static ConceptLexicon shipped();
};
