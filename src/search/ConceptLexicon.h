#pragma once

#include "foundation/Result.h"

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <vector>

/// Which words stand for the same idea: themes hold concepts, concepts hold terms in thirteen languages.
///
/// A theme is a text file, a concept a line of it:
///     breakfast: zh 早饭, 早餐; en breakfast, brunch; de Frühstück
/// A "?" behind the concept's name says that its terms tell little ("problem"). Empty lines and lines that
/// begin with "#" say nothing.
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
    /// The message says file and line of the first thing that is no concept.
    [[nodiscard]] static Result<ConceptLexicon> parse(const QList<Theme> &files);
    /// The one that comes with the program.
    [[nodiscard]] static ConceptLexicon shipped();
};
