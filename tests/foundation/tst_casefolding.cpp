#include "foundation/CaseFolding.h"
#include "foundation/Characters.h"
#include "foundation/Charset.h"
#include "foundation/Regex.h"
#include "support/Table.h"

#include <QTest>

using namespace Qt::StringLiterals;

class CaseFoldingTest final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void hits_are_the_original_characters()
    {
        const Table<4> table = {
            {"one character found by two", "Die Straße!", "STRASSE", "Straße"},
            {"two characters found by one", "STRASSE", "ß", "SS"},
            {"not half a character", "ß s", "s", "s"},
            {"not overlapping", "aAaA", "aa", "aA|aA"},
            {"diacritics count", "Cafe café CAFÉ", "café", "café|CAFÉ"},
            {"behind an emoji", "👩‍👩‍👧 Ǆ", "ǆ", "Ǆ"},
            {"beyond the first plane", "x𐐀y", "𐐨", "𐐀"},
            {"final sigma", "ΟΔΟΣ οδος", "οδοσ", "ΟΔΟΣ|οδος"},
            {"an empty query", "abc", "", ""},
        };
        table.check([](const QString &, const QString &text, const QString &query) {
            QStringList found;
            for (const TextRange &range : CaseFolding::occurrences(text, query))
                found.append(text.sliced(range.start, range.length()));
            return found.join(u'|');
        });
    }

    void a_character_is_what_is_seen_as_one()
    {
        const Table<2> table = {
            {"a|é|字|각|😀", "single code points"},
            {"x|e\u0301", ""},
            {"x|e\u0301\u0302\u0303\u0304\u0305\u0306\u0307|y", ""},
            {"a|\r\n|\n", ""},
            {"\u1100\u1161|a", ""}, // single letters of Hangul
            {"가\u1161", ""},
            {"👩‍👩‍👧|👩", ""},
        };
        table.check([](const QString &marked) {
            const QString text = QString(marked).remove(u'|');
            QStringList found;
            for (const TextRange &range : Characters::all(text)) {
                found.append(text.sliced(range.start, range.length()));
                for (qsizetype position = range.start; position < range.end; ++position) {
                    if (Characters::at(text, position) != range)
                        return u"another at %1"_s.arg(position);
                }
            }
            if (found.join(u'|') != marked)
                return found.join(u'|');
            return Characters::areSingleCodePoints(text) ? u"single code points"_s : QString();
        });
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
