#include "foundation/CaseFolding.h"
#include "foundation/Characters.h"
#include "foundation/Charset.h"
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

    void a_character_is_what_is_seen_as_one_data()
    {
        QTest::addColumn<QStringList>("characters");
        QTest::addColumn<bool>("areSingleCodePoints");
        const auto row = [](const char *name, const QStringList &characters, bool areSingleCodePoints) {
            QTest::newRow(name) << characters << areSingleCodePoints;
        };
        row("letters", {u"a"_s, u"é"_s, u"字"_s, u"각"_s, u"😀"_s}, true);
        row("a mark", {u"x"_s, u"e\u0301"_s}, false);
        row("many marks", {u"x"_s, u"e"_s + QString(100, QChar(0x301)), u"y"_s}, false);
        row("a line break of two", {u"a"_s, u"\r\n"_s, u"\n"_s}, false);
        row("single letters of Hangul", {u"\u1100\u1161"_s, u"a"_s}, false);
        row("a vowel of Hangul", {u"가\u1161"_s}, false);
        row("a family", {u"👩‍👩‍👧"_s, u"👩"_s}, false);
    }
    void a_character_is_what_is_seen_as_one()
    {
        QFETCH(QStringList, characters);
        const QString text = characters.join(QString());
        QTEST(Characters::areSingleCodePoints(text), "areSingleCodePoints");
        QStringList found;
        for (const TextRange &range : Characters::all(text)) {
            found.append(text.sliced(range.start, range.length()));
            for (qsizetype position = range.start; position < range.end; ++position)
                QCOMPARE(Characters::at(text, position), range);
        }
        QCOMPARE(found, characters);
    }

    void only_a_text_that_is_cut_off_may_end_within_a_character()
    {
        QCOMPARE(Charset::decode("a\xE5\xAD", "utf-8", Charset::Extent::Beginning), u"a"_s);
        QVERIFY(!Charset::decode("a\xE5\xAD", "utf-8"));
        QVERIFY(!Charset::decode("a", "")); // the name of no encoding
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
        const Regex exponential(u"(x+x+)+y"_s);
        QVERIFY(!exponential.matchesIn(QString(40, u'x')));
        QVERIFY(exponential.matchesIn(u"xxy")); // and stays usable
    }
};

QTEST_APPLESS_MAIN(CaseFoldingTest)
#include "tst_casefolding.moc"
