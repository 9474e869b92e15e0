#include "foundation/CaseFolding.h"
#include "foundation/Regex.h"

#include <QTest>

using namespace Qt::StringLiterals;

class CaseFoldingTest final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void hits_are_the_original_characters_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("query");
        QTest::addColumn<QStringList>("hits");
        const auto row = [](const char *name, const QString &text, const QString &query,
                             const QStringList &hits) { QTest::newRow(name) << text << query << hits; };
        row("one character found by two", u"Die Straße!"_s, u"STRASSE"_s, {u"Straße"_s});
        row("two characters found by one", u"STRASSE"_s, u"ß"_s, {u"SS"_s});
        row("not half a character", u"ß s"_s, u"s"_s, {u"s"_s});
        row("not overlapping", u"aAaA"_s, u"aa"_s, {u"aA"_s, u"aA"_s});
        row("diacritics count", u"Cafe café CAFÉ"_s, u"café"_s, {u"café"_s, u"CAFÉ"_s});
        row("behind an emoji", u"👩‍👩‍👧 Ǆ"_s, u"ǆ"_s, {u"Ǆ"_s});
        row("beyond the first plane", u"x𐐀y"_s, u"𐐨"_s, {u"𐐀"_s});
        row("final sigma", u"ΟΔΟΣ οδος"_s, u"οδοσ"_s, {u"ΟΔΟΣ"_s, u"οδος"_s});
        row("Chinese as it is", u"交房租，房租"_s, u"房租"_s, {u"房租"_s, u"房租"_s});
        row("an empty query", u"abc"_s, u""_s, {});
    }
    void hits_are_the_original_characters()
    {
        QFETCH(QString, text);
        QFETCH(QString, query);
        QFETCH(QStringList, hits);
        QStringList found;
        for (const TextRange &range : CaseFolding::occurrences(text, query))
            found.append(text.sliced(range.start, range.length()));
        QCOMPARE(found, hits);
    }

    void a_regex_counts_utf16_units_and_knows_unicode()
    {
        const Regex digits(QStringLiteral(R"(\d+)"));
        const auto match = digits.firstMatch(u"😀 １２");
        QVERIFY(match);
        QCOMPARE(match->range(), (TextRange{3, 5}));
    }

    void a_regex_that_exceeds_its_time_limit_matches_nothing()
    {
        const Regex exponential(QStringLiteral("(x+x+)+y"));
        QVERIFY(!exponential.matchesIn(QString(40, u'x')));
        QVERIFY(exponential.matchesIn(u"xxy")); // and stays usable
    }
};

QTEST_APPLESS_MAIN(CaseFoldingTest)
#include "tst_casefolding.moc"
