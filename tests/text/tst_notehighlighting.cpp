#include "support/Table.h"
#include "text/NoteHighlighting.h"

#include <QTest>

using namespace Qt::StringLiterals;

class NoteHighlightingTest final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void each_segment_has_its_kind()
    {
        // plain «number» [tag] {match}
        const Table<3> table = {
            {"", "", ""},
            {"abc", "", "abc"},
            {"买书 ¥45.5 #读书", "", "买书 «¥45.5» [#读书]"},
            {"#a#b", "", "[#a][#b]"},
            {"#a@b # x", "", "[#a]@b # x"},
            {"x#tag\u3000y", "", "x[#tag]\u3000y"},
            {"2024/03/05 9:00", "", "«2024/03/05» «9:00»"},
            {"2024年3月5日 12:30:45", "", "«2024年3月5日» «12:30»:45"},
            {"1234 3.5", "", "1234 3.5"},
            {"$1,000,000 € 5 €  5", "", "«$1,000,000» «€ 5» €  5"},
            {"#2024-03-05", "", "[#2024-03-05]"},
            {"#👨‍👩‍👧家 é", "", "[#👨‍👩‍👧家] é"},
            {"Meeting meeting", " MEETING ", "{Meeting} {meeting}"},
            {"#work and #working", "work", "#{work} and #{work}ing"},
            {"#homework #home", "work", "[#home]{work} [#home]"},
            {"Die Straße #a", "strasse", "Die {Straße} [#a]"},
            {"abc", "   ", "abc"},
            {"¥100 in", "0", "«¥1»{0}{0} in"},
        };
        table.check([](const QString &text, const QString &query) {
            static const QStringList forms{u"%1"_s, u"«%1»"_s, u"[%1]"_s, u"{%1}"_s};
            QString marked;
            QString whole;
            for (const NoteHighlighting::Segment &segment : NoteHighlighting::segments(text, query)) {
                marked += forms[int(segment.kind)].arg(segment.text);
                whole += segment.text;
            }
            return whole == text ? marked : whole;
        });
    }
};

QTEST_APPLESS_MAIN(NoteHighlightingTest)
#include "tst_notehighlighting.moc"
