#include "foundation/InternetDateTime.h"
#include "model/NoteCoding.h"
#include "support/TestClock.h"

#include <QTest>

using namespace Qt::StringLiterals;

namespace {
/// JSON that is easier to read with its quotation marks written as apostrophes.
QByteArray json(QByteArray text)
{
    return text.replace('\'', '"');
}
} // namespace

class NoteCodingTest final : public QObject
{
    Q_OBJECT

    const Note m_note{QUuid(u"{0f8fad5b-d9cb-469f-a165-70867728950e}"_s),
        u"买 \"书\" a/b\\\b\f\n\r\t\u0001😀"_s, u"引"_s, QUuid(u"{7c9e6679-7425-40de-944b-e07fc1f90ae7}"_s),
        u"https://a.example/x?y=1"_s, at("2024-05-01T08:30:00Z")};

private Q_SLOTS:
    void the_written_form_is_exact()
    {
        const QByteArray expected = json("[\n"
                                         "  {\n"
                                         "    'createdAt' : '2024-05-01T08:30:00Z',\n"
                                         "    'id' : '0F8FAD5B-D9CB-469F-A165-70867728950E',\n"
                                         "    'link' : 'https:\\/\\/a.example\\/x?y=1',\n"
                                         "    'quote' : '引',\n"
                                         "    'quoteID' : '7C9E6679-7425-40DE-944B-E07FC1F90AE7',\n"
                                         "    'text' : '买 \\'书\\' a\\/b\\\\\\b\\f\\n\\r\\t\\u0001😀'\n"
                                         "  },\n"
                                         "  {\n"
                                         "    'createdAt' : '2024-05-01T08:30:00Z',\n"
                                         "    'id' : '0F8FAD5B-D9CB-469F-A165-70867728950E',\n"
                                         "    'text' : 'x'\n"
                                         "  }\n"
                                         "]");
        const Note bare{m_note.id, u"x"_s, {}, {}, {}, m_note.createdAt};
        QCOMPARE(noteEncoder::encode(QList<Note>{m_note, bare}), expected);
        QCOMPARE(noteEncoder::encode(QList<Note>()), "[\n\n]");
        QCOMPARE(noteDecoder::decodeNotes(expected).value(), (QList<Note>{m_note, bare}));
    }

    void every_text_comes_back()
    {
        for (const QString &text : {u"\uFEFF"_s, u"\uFEFF\uFEFFx"_s, u"\u2028\u0085\u007F"_s,
                 u"\u07FF\u0800\uFFFF\U00010000\U0010FFFF"_s, u"e\u0301👩‍👩‍👧"_s,
                 QString(100'000, u'字'), QString(100'000, u'\0')}) {
            Note note = m_note;
            note.text = text;
            QCOMPARE(noteDecoder::decodeNotes(noteEncoder::encode(QList{note})).value().first().text, text);
        }
        Note halves = m_note; // of pairs
        halves.text = QString(3, QChar(0xD83D)) + QChar(0xDE00) + QChar(0xDE00);
        QCOMPARE(noteDecoder::decodeNotes(noteEncoder::encode(QList{halves})).value().first().text,
            u"\uFFFD\uFFFD😀\uFFFD"_s);
    }

    void reminders_are_written_with_sorted_keys()
    {
        const Reminder reminder{m_note.id, *m_note.quoteID, u"交/房租"_s, u"明天 交房租"_s,
            at("2026-03-03T07:00:00Z"), at("2026-03-02T02:00:00Z")};
        const QByteArray expected = json("[\n"
                                         "  {\n"
                                         "    'createdAt' : '2026-03-02T02:00:00Z',\n"
                                         "    'fireAt' : '2026-03-03T07:00:00Z',\n"
                                         "    'fullText' : '明天 交房租',\n"
                                         "    'id' : '0F8FAD5B-D9CB-469F-A165-70867728950E',\n"
                                         "    'noteID' : '7C9E6679-7425-40DE-944B-E07FC1F90AE7',\n"
                                         "    'text' : '交\\/房租'\n"
                                         "  }\n"
                                         "]");
        QCOMPARE(noteEncoder::encode(QList<Reminder>{reminder}), expected);
        QCOMPARE(noteDecoder::decodeReminders(expected).value(), QList<Reminder>{reminder});
        for (const char *key : {"createdAt", "fireAt", "fullText", "id", "noteID", "text"})
            QVERIFY(!noteDecoder::decodeReminders(
                QByteArray(expected).replace(json("'") + key + json("'"), "\"other\"")));
    }

