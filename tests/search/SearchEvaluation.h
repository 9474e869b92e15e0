#pragma once

#include "model/NoteSearch.h"
#include "search/ConceptEmbeddingProvider.h"
#include "support/TestFiles.h"

#include <QStringList>

/// How well a note is found by a query that means the same and shares no word and no pair of characters with
/// it: each among 199 ordinary notes. The queries and notes are those under data/search/.
namespace SearchEvaluation {
struct Pair {
    QString query;
    QString note;
};

struct Score {
    int pairs = 0;
    int first = 0;      ///< no other note is as near to the query
    int amongFive = 0;  ///< at most four are
    int shown = 0;      ///< by the rules of the search
    QStringList missed; ///< queries whose note is not among the five
};

/// The first batch was written before the concepts, and a third of it not looked at while they were worked
/// on; the others after them. Each has been a reason to write more concepts, but for the fourth.
enum class Batch { Open, KeptBack, Second, Third, Fourth };
inline constexpr Batch batches[] = {Batch::Open, Batch::KeptBack, Batch::Second, Batch::Third, Batch::Fourth};

inline QStringList lines(const QString &file)
{
    return QString::fromUtf8(readFile(QStringLiteral(SEARCH_DATA "/") + file))
        .split(u'\n', Qt::SkipEmptyParts);
}

inline QStringList scopes()
{
    return QStringLiteral("chinese english chinese-english languages").split(u' ');
}

inline QList<Pair> pairs(const QString &scope, Batch batch)
{
    const char *const files[] = {"first", "first", "second", "third", "fourth"};
    const QStringList all =
        lines(QStringLiteral("%1-%2.txt").arg(QLatin1StringView(files[int(batch)]), scope));
    QList<Pair> chosen;
    for (qsizetype i = 0; i < all.size(); ++i) {
        const bool isKeptBack = i % 3 == 2;
        if ((batch == Batch::Open && isKeptBack) || (batch == Batch::KeptBack && !isKeptBack))
            continue;
        chosen.append(
            {all[i].section(QStringLiteral(" | "), 0, 0), all[i].section(QStringLiteral(" | "), 1)});
    }
    return chosen;
}

/// From all over the file, which begins in Chinese and ends in other languages.
inline QStringList haystack(qsizetype count)
{
    const QStringList all = lines(QStringLiteral("haystack.txt"));
    QStringList chosen;
    for (qsizetype i = 0; i < count; ++i)
        chosen.append(all[i * all.size() / count]);
    return chosen;
}

inline SentenceEmbeddingProviding &provider()
{
    static ConceptEmbeddingProvider provider;
    return provider;
}

/// What the timeline would show where no note contains the query.
inline QList<SemanticHit> shown(SearchIndex &index, const QString &query)
{
    if (!index.texts.containing(query).isEmpty())
        return {};
    SemanticMatches matches(index, query, 20);
    matches.advance();
    return matches.hits();
}

inline QList<SemanticCandidate> candidates(const QStringList &texts)
{
    QList<SemanticCandidate> candidates;
    for (const QString &text : texts)
        candidates.append({QUuid::createUuid(), text});
    return candidates;
}

inline Score evaluate(const QString &scope, Batch batch)
{
    const QList<SemanticCandidate> others = candidates(haystack(199));
    SearchIndex index;
    index.setProvider(&provider());
    Score score;
    for (const Pair &pair : pairs(scope, batch)) {
        ++score.pairs;
        QList<SemanticCandidate> notes = others;
        const qsizetype position = score.pairs * 71 % 200; // anywhere
        const SemanticCandidate target{QUuid::createUuid(), pair.note};
        notes.insert(position, target);
        index.setCandidates(notes);
        for (const SemanticHit &hit : shown(index, pair.query))
            score.shown += hit.note == position;

        const auto query = provider().sentenceVector(pair.query);
        int asNear = 0;
        const auto cosine = [&](QUuid id) -> double {
            const auto vector = index.vectors.find(id);
            return query && vector ? VectorQuery(*query).cosine(*vector).value_or(0) : 0;
        };
        const double near = cosine(target.id);
        for (const SemanticCandidate &other : others)
            asNear += cosine(other.id) >= near;
        score.first += asNear < 1;
        score.amongFive += asNear < 5;
        if (asNear >= 5)
            score.missed.append(pair.query + QStringLiteral(" | ") + pair.note);
        index.dropText(target.id);
        index.dropVector(target.id);
    }
    return score;
}

/// The queries about nothing in the haystack for which a note is shown for its meaning.
inline QStringList falseAlarms()
{
    const QList<SemanticCandidate> notes = candidates(haystack(200));
    SearchIndex index;
    index.setProvider(&provider());
    index.setCandidates(notes);
    QStringList alarms;
    for (const QString &query : lines(QStringLiteral("unrelated.txt"))) {
        const auto isMeant = [](const SemanticHit &hit) { return hit.kind == SemanticHitKind::SemanticOnly; };
        if (std::ranges::any_of(shown(index, query), isMeant))
            alarms.append(query);
    }
    return alarms;
}
} // namespace SearchEvaluation
