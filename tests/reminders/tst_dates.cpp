// Everyday drafts in every language, each in a file of dates/: <language>-found.txt holds drafts with the
// moment and the content that they mean, <language>-ordinary.txt drafts that hold no date. It is Wednesday
// 2026-03-04 10:00 in Shanghai.
#include "reminders/DateEvaluation.h"

#include <QLocale>
#include <QTest>

using namespace Qt::StringLiterals;

class DatesTest final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void every_language_understands_what_people_write_data()
    {
        QTest::addColumn<QString>("language");
        for (const QString &language : DateEvaluation::languages())
            QTest::newRow(qPrintable(language)) << language;
    }
    void every_language_understands_what_people_write()
    {
        QFETCH(QString, language);
        const DateEvaluation::Score score = DateEvaluation::evaluate(language);
        for (const QString &fault : score.faults)
            qInfo("%s", qPrintable(fault));
        QVERIFY2(score.drafts >= 60 && score.ordinary >= 100, "too few drafts");
        QCOMPARE_GE(score.rightMoments * 100, score.drafts * 97);
        QCOMPARE_GE(score.rightContents * 100, score.drafts * 95);
        QCOMPARE_LE(score.falseAlarms * 100, score.ordinary);
    }

    // The system knows how people of a place write a whole date.
    void dates_are_read_as_each_place_writes_them_data()
    {
        QTest::addColumn<QString>("place");
        for (const char *place : {"zh_CN", "zh_TW", "en_US", "en_GB", "ja_JP", "ko_KR", "de_DE", "de_AT",
                 "fr_FR", "es_ES", "es_MX", "da_DK", "nb_NO", "sv_SE", "nl_NL", "it_IT", "pt_PT", "pt_BR"})
            QTest::newRow(place) << QString::fromLatin1(place);
    }
    void dates_are_read_as_each_place_writes_them()
    {
        QFETCH(QString, place);
        const QLocale locale(place);
        QStringList faults;
        for (QDate day(2026, 3, 5); day < QDate(2027, 3, 5); day = day.addDays(13)) {
            const QString whole = locale.toString(day, QLocale::LongFormat);
            for (const QString &written : {whole, whole.toLower()}) {
                const QString draft = u"xyz "_s + written;
                const auto found = DateEvaluation::detect(draft);
                if (!found
                    || DateEvaluation::momentOf(found->fireAt) != day.toString(Qt::ISODate) + u" 09:00"_s
                    || found->content != u"xyz"_s)
                    faults.append(draft + u" => "_s
                                  + (found ? DateEvaluation::momentOf(found->fireAt) + u' ' + found->content
                                           : u"nothing"_s));
            }
        }
        for (const QString &fault : faults.first(std::min<qsizetype>(6, faults.size())))
            qInfo("%s", qPrintable(fault));
        QVERIFY(faults.isEmpty());
    }

    void the_examples_of_the_documentation_hold()
    {
        int examples = 0;
        for (const QString &line : QString::fromUtf8(readFile(QStringLiteral(DATES_DOCUMENT))).split(u'\n')) {
            const QStringList columns = line.split(u" | "_s);
            if (columns.size() != 3 || !columns[1].startsWith(u"2026-"_s))
                continue;
            const QString draft = columns[0].sliced(2);
            const auto found = DateEvaluation::detect(draft);
            QVERIFY2(found, qPrintable(draft));
            QVERIFY2(DateEvaluation::isMoment(columns[1], found->fireAt), qPrintable(draft));
            QCOMPARE(found->content + u" |"_s, columns[2]);
            ++examples;
        }
        QCOMPARE_GE(examples, 13 * 8);
    }

    void a_detection_says_what_it_found_and_where_data()
    {
        QTest::addColumn<QString>("draft");
        QTest::addColumn<QStringList>("found"); // kind, language, text
        const auto row = [](const QString &draft, const QStringList &found) {
            QTest::newRow(qPrintable(draft)) << draft << found;
        };
        row(u"Mittwoch Zahnarzt um 15 Uhr"_s, {u"day 4 Mittwoch"_s, u"time 4 um 15 Uhr"_s});
        row(u"dentist half past three"_s, {u"time 1 half past three"_s}); // which seems Dutch by its "half"
        row(u"回家 半小时后"_s, {u"moment 0 半小时后"_s});
        row(u"call Al tomorrow night about it"_s, {u"day and time 1 tomorrow night "_s});
        row(u"x https://a.example/2026/03/05 #tomorrow a/tomorrow me@friday.example"_s, {});
        row(u"v2.4 €12 +49 17:61 25:00 2:1 31/2 9am-ish"_s, {});
        row(QString(1000, u'1') + u" tomorrow"_s, {u"day 1 tomorrow"_s});
    }
    void a_detection_says_what_it_found_and_where()
    {
        static const QStringList kinds{u"day"_s, u"day and time"_s, u"time"_s, u"moment"_s};
        QFETCH(QString, draft);
        QStringList found;
        for (const DateDetection &detection : DateDetector(DateEvaluation::clock()).detectDates(draft)) {
            QCOMPARE(draft.sliced(detection.range.start, detection.range.length()), detection.text);
            found.append(kinds[int(*detection.kind)] + u' ' + QString::number(int(*detection.language)) + u' '
                         + detection.text);
        }
        QTEST(found, "found");
    }

    void a_span_is_rounded_up_to_whole_minutes()
    {
        const TestClock clock("2026-03-04T02:00:01Z");
        QCOMPARE(
            DateDetector(clock).detectDates(u"in 20 minutes").first().fireAt, at("2026-03-04T02:21:00Z"));
    }

    void the_calendar_decides_what_exists_data()
    {
        QTest::addColumn<QString>("draft");
        QTest::addColumn<QByteArray>("fireAt"); // empty: nothing
        const auto row = [](const QString &draft, const QByteArray &fireAt) {
            QTest::newRow(qPrintable(draft)) << draft << fireAt;
        };
        row(u"x am 30.2."_s, "");
        row(u"x on 29 February"_s, "2028-02-29T01:00:00Z");
        row(u"x on the 31st"_s, "2026-03-31T01:00:00Z");
        row(u"x 3月1日"_s, "2027-03-01T01:00:00Z");
        row(u"x in 12 months"_s, "2027-03-04T01:00:00Z");
        row(u"五月底 交报告"_s, "2026-05-31T01:00:00Z");
        row(u"二月底下午3点 交报告"_s, "2027-02-28T07:00:00Z");
        row(u"x at midnight"_s, "2026-03-04T16:00:00Z");
        row(u"Friday party at midnight"_s, "2026-03-06T16:00:00Z"); // the midnight that ends it
    }
    void the_calendar_decides_what_exists()
    {
        QFETCH(QString, draft);
        const auto found = DateEvaluation::detect(draft);
        QTEST(found ? InternetDateTime::format(found->fireAt) : QByteArray(), "fireAt");
    }
};

QTEST_APPLESS_MAIN(DatesTest)
#include "tst_dates.moc"
