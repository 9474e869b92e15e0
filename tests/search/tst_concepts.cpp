#include "search/ConceptFinder.h"
#include "search/PlainRanking.h"
#include "search/SearchEvaluation.h"

#include <QTest>

#include <cmath>

using namespace Qt::StringLiterals;

class ConceptsTest final : public QObject
{
    Q_OBJECT

    const ConceptLexicon m_lexicon = ConceptLexicon::shipped();

private Q_SLOTS:
    void the_lexicon_is_whole()
    {
        QVERIFY(m_lexicon.concepts.size() >= 450);
        QVERIFY(m_lexicon.terms.size() >= 14'000);
        QVERIFY(1 + size_t(m_lexicon.themes.size()) + m_lexicon.concepts.size() <= 512);

        const QStringList particles =
            u"的 了 是 在 我 你 他 她 和 有 不 这 那 也 就 都 を は が に の で と 은 는 이 가"_s.split(u' ');
        QStringList faults;
        QHash<QPair<QString, QString>, int> conceptOf;
        std::vector<QSet<QString>> languagesOf(m_lexicon.concepts.size());
        for (const ConceptLexicon::Term &term : m_lexicon.terms) {
            const auto &name = m_lexicon.concepts[size_t(term.meaning)].name;
            const QString text = term.text.toLower();
            const auto fault = [&](const char *what) {
                faults.append(u"%1: %2 %3 %4"_s.arg(name, term.language, term.text, QString::fromUtf8(what)));
            };
            if (conceptOf.contains({term.language, text}))
                fault("is there twice");
            conceptOf.insert({term.language, text}, term.meaning);
            if (text.size() == 1 && text.front() < u'\u2E80')
                fault("is a single letter");
            if (particles.contains(text) || ConceptFinder::isStopWord(text))
                fault("is in every text");
            if (ConceptFinder::normalized(term.text).trimmed() != ConceptFinder::normalized(term.text))
                fault("begins or ends with a mark");
            languagesOf[size_t(term.meaning)].insert(term.language);
        }
        for (size_t i = 0; i < languagesOf.size(); ++i) {
            if (languagesOf[i].size() != ConceptLexicon::languages().size())
                faults.append(m_lexicon.concepts[i].name + u" lacks a language"_s);
        }
        QVERIFY2(faults.isEmpty(), qUtf8Printable(faults.join(u'\n')));
    }

    void a_line_that_is_no_concept_is_told_with_its_place_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<QString>("message"); // how it begins; empty for none
        const auto row = [](const char *text, const char *message) {
            QTest::newRow(text) << QByteArray(text) << QString::fromUtf8(message);
        };
        row("# a theme\n\ntea?: zh 茶, 绿茶; en tea", "");
        row("tea", "theme:1:");
        row("\nTea: en tea", "theme:2:");
        row("tea: en tea\ntea: en tea", "theme:2:");
        row("tea: xx tea", "theme:1:");
        row("tea: en tea,, cup", "theme:1:");
        row("tea: en ", "theme:1:");
        row("tea:", "theme:1:");
    }
    void a_line_that_is_no_concept_is_told_with_its_place()
    {
        QFETCH(QByteArray, text);
        QFETCH(QString, message);
        const auto parsed = ConceptLexicon::parse({{u"theme"_s, text}});
        QCOMPARE(parsed.hasValue(), message.isEmpty());
        if (!parsed)
            QVERIFY2(parsed.message().startsWith(message), qUtf8Printable(parsed.message()));
    }

    void concepts_are_found_in_texts_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("concepts"); // in the order of the text
        const auto row = [](const char *text, const char *concepts) {
            QTest::newRow(text) << QString::fromUtf8(text) << QString::fromUtf8(concepts);
        };
        row("明天下午去看牙医，顺便买菜", "dentist groceries");
        row("牙医牙医", "dentist dentist");
        row("ＤＥＮＴＩＳＴ", "dentist"); // wide letters
        row("dentistry", "");             // a word is whole ...
        row("dentists", "dentist");       // ... but for its ending
        row("Zahnarzt-Rechnung", "dentist invoice");
        row("Weihnachtsgeschenk", "christmas gift"); // parts of one word
        row("l'affitto", "rent");
        row("petit dejeuner", "breakfast"); // accents do not count
        row("本を読む", "reading reading");
        row("本月", ""); // the Japanese word for a book is half of a Chinese one here
        row("약을 먹다", "medicine meal");
        row("예약", "appointment"); // and not the medicine that it ends with
        row("パンダ", "");          // no bread
        row("", "");
        row("  #!? ", "");
    }
    void concepts_are_found_in_texts()
    {
        QFETCH(QString, text);
        QStringList names;
        for (const ConceptFinder::Found &found : ConceptFinder(m_lexicon).find(text))
            names.append(m_lexicon.concepts[size_t(found.meaning)].name);
        QTEST(names.join(u' '), "concepts");
    }

    void vectors_are_of_length_one_to_the_last_bit()
    {
        for (const QString &text : SearchEvaluation::haystack(300)) {
            const auto vector = SearchEvaluation::provider().sentenceVector(text);
            if (!vector)
                continue;
            QVERIFY2(SemanticSearch::norm(*vector) == 1.0, qUtf8Printable(text));
            QCOMPARE(vector->front(), std::sqrt(ConceptEmbeddingProvider::commonShare));
        }
        QVERIFY(!SearchEvaluation::provider().sentenceVector(u"qwzx 罅隙"_s));
    }

    void the_evaluation_asks_for_meaning_alone()
    {
        qsizetype pairs = 0;
        for (const QString &scope : SearchEvaluation::scopes()) {
            for (const auto batch : SearchEvaluation::batches) {
                for (const auto &[query, note] : SearchEvaluation::pairs(scope, batch)) {
                    ++pairs;
                    const auto ranked =
                        PlainRanking::rankMatches(query, {{QUuid::createUuid(), note}}, {}, {}, 1, 0);
                    QVERIFY2(ranked.isEmpty() && !note.isEmpty(), qUtf8Printable(query + u'|' + note));
                }
            }
        }
        QVERIFY(pairs >= 400);
        QVERIFY(SearchEvaluation::lines(u"haystack.txt"_s).size() >= 300);
        QVERIFY(SearchEvaluation::lines(u"unrelated.txt"_s).size() >= 80);
    }

    void what_means_the_same_is_found()
    {
        int pairs = 0;
        int amongFive = 0;
        for (const QString &scope : SearchEvaluation::scopes()) {
            SearchEvaluation::Score all;
            for (const auto batch : SearchEvaluation::batches) {
                const auto score = SearchEvaluation::evaluate(scope, batch);
                all.pairs += score.pairs;
                all.amongFive += score.amongFive;
                all.shown += score.shown;
            }
            pairs += all.pairs;
            amongFive += all.amongFive;
            if (scope == u"chinese"_s) {
                QVERIFY2(all.amongFive * 100 >= all.pairs * 60, qPrintable(QString::number(all.amongFive)));
                QVERIFY2(all.shown * 100 >= all.pairs * 40, qPrintable(QString::number(all.shown)));
            }
        }
        QVERIFY2(amongFive * 100 >= pairs * 55, qPrintable(QString::number(amongFive)));
        QVERIFY2(SearchEvaluation::falseAlarms().size() * 10 <= 80,
            qUtf8Printable(SearchEvaluation::falseAlarms().join(u' ')));
    }
};

QTEST_GUILESS_MAIN(ConceptsTest)
#include "tst_concepts.moc"
