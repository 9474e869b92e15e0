#include "text/TagCompletion.h"

#include <QSignalSpy>
#include <QTest>

using namespace Qt::StringLiterals;

class TagCompletionTest final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void the_fragment_ends_at_the_caret_data()
    {
        QTest::addColumn<QString>("marked"); // the caret is "|"
        QTest::addColumn<QString>("prefix"); // "(none)": there is none
        const auto row = [](const char *marked, const char *prefix) {
            QTest::newRow(marked) << QString::fromUtf8(marked) << QString::fromUtf8(prefix);
        };
        row("|#ab", "(none)");
        row("#|ab", "");
        row("#a|b", "a");
        row("#ab cd|", "(none)");
        row("x#ab|", "ab");
        row("a#b#c|", "c");
        row("mail@x#ab|", "ab");
        row("#a@b|", "(none)");
        row("#a\u3000b|", "(none)");
        row("😀#家👨‍👩‍👧é|", "家👨‍👩‍👧é");
        row("#\u0308a|", "(none)");                  // "#" with a mark is another character
        row("#a#\uFE0F\u20E3b|", "a#\uFE0F\u20E3b"); // so is the keycap
        row("#|\uFE0F", "");
        row("#a\r\nb|", "(none)");
        row("#a \u0301b|", "(none)");
        row("abc|", "(none)");
    }
    void the_fragment_ends_at_the_caret()
    {
        QFETCH(QString, marked);
        const qsizetype cursor = marked.indexOf(u'|');
        const auto token = TagCompletion::activeToken(QString(marked).remove(u'|'), cursor);
        QTEST(token ? token->prefix : u"(none)"_s, "prefix");
        if (token)
            QCOMPARE(token->range.end, cursor);
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
