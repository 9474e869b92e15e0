// Everyday drafts in every language, in files of dates/: <language>-found.txt has drafts with the moment and
// the content that they mean, <language>-ordinary.txt drafts without a date, <language>-missed.txt drafts of
// both kinds that are known to be misunderstood. It is Wednesday 2026-03-04 10:00 in Shanghai.
#include "reminders/DateDrafts.h"

#include "reminders/LanguageDetection.h"
#include "support/Table.h"

#include <QLocale>
#include <QTest>

using namespace Qt::StringLiterals;

class DatesTest final : public QObject
{
    Q_OBJECT

    static QList<DateDetection> detected(const QString &draft, const Clock &clock)
    {
        return DateDetector(clock).detectDates(draft, LanguageDetection::detect(draft));
    }

private Q_SLOTS:
    void every_draft_means_what_its_row_says()
    {
        QStringList faults;
        for (const QString &language : DateDrafts::languages()) {
            for (const QString &list : {u"found"_s, u"ordinary"_s, u"missed"_s}) {
                const QList<DateDrafts::Row> rows = DateDrafts::rows(language, list);
                QVERIFY2(list == u"missed" || rows.size() >= 60, qPrintable(language));
                for (const auto &[draft, meaning] : rows) {
                    const QString understood = DateDrafts::understood(draft);
                    if (list == u"missed" && understood == meaning)
                        faults.append(draft + u"  is understood now: move the row out of the missed ones"_s);
                    if (list != u"missed" && understood != meaning)
                        faults.append(draft + u"  =>  "_s + understood);
                }
            }
        }
        QVERIFY2(faults.isEmpty(), qPrintable(faults.join(u'\n')));
    }

    // The system knows how people of a place write a whole date.
    void dates_are_read_as_each_place_writes_them()
    {
        QStringList faults;
        for (const char *place : {"zh_CN", "zh_TW", "en_US", "en_GB", "ja_JP", "ko_KR", "de_DE", "de_AT",
                 "fr_FR", "es_ES", "es_MX", "da_DK", "nb_NO", "sv_SE", "nl_NL", "it_IT", "pt_PT", "pt_BR"}) {
            for (QDate day(2026, 3, 5); day < QDate(2027, 3, 5); day = day.addDays(13)) {
                const QString whole = QLocale(QString::fromLatin1(place)).toString(day, QLocale::LongFormat);
                for (const QString &written : {whole, whole.toLower()}) {
                    const QString understood = DateDrafts::understood(u"xyz "_s + written);
                    if (understood != day.toString(Qt::ISODate).remove(u"2026-"_s) + u" 09:00 | xyz"_s)
                        faults.append(written + u"  =>  "_s + understood);
                }
            }
        }
        QVERIFY2(faults.isEmpty(), qPrintable(faults.join(u'\n')));
    }

    void the_examples_of_the_documentation_hold()
    {
        int examples = 0;
        for (const QString &line : QString::fromUtf8(readFile(QStringLiteral(DATES_DOCUMENT))).split(u'\n')) {
            const QStringList columns = line.split(u" | "_s);
            if (columns.size() != 3 || !columns[1].startsWith(u"2026-"_s))
                continue;
            QCOMPARE(u"| 2026-"_s + DateDrafts::understood(columns[0].sliced(2)) + u" |"_s,
                u"| "_s + columns[1] + u" | "_s + columns[2]);
            ++examples;
        }
        QCOMPARE_GE(examples, 13 * 8);
    }

    void a_detection_says_what_it_found_and_where()
    {
        const Table<2> table = {
            {"Mittwoch Zahnarzt um 15 Uhr", "day 4 Mittwoch|time 4 um 15 Uhr"},
            {"dentist half past three", "time 1 half past three"}, // which seems Dutch by its "half"
            {"回家 半小时后", "moment 0 半小时后"},
            {"call Al tomorrow night about it", "day and time 1 tomorrow night "},
            {"x https://a.example/2026/03/05 #tomorrow a/tomorrow me@friday.example", ""},
            {"v2.4 €12 +49 17:61 25:00 2:1 31/2 9am-ish 1111111111111111111111111111111", ""},
        };
        table.check([](const QString &draft) {
            static const QStringList kinds{u"day"_s, u"day and time"_s, u"time"_s, u"moment"_s};
            QStringList found;
            for (const DateDetection &each : detected(draft, DateDrafts::clock())) {
                found.append(u"%1 %2 %3"_s.arg(kinds[int(each.kind)])
                                 .arg(int(each.language))
                                 .arg(draft.sliced(each.range.start, each.range.length())));
            }
            return found.join(u'|');
        });
    }

    void a_span_is_rounded_up_to_whole_minutes()
    {
        const TestClock clock("2026-03-04T02:00:01Z");
        QCOMPARE(detected(u"in 20 minutes"_s, clock).first().fireAt, at("2026-03-04T02:21:00Z"));
    }

    void a_draft_is_read_as_one_reminder_on_a_day_that_exists()
    {
        const Table<2> table = {
            // A day with a time wins, a time takes its day from elsewhere, a day alone reminds at nine.
            {"not Friday but next Monday at 3pm: call the bank",
                "03-09 15:00 | not Friday but : call the bank"},
            {"call mom 3pm", "03-04 15:00 | call mom"},
            {"Friday call mom 3pm remember", "03-06 15:00 | call mom"},
            {"call the bank next Friday", "03-06 09:00 | call the bank"},
            {"next Friday, remind me to call the bank", "03-06 09:00 | remind me to call the bank"},
            {"next Friday", "03-06 09:00 | next Friday"},

            // The calendar decides what exists.
            {"x am 30.2.", ""}, {"x on 29 February", "2028-02-29 09:00 | x"},
            {"x on the 31st", "03-31 09:00 | x"}, {"x 3月1日", "2027-03-01 09:00 | x"},
            {"x in 12 months", "2027-03-04 09:00 | x"}, {"五月底 交报告", "05-31 09:00 | 交报告"},
            {"二月底下午3点 交报告", "2027-02-28 15:00 | 交报告"}, {"x at midnight", "03-05 00:00 | x"},
            {"Friday party at midnight", "03-07 00:00 | party"}, // the midnight that ends it
        };
        table.check(DateDrafts::understood);
    }

    // Today this time does not exist: the clocks go forward.
    void a_time_keeps_its_hour_on_the_day_of_another_detection()
    {
        const TestClock clock("2026-03-28T23:30:00Z", "Europe/Berlin");
        const auto found = ReminderDetector::detect(
            u"Montag Zug um 2:30 Uhr nachts", clock.now(), clock.calendar(), DateDetector(clock));
        QVERIFY(found);
        QCOMPARE(found->fireAt, at("2026-03-30T00:30:00Z"));
    }
};

QTEST_APPLESS_MAIN(DatesTest)
#include "tst_dates.moc"
