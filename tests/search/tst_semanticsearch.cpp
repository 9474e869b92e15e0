#include "search/PlainRanking.h"
#include "search/RankedSearch.h"
#include "support/Table.h"

#include <QTest>

#include <random>

using namespace Qt::StringLiterals;
using SemanticSearch::Vector;

namespace {
QString joined(const QSet<QString> &texts)
{
    QStringList list(texts.begin(), texts.end());
    list.sort();
    return list.join(u' ');
}

QUuid id(int number)
{
    return QUuid(uint(number) + 1, 0, 0, 0, 0, 0, 0, 0, 0, 0, 1);
}

/// "0 2 1"
QString order(const QList<ScoredMatch> &matches)
{
    QStringList indexes;
    for (const ScoredMatch &match : matches)
        indexes.append(QString::number(match.index));
    return indexes.join(u' ');
}

/// Computed in as many slices as possible.
double medianInSlices(const QList<Vector> &vectors)
{
    VectorCache cache;
    for (int i = 0; i < vectors.size(); ++i)
        cache.insert(id(i), vectors[i]);
    std::vector<SparseVector> sparse;
    for (int i = 0; i < vectors.size(); ++i)
        sparse.push_back(*cache.find(id(i)));
    MedianCosine median(sparse);
    while (!median.advance(QDeadlineTimer(0))) {
    }
    return median.value();
}

/// A query and some texts, each with a vector or without.
struct Sample {
    QString query;
    std::optional<Vector> queryVector = {};
    QList<SemanticCandidate> candidates = {};
    QHash<QUuid, Vector> vectors = {};

    void add(const QString &text, const std::optional<Vector> &vector = {})
    {
        candidates.append({id(int(candidates.size())), text});
        if (vector)
            vectors.insert(candidates.last().id, *vector);
    }
    QList<ScoredMatch> ranked(qsizetype limit, qsizetype cap, std::optional<QUuid> except = {}) const
    {
        SearchIndex index;
        for (const auto &[id, vector] : vectors.asKeyValueRange())
            index.vectors.insert(id, vector);
        index.setCandidates(candidates);
        RankedSearch search(index, {query, queryVector, limit, cap, except});
        while (!search.advance(QDeadlineTimer(0))) {
        }
        return QList(search.matches().begin(), search.matches().end());
    }
    QList<ScoredMatch> plain(qsizetype limit, qsizetype cap) const
    {
        return PlainRanking::rankMatches(query, candidates, queryVector, vectors, limit, cap);
    }
};
} // namespace

