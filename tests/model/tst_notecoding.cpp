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

    void one_bad_element_fails_the_array()
    {
        const auto withID = [](const char *id) {
            return json("'id':'") + id + json("','text':'a','createdAt':'2024-05-01T08:30:00Z'");
        };
        const auto isGood = [&](const QByteArray &element) {
            return noteDecoder::decodeNotes(
                "[{" + withID("7c9e6679-7425-40de-944b-e07fc1f90ae7") + "},{" + element + "}]")
                .hasValue();
        };
        const QByteArray good = withID("0f8fad5b-d9cb-469f-a165-70867728950e"); // in lower case
        QVERIFY(isGood(good));
        QVERIFY(isGood(good + json(",'quote':null,'quoteID':null,'link':null,'x':{'y':[1]}")));
        for (const char *key : {"id", "text", "createdAt", "T08:30:00Z"})
            QVERIFY2(!isGood(QByteArray(good).replace(key, "")), key);
        for (const char *bad :
            {"'text':null", "'text':1", "'quoteID':'x'", "'link':''", "'quote':'\\ud800'", "'quote':'\\u12'"})
            QVERIFY2(!isGood(good + ',' + json(bad)), bad);
        for (const char *id :
            {"{0f8fad5b-d9cb-469f-a165-70867728950e}", "0f8fad5b-d9cb-469f-a165-70867728950g",
                "0f8fad5b0d9cb-469f-a165-70867728950e", "0f8fad5b-d9cb0469f-a165-70867728950e",
                "0f8fad5b-d9cb-469f0a165-70867728950e", "0f8fad5b-d9cb-469f-a165070867728950e"})
            QVERIFY2(!isGood(withID(id)), id);
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
