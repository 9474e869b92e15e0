#include "search/ConceptFinder.h"
#include "search/PlainRanking.h"
#include "search/SearchEvaluation.h"
#include "support/Table.h"

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

    void a_line_that_is_no_concept_is_told_with_its_place()
    {
        const Table<2> table = {
            {"# a theme\n\ntea?: zh 茶, 绿茶; en tea", ""},
            {"tea", "theme:1"},
            {"\nTea: en tea", "theme:2"},
            {"tea: en tea\ntea: en tea", "theme:2"},
            {"tea: xx tea", "theme:1"},
            {"tea: en tea,, cup", "theme:1"},
            {"tea: en ", "theme:1"},
            {"tea:", "theme:1"},
        };
        table.check([](const QString &text) {
            const auto parsed = ConceptLexicon::parse({{u"theme"_s, text.toUtf8()}});
            return parsed ? QString() : parsed.message().section(u':', 0, 1);
        });
    }

    void concepts_are_found_in_texts()
    {
        const Table<2> table = {
            {"明天下午去看牙医，顺便买菜", "dentist groceries"},
            {"牙医牙医", "dentist dentist"},
            {"ＤＥＮＴＩＳＴ", "dentist"}, // wide letters
            {"dentistry", ""},             // a word is whole ...
            {"dentists", "dentist"},       // ... but for its ending
            {"Zahnarzt-Rechnung", "dentist invoice"},
            {"Weihnachtsgeschenk", "christmas gift"}, // parts of one word
            {"l'affitto", "rent"},
            {"petit dejeuner", "breakfast"}, // accents do not count
            {"本を読む", "reading reading"},
            {"本月", ""}, // the Japanese word for a book is half of a Chinese one here
            {"약을 먹다", "medicine meal"},
            {"예약", "appointment"}, // and not the medicine that it ends with
            {"パンダ", ""},          // no bread
            {"", ""},
            {"  #!? ", ""},
        };
        table.check([this](const QString &text) {
            QStringList names;
            for (const ConceptFinder::Found &found : ConceptFinder(m_lexicon).find(text))
                names.append(m_lexicon.concepts[size_t(found.meaning)].name);
            return names.join(u' ');
        });
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