class SemanticSearchTest final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void words_and_pairs_of_a_text()
    {
        const Table<3> table = {
            {"", "", ""},
            {"a", "", ""},
            {"a b", "", "ab"}, // a pair spans what is dropped
            {"Go, go", "go", "Go go og"},
            {"北京天安门", "北京 天安门", "京天 北京 天安 安门"},
            {"e\u0301a", "e\u0301a", "e\u0301a"}, // two characters of three code points
            {"\U0001F600\U0001F600 1", "", ""},
            {"3.5 km", "3.5 km", "35 5k km"},
        };
        table.check([](const QString &text, const QString &words) {
            const QString found = joined(SemanticSearch::wordTokens(text));
            return found == words ? joined(SemanticSearch::characterBigrams(text)) : u"words "_s + found;
        });
    }

    void matches_are_ranked()
    {
        const Table<4> table = {
            {"an empty query has none", "  ", "a", ""},
            {"case does not count", "MILK", "buy milk|MILK", "0:106:substring 1:106:substring"},
            {"ß holds ss for the kind alone", "STRASSE", "straße", "0:3:substring"},
            {"equal scores keep their order", "milk tea", "green tea|oat milk|tea",
                "1:6:lexical 0:5:lexical 2:5:lexical"},
            {"one letter shares no word and no pair", "茶", "喝茶|茶水|水",
                "0:100:substring 1:100:substring"},
            {"pairs count across blanks", "买 菜", "买菜|菜买", "0:1:lexical"},
            {"a word or a pair counts once", "tea tea", "tea tea tea", "0:106:substring"},
        };
        table.check([](const QString &, const QString &query, const QString &texts) {
            Sample sample{query};
            for (const QString &text : texts.split(u'|'))
                sample.add(text);
            const QList<ScoredMatch> matches = sample.ranked(20, 2);
            QStringList found;
            for (const ScoredMatch &match : matches) {
                const bool contains = match.kind == SemanticHitKind::Substring;
                found.append(u"%1:%2:%3"_s.arg(match.index)
                                 .arg(match.lexicalScore)
                                 .arg(contains ? u"substring"_s : u"lexical"_s));
            }
            return matches == sample.plain(20, 2) ? found.join(u' ') : u"unlike"_s;
        });
    }

    void scores_that_are_all_but_equal_are_ordered_as_with_the_baseline()
    {
        // Multiples of one vector: cosines that differ in the last bit, and often not without the baseline.
        std::mt19937 random(3);
        for (int round = 0; round < 400; ++round) {
            const auto digit = [&random] { return double(random() % 9 + 1); };
            Sample sample{u"茶"_s, Vector{digit(), digit()}};
            const Vector direction{digit(), digit()};
            for (int i = 0; i < 6; ++i) {
                const double factor = digit() / 10;
                sample.add(u"茶"_s, Vector{direction[0] * factor, direction[1] * factor});
            }
            sample.add(u"茶"_s, Vector{digit(), -digit()});
            QCOMPARE(order(sample.ranked(3, 0, QUuid())), order(sample.plain(3, 0)));
        }
    }

    void dropped_texts_make_room_without_changing_what_is_found()
    {
        const QStringList texts =
            u"Straße zum Garten|İstanbul tea|买 菜|green tea|e\u0301te\u0301 tea"_s.split(u'|');
        LexicalIndex index(0);
        QList<SemanticCandidate> candidates;
        for (int i = 0; i < 20; ++i)
            candidates.append({id(i), texts[i % 5]});
        const auto read = [&candidates](LexicalIndex &each) {
            each.setOrder(candidates);
            for (qsizetype i = 0; i < candidates.size(); ++i) {
                if (!each.hasWords(i))
                    each.readWords(i, candidates[i].text);
            }
        };
        read(index);
        for (int i = 19; i >= 0; --i) {
            if (i % 4 != 1)
                index.drop(candidates.takeAt(i).id);
        }
        candidates.prepend({id(20), u"new tea"_s});
        read(index);
        LexicalIndex fresh;
        read(fresh);
        for (const QString &query : u"tea|strasse|istanbul|été|买|garten zum"_s.split(u'|')) {
            QCOMPARE(index.containing(query), fresh.containing(query));
            LexicalQuery words(query);
            for (qsizetype i = 0; i < candidates.size(); ++i)
                QCOMPARE(words.score(index.lexis(i)), words.score(fresh.lexis(i)));
        }
        // What was kept lies side by side now.
        QCOMPARE(index.lexis(5).lower.data() - index.lexis(4).lower.data(), index.lexis(4).lower.size() + 1);
    }

    void dropped_vectors_make_room_without_changing_the_others()
    {
        VectorCache cache(0);
        for (int i = 0; i < 20; ++i)
            cache.insert(id(i), {double(i), 0, 1});
        for (int i = 0; i < 20; ++i) {
            if (i % 4 != 1)
                cache.remove(id(i));
        }
        cache.insert(id(20), {0, 20});
        QSet<const double *> values;
        for (const int kept : {1, 5, 9, 13, 17}) {
            QCOMPARE(cache.vector(id(kept)), (Vector{double(kept), 0, 1}));
            values.insert(cache.find(id(kept))->values.data());
        }
        QCOMPARE(cache.vector(id(20)), (Vector{0, 20}));
        // What was kept lies side by side now.
        const auto [first, last] = std::minmax_element(values.begin(), values.end());
        QCOMPARE(*last - *first, 8);
    }

    void the_median_in_slices_is_the_median()
    {
        std::mt19937 random(7);
        const auto number = [&random](int below) { return int(random() % unsigned(below)); };
        const auto dense = [&](int dimension) {
            Vector vector;
            for (int i = 0; i < dimension; ++i)
                vector.append(double(number(2001)) / 1000 - 1);
            return vector;
        };
        /// Two axes of many beside one that all have.
        const auto sparse = [&](int axes) {
            Vector vector(axes + 1, 0.0);
            vector[0] = 3;
            vector[1 + number(axes)] = 4;
            return vector;
        };
        const auto check = [](const QList<Vector> &vectors) {
            QVERIFY(medianInSlices(vectors) == PlainRanking::baseline(vectors)); // to the last bit
        };
        const auto checkMany = [&](int count, const auto &vector) {
            QList<Vector> vectors;
            for (int i = 0; i < count; ++i)
                vectors.append(vector());
            check(vectors);
        };
        check({});
        check({{1, 2}});
        check({{1, 2}, {1, 2}});
        check({{1, 0}, {0, 1}, {1, 0}, {1}, {0, 0}}); // some pairs have no cosine
        checkMany(120, [&] { return sparse(40); });   // most share only the common axis
        checkMany(120, [&] { return sparse(2); });    // half share another
        checkMany(150, [&] { return sparse(1); });    // one subject
        checkMany(150, [&] { return dense(7); });
        checkMany(90, [&] { return Vector{double(number(3)), double(number(3)) - 1, double(number(2))}; });
        checkMany(90, [&] { return dense(1 + number(3)); });
        checkMany(1500, [&] { return dense(3); }); // more pairs than are kept apart
    }
};

QTEST_GUILESS_MAIN(SemanticSearchTest)
#include "tst_semanticsearch.moc"
