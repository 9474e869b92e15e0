#include "support/Table.h"
#include "text/TagCompletion.h"

#include <QSignalSpy>
#include <QTest>

using namespace Qt::StringLiterals;

class TagCompletionTest final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void the_fragment_ends_at_the_caret()
    {
        const Table<2> table = {
            {"|#ab", "(none)"},
            {"#|ab", ""},
            {"#a|b", "a"},
            {"#ab cd|", "(none)"},
            {"x#ab|", "ab"},
            {"a#b#c|", "c"},
            {"mail@x#ab|", "ab"},
            {"#a@b|", "(none)"},
            {"#a\u3000b|", "(none)"},
            {"😀#家👨‍👩‍👧é|", "家👨‍👩‍👧é"},
            {"#\u0308a|", "(none)"},                  // "#" with a mark is another character
            {"#a#\uFE0F\u20E3b|", "a#\uFE0F\u20E3b"}, // so is the keycap
            {"#|\uFE0F", ""},
            {"#a\r\nb|", "(none)"},
            {"#a \u0301b|", "(none)"},
            {"abc|", "(none)"},
        };
        table.check([](const QString &marked) {
            const qsizetype caret = marked.indexOf(u'|');
            const auto token = TagCompletion::activeToken(QString(marked).remove(u'|'), caret);
            return !token ? u"(none)"_s : token->range.end == caret ? token->prefix : u"another place"_s;
        });
    }

    void a_list_is_walked_and_applied()
    {
        TagCompletionState state;
        QCOMPARE(TagCompletionState::active(), &state);
        const QStringList tags{
            u"work"_s, u"Wörld"_s, u"wok"_s, u"read"_s, u"wo"_s, u"woe"_s, u"worn"_s, u"won"_s};
        state.update(u"买 #WO", 5, tags);
        QCOMPARE(state.candidates(), (QStringList{u"work"_s, u"wok"_s, u"wo"_s, u"woe"_s, u"worn"_s}));
        QCOMPARE(state.selectedCandidate(), u"work"_s);
        state.moveSelection(-1);
        QCOMPARE(state.selectedCandidate(), u"worn"_s);
        state.moveSelection(1);
        QCOMPARE(state.selection(), 0);

        QCOMPARE(state.apply(u"work"_s, u"买 #WO!"_s), (TagCompletionState::Applied{u"买 #work!"_s, 7}));
        QVERIFY(!state.isActive());
        QCOMPARE(state.apply(u"work"_s, u"买 #WO"_s), std::nullopt);
        state.update(u"买 #work!", 7, tags); // what the applying itself brings about
        QVERIFY(!state.isActive());
        state.update(u"买 #work!", 7, tags);
        QCOMPARE(state.candidates(), QStringList{u"work"_s});
        state.update(u"买 #workx", 8, tags);
        QVERIFY(!state.isActive());
        state.moveSelection(1);
        QCOMPARE(state.selectedCandidate(), std::nullopt);
    }
};

QTEST_APPLESS_MAIN(TagCompletionTest)
#include "tst_tagcompletion.moc"