    void one_bad_element_fails_the_array_data()
    {
        QTest::addColumn<QByteArray>("element");
        QTest::addColumn<bool>("isGood");
        const auto row = [](const char *name, const QByteArray &members, bool isGood) {
            QTest::newRow(name) << members << isGood;
        };
        const auto withID = [](const char *id) {
            return json("'id':'") + id + json("','text':'a','createdAt':'2024-05-01T08:30:00Z'");
        };
        const QByteArray good = withID("0f8fad5b-d9cb-469f-a165-70867728950e");
        const auto plus = [&good](const QByteArray &member) { return good + ',' + member; };
        row("lower-case id", good, true);
        row("unknown keys, nulls", plus(json("'quote':null,'quoteID':null,'link':null,'x':{'y':[1]}")), true);
        for (const char *key : {"id", "text", "createdAt"})
            row(key, QByteArray(good).replace(key, "other"), false);
        row("text is null", plus(json("'text':null")), false);
        row("text is a number", plus(json("'text':1")), false);
        row("id in braces", withID("{0f8fad5b-d9cb-469f-a165-70867728950e}"), false);
        for (const char *id : {"0f8fad5b0d9cb-469f-a165-70867728950e", "0f8fad5b-d9cb0469f-a165-70867728950e",
                 "0f8fad5b-d9cb-469f0a165-70867728950e", "0f8fad5b-d9cb-469f-a165070867728950e"})
            row(id, withID(id), false);
        row("id with a letter too far", withID("0f8fad5b-d9cb-469f-a165-70867728950g"), false);
        row("a date alone", QByteArray(good).replace("T08:30:00Z", ""), false);
        row("quoteID is no id", plus(json("'quoteID':'x'")), false);
        row("an empty link", plus(json("'link':''")), false);
        row("a lone surrogate", plus(json("'quote':'\\ud800'")), false);
        row("an unfinished escape", plus(json("'quote':'\\u12'")), false);
    }
    void one_bad_element_fails_the_array()
    {
        QFETCH(QByteArray, element);
        const QByteArray good = json("{'id':'7c9e6679-7425-40de-944b-e07fc1f90ae7','text':'b','createdAt':'"
                                     "2024-05-01T08:30:00+01:00'}");
        QTEST(noteDecoder::decodeNotes('[' + good + ",{" + element + "}]").hasValue(), "isGood");
    }

    void hostile_bytes_end_in_a_clean_failure()
    {
        const QByteArray whole = noteEncoder::encode(QList<Note>{m_note});
        for (qsizetype size = 0; size < whole.size(); ++size)
            QVERIFY(!noteDecoder::decodeNotes(whole.first(size)));
        QVERIFY(!noteDecoder::decodeNotes("\xEF\xBB\xBF" + whole));
        QVERIFY(!noteDecoder::decodeNotes(QByteArray(100'000, '[')));
        QVERIFY(!noteDecoder::decodeNotes(QByteArray(whole).replace("买", "\xFF\xFE\xFD")));
        QVERIFY(!noteDecoder::decodeNotes(QByteArray(whole).replace("买", QByteArray(1, '\0'))));
        QVERIFY(!noteDecoder::decodeNotes("{}"));
        QVERIFY(!noteDecoder::decodeNotes(whole + "x"));
    }
};

QTEST_APPLESS_MAIN(NoteCodingTest)
#include "tst_notecoding.moc"
