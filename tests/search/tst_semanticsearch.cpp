#include "search/MedianCosine.h"
#include "search/SemanticSearch.h"

#include <QTest>

#include <random>

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

/// The median as the timeline works it out: with a look at the clock as often as can be.
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
} // namespace

class SemanticSearchTest final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void words_and_pairs_of_a_text_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("words");
        QTest::addColumn<QString>("pairs");
        const auto row = [](const char *text, const char *words, const char *pairs) {
            QTest::newRow(text) << QString::fromUtf8(text) << QString::fromUtf8(words)
                                << QString::fromUtf8(pairs);
        };
        row("", "", "");
        row("a", "", "");
        row("a b", "", "ab"); // a pair spans what is dropped
        row("Go, go", "go", "Go go og");
        row("北京天安门", "北京 天安门", "京天 北京 天安 安门");
        row("e\u0301a", "e\u0301a", "e\u0301a"); // two characters of three code points
        row("\U0001F600\U0001F600 1", "", "");
        row("3.5 km", "3.5 km", "35 5k km");
    }
    void words_and_pairs_of_a_text()
    {
        QFETCH(QString, text);
        QTEST(joined(SemanticSearch::wordTokens(text)), "words");
        QTEST(joined(SemanticSearch::characterBigrams(text)), "pairs");
    }

    void the_baseline_is_the_median_of_those_pairs_that_have_a_cosine()
    {
        QCOMPARE(SemanticSearch::cosineSimilarity({3, 4}, {4, 3}), std::optional(0.96));
        QCOMPARE(SemanticSearch::cosineSimilarity({}, {}), std::nullopt);
        QCOMPARE(SemanticSearch::cosineSimilarity({1}, {1, 0}), std::nullopt);
        QCOMPARE(SemanticSearch::cosineSimilarity({0, 0}, {1, 0}), std::nullopt);
        QCOMPARE(SemanticSearch::baseline({}), 0.0);
        QCOMPARE(SemanticSearch::baseline({{1, 0}}), 0.0);
        QCOMPARE(SemanticSearch::baseline({{1, 0}, {0, 1}, {4, 3}}), 0.6);              // of 0, 0.8 and 0.6
        QCOMPARE(SemanticSearch::baseline({{1, 0}, {0, 1}, {1, 0}, {1}, {0, 0}}), 0.0); // of 0, 1 and 0
    }

    void matches_are_ranked_data()
    {
        QTest::addColumn<QString>("query");
        QTest::addColumn<QStringList>("texts");
        QTest::addColumn<QString>("matches"); // place, lexical score and kind
        const auto row = [](const char *name, const char *query, const char *texts, const char *matches) {
            QTest::newRow(name) << QString::fromUtf8(query) << QString::fromUtf8(texts).split(u'|')
                                << QString::fromUtf8(matches);
        };
        row("an empty query has none", "  ", "a", "");
        row("case does not count", "MILK", "buy milk|MILK", "0:106:substring 1:106:substring");
        row("ß holds ss for the kind alone", "STRASSE", "straße", "0:3:substring");
        row("equal scores keep their order", "milk tea", "green tea|oat milk|tea",
            "1:6:lexical 0:5:lexical 2:5:lexical");
        row("one letter shares no word and no pair", "茶", "喝茶|茶水|水", "0:100:substring 1:100:substring");
        row("pairs count across blanks", "买 菜", "买菜|菜买", "0:1:lexical");
    }
    void matches_are_ranked()
    {
        QFETCH(QString, query);
        QFETCH(QStringList, texts);
        QList<SemanticCandidate> candidates;
        for (int i = 0; i < texts.size(); ++i)
            candidates.append({id(i), texts[i]});
        QStringList told;
        for (const ScoredMatch &match : SemanticSearch::rankMatches(query, candidates, {}, {}, 20, 2)) {
            QVERIFY(!match.relativeScore);
            told.append(QStringLiteral("%1:%2:%3")
                            .arg(match.id.data1 - 1)
                            .arg(match.lexicalScore)
                            .arg(QLatin1StringView(
                                match.kind == SemanticHitKind::Substring ? "substring" : "lexical")));
        }
        QTEST(told.join(u' '), "matches");
    }

    void two_are_admitted_by_their_vector_alone_in_their_order()
    {
        const auto ranked = [](const QList<Vector> &vectors, qsizetype cap) {
            QList<SemanticCandidate> candidates;
            QHash<QUuid, Vector> byID;
            for (int i = 0; i < vectors.size(); ++i) {
                candidates.append({id(i), QStringLiteral("一")});
                byID.insert(id(i), vectors[i]);
            }
            const Vector query(vectors.front().size(), 0.0);
            QStringList told;
            for (const ScoredMatch &match : SemanticSearch::rankMatches(
                     QStringLiteral("query"), candidates, Vector{1} + query.sliced(1), byID, 20, cap))
                told.append(QString::number(match.id.data1 - 1));
            return told.join(u' ');
        };
        QCOMPARE(ranked({{4, 3}}, 2), u"0"); // one vector has no pair: its cosine is the score
        QCOMPARE(ranked({{4, 3}}, 0), u"");
        QCOMPARE(ranked({{3, 99, 13, 4, 2, 1}}, 2), u"");  // 0.03 is not enough
        QCOMPARE(ranked({{4, 99, 13, 3, 2, 1}}, 2), u"0"); // 0.04 is
        // The median of these is 0; the cap is filled by the first two, which are then put in order.
        QCOMPARE(ranked({{3, 4, 0, 0}, {4, 0, 3, 0}, {1, 0, 0, 0}, {0, 0, 0, 1}, {0, 0, 0, 1}, {0, 1, 0, 0},
                            {0, 0, 1, 0}},
                     2),
            u"1 0");
    }

    void the_median_in_slices_is_the_median_data()
    {
        QTest::addColumn<QList<Vector>>("vectors");
        std::mt19937 random(7);
        const auto number = [&random](int below) { return int(random() % unsigned(below)); };
        const auto make = [&](const char *name, int count, auto vector) {
            QList<Vector> vectors;
            for (int i = 0; i < count; ++i)
                vectors.append(vector());
            QTest::newRow(name) << vectors;
        };
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
        QTest::newRow("none") << QList<Vector>();
        QTest::newRow("one") << QList<Vector>{{1, 2}};
        QTest::newRow("two alike") << QList<Vector>{{1, 2}, {1, 2}};
        make("most share only the common axis", 120, [&] { return sparse(40); });
        make("half share another", 120, [&] { return sparse(2); });
        make("one subject", 150, [&] { return sparse(1); });
        make("dense", 150, [&] { return dense(7); });
        make("few values", 90, [&] {
            return Vector{double(number(3)), double(number(3)) - 1, double(number(2))};
        });
        make("lengths that differ", 90, [&] { return dense(1 + number(3)); });
        make("more pairs than are kept apart", 1500, [&] { return dense(3); });
    }
    void the_median_in_slices_is_the_median()
    {
        QFETCH(QList<Vector>, vectors);
        QCOMPARE(
            medianInSlices(vectors), SemanticSearch::baseline(vectors)); // QCOMPARE is fuzzy for doubles ...
        QVERIFY(medianInSlices(vectors)
                == SemanticSearch::baseline(vectors)); // ... and they agree to the last bit
    }
};

QTEST_GUILESS_MAIN(SemanticSearchTest)
#include "tst_semanticsearch.moc"
