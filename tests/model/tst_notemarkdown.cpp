// today is 2024-03-07 in Asia/Shanghai
#include "foundation/DateFormat.h"
#include "model/NoteCoding.h"
#include "model/NoteFileCodec.h"
#include "model/NoteMarkdown.h"
#include "support/Table.h"
#include "support/TestClock.h"

#include <QTest>

using namespace Qt::StringLiterals;

class NoteMarkdownTest final : public QObject
{
    Q_OBJECT

    const Calendar m_calendar{"Asia/Shanghai"};
    const Instant m_today = at("2024-03-07T04:00:00Z");

    static Note note(const char *text, const char *createdAt, const char *quote = nullptr)
    {
        Note note{QUuid::createUuid(), QString::fromUtf8(text), {}, {}, {}, at(createdAt)};
        if (quote)
            note.quote = QString::fromUtf8(quote);
        return note;
    }
    /// "03-07 09:30:00 text > quote", a line for each note.
    QString described(const QList<Note> &notes) const
    {
        QStringList lines;
        for (const Note &note : notes) {
            lines.append(DateFormat::format(note.createdAt, u"MM-dd HH:mm:ss ", "en_US_POSIX", m_calendar)
                         + note.text + (note.quote ? u" > "_s + *note.quote : QString()));
        }
        return lines.join(u'\n');
    }

private Q_SLOTS:
    void a_journal_has_a_heading_for_each_day()
    {
        const QList<Note> notes{note("买牛奶 #家", "2024-03-05T01:30:59Z"),
            note("读完\r\n第三章", "2024-03-04T13:15:00Z", " 第二章\n的结论 "),
            note("x", "2024-03-04T13:14:00Z", " \n"), note("回头", "2024-03-04T17:00:00Z")};
        const QString journal = u"# 2024-03-05\n\n- 09:30 买牛奶 #家\n\n"
                                "# 2024-03-04\n\n- 21:15 读完  第三章\n  > 第二章 的结论\n- 21:14 x\n\n"
                                "# 2024-03-05\n\n- 01:00 回头\n"_s;
        QCOMPARE(NoteMarkdown::exported(notes, m_calendar), journal);
        QCOMPARE(NoteMarkdown::exported({}, m_calendar), u"\n"_s);
        QCOMPARE(described(NoteMarkdown::parse(journal, m_today, m_calendar)),
            u"03-05 09:30:00 买牛奶 #家\n03-04 21:15:00 读完  第三章 > 第二章 的结论\n"
            "03-04 21:14:00 x\n03-05 01:00:00 回头"_s);
    }

    void lines_become_notes()
    {
        const Table<2> table = {
            {"a\nb\n# 2024/3/5\nc\nd",
                "03-07 00:00:00 a\n03-07 00:00:01 b\n03-05 00:00:00 c\n03-05 00:00:01 d"},
            {"# 随手记\n# 2024-13-40\n#idea x\na", "03-07 00:00:00 a"},
            {"a\n# 随手记\nb", "03-07 00:00:00 a\n03-07 00:00:01 b"}, // no date, no new count
            {"日记 2024-03-01\n# 见 2024-03-01 的日记\na",
                "03-07 00:00:00 日记 2024-03-01\n03-01 00:00:00 a"},
            {"a\n10:00 b\nc",
                "03-07 00:00:00 a\n03-07 10:00:00 b\n03-07 00:00:01 c"}, // only untimed ones count
            {"1) [X] 10:00 开会", "03-07 10:00:00 开会"},
            {"* [ ] a\n+ [x] b\n-c\n123. d\n1234. e", "03-07 00:00:00 a\n03-07 00:00:01 b\n03-07 00:00:02 "
                                                      "-c\n03-07 00:00:03 d\n03-07 00:00:04 1234. e"},
            {"- a\n-\u3000\n> q\n- b",
                "03-07 00:00:00 a > q\n03-07 00:00:01 b"}, // a marker alone changes nothing
            {"- [x]", "03-07 00:00:00 [x]"},
            {"24:00 x\n9:5 y\n09:60 z\n23:59:59 a",
                "03-07 00:00:00 24:00 x\n03-07 00:00:01 9:5 y\n03-07 00:00:02 09:60 z\n03-07 23:59:59 a"},
            {"09:30\n-\n- 10:00 ", "03-07 00:00:00 09:30\n03-07 00:00:01 -\n03-07 00:00:02 10:00"},
            {"10:15:20 a\n10:15:60 b", "03-07 10:15:20 a\n03-07 10:15:00 b"},
            {"- a\n> q1\n  >q2\n>\n> q3", "03-07 00:00:00 a > q1\nq2\nq3"},
            {"> q0\n- a\n\n> q1\n- b\n# x\n> q2", "03-07 00:00:00 a\n03-07 00:00:01 b"},
            {"a\r\n> q\r\nb\u2028c\u2029\u0085d\u000Be",
                "03-07 00:00:00 a\n03-07 00:00:01 b\n03-07 00:00:02 c\n03-07 00:00:03 d\u000Be"},
            {"\u3000a", "03-07 00:00:00 \u3000a"}, // spaces and tabs alone are trimmed
            {" \n\t\n", ""},
        };
        table.check([this](const QString &text) {
            return described(NoteMarkdown::parse(text, m_today, m_calendar));
        });
    }

    void an_import_is_json_or_else_markdown()
    {
        const QList<Note> notes{note("a", "2024-03-05T01:30:59Z")};
        QCOMPARE(NoteFileCodec::decode(noteEncoder::encode(notes), m_today, m_calendar).value(), notes);
        QVERIFY(NoteFileCodec::decode("[]", m_today, m_calendar).value().isEmpty());
        const auto broken = NoteFileCodec::decode("[{\"id\":1}]", m_today, m_calendar);
        QCOMPARE(broken.value().first().text, u"[{\"id\":1}]"_s);
        QCOMPARE(NoteFileCodec::decode("\xff x", m_today, m_calendar).value().first().text, u"\uFFFD x"_s);
        QCOMPARE(NoteFileCodec::decode("\xEF\xBB\xBF- \xe6\x97/\xf0\x9f\x98/\xc0\x80", m_today, m_calendar)
                     .value()
                     .first()
                     .text,
            u"\uFFFD/\uFFFD/\uFFFD\uFFFD"_s);
        QCOMPARE(NoteFileCodec::decode("# 2024-03-05\n\n", m_today, m_calendar).message(),
            u"unrecognizedFormat"_s);
        QCOMPARE(NoteFileCodec::decode("", m_today, m_calendar).message(), u"unrecognizedFormat"_s);
    }
};

QTEST_APPLESS_MAIN(NoteMarkdownTest)
#include "tst_notemarkdown.moc"
