#include "text/NoteHighlighting.h"

#include <QTest>

using namespace Qt::StringLiterals;

using NoteHighlighting::Segment;

class NoteHighlightingTest final : public QObject
{
    Q_OBJECT

    /// "plain" «number» [tag] {match}
    static QString marked(const QList<Segment> &segments)
    {
        static const QStringList forms{u"%1"_s, u"«%1»"_s, u"[%1]"_s, u"{%1}"_s};
        QString result;
        for (const Segment &segment : segments)
            result += forms[int(segment.kind)].arg(segment.text);
        return result;
    }

private Q_SLOTS:
    void each_segment_has_its_kind_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("query");
        QTest::addColumn<QString>("expected");
        const auto row = [](const char *text, const char *query, const char *expected) {
            QTest::addRow("%s / %s", text, query)
                << QString::fromUtf8(text) << QString::fromUtf8(query) << QString::fromUtf8(expected);
        };
        row("", "", "");
        row("abc", "", "abc");
        row("买书 ¥45.5 #读书", "", "买书 «¥45.5» [#读书]");
        row("#a#b", "", "[#a][#b]");
        row("#a@b # x", "", "[#a]@b # x");
        row("x#tag\u3000y", "", "x[#tag]\u3000y");
        row("2024/03/05 9:00", "", "«2024/03/05» «9:00»");
        row("2024年3月5日 12:30:45", "", "«2024年3月5日» «12:30»:45");
        row("1234 3.5", "", "1234 3.5");
        row("$1,000,000 € 5 €  5", "", "«$1,000,000» «€ 5» €  5");
        row("#2024-03-05", "", "[#2024-03-05]");
        row("#👨‍👩‍👧家 é", "", "[#👨‍👩‍👧家] é");
        row("Meeting meeting", " MEETING ", "{Meeting} {meeting}");
        row("#work and #working", "work", "#{work} and #{work}ing");
        row("#homework #home", "work", "[#home]{work} [#home]");
        row("Die Straße #a", "strasse", "Die {Straße} [#a]");
        row("abc", "   ", "abc");
        row("¥100 in", "0", "«¥1»{0}{0} in");
    }
    void each_segment_has_its_kind()
    {
        QFETCH(QString, text);
        QFETCH(QString, query);
        QFETCH(QString, expected);
        const QList<Segment> segments = NoteHighlighting::segments(text, query);
        QCOMPARE(marked(segments), expected);
        QString whole;
        for (const Segment &segment : segments)
            whole += segment.text;
        QCOMPARE(whole, text);
    }
};

QTEST_APPLESS_MAIN(NoteHighlightingTest)
#include "tst_notehighlighting.moc"
