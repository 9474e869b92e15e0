#include "foundation/Calendar.h"
#include "foundation/Clock.h"
#include "foundation/DateFormat.h"
#include "foundation/InternetDateTime.h"
#include "support/Table.h"
#include "support/TestClock.h"

#include <QScopeGuard>
#include <QTemporaryFile>
#include <QTest>

#include <cstdio>

using namespace Qt::StringLiterals;
using namespace std::chrono;

class CalendarTest final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void wall_times_that_are_skipped_or_repeated()
    {
        const Table<4> table = {
            {"an ordinary time", "Asia/Shanghai", "2026-03-03 15:00", "2026-03-03T07:00:00Z"},
            {"02:30 is skipped in Berlin", "Europe/Berlin", "2026-03-29 02:30", "2026-03-29T01:00:00Z"},
            {"02:30 comes twice in Berlin", "Europe/Berlin", "2026-10-25 02:30", "2026-10-25T00:30:00Z"},
            {"a day that starts at 01:00", "Africa/Cairo", "2026-04-24 00:00", "2026-04-23T22:00:00Z"},
            {"half an hour skipped", "Australia/Lord_Howe", "2026-10-04 02:10", "2026-10-03T15:30:00Z"},
            {"30 February", "UTC", "2026-02-30 09:00", ""},
            {"24:00", "UTC", "2026-03-03 24:00", ""},
            {"09:60", "UTC", "2026-03-03 09:60", ""},
            {"an unknown zone is UTC", "Mars/Olympus", "2026-03-03 09:00", "2026-03-03T09:00:00Z"},
        };
        table.check([](const QString &, const QString &zone, const QString &time) {
            int y = 0;
            unsigned m = 0;
            unsigned d = 0;
            Calendar::TimeOfDay wall;
            std::sscanf(qPrintable(time), "%d-%u-%u %d:%d", &y, &m, &d, &wall.hour, &wall.minute);
            const auto instant = Calendar(zone.toUtf8()).instant(year(y) / month(m) / day(d), wall);
            return instant ? QString::fromUtf8(InternetDateTime::format(*instant)) : QString();
        });
    }

    void days_are_counted_between_their_starts()
    {
        const Calendar berlin("Europe/Berlin");
        QCOMPARE(berlin.daysBetween(at("2026-03-28T22:59:00Z"), at("2026-03-29T21:59:00Z")),
            1); // a day of 23 hours
        QCOMPARE(
            berlin.daysBetween(at("2026-10-24T22:00:00Z"), at("2026-10-25T22:59:00Z")), 0); // and one of 25
        QCOMPARE(berlin.daysBetween(at("2026-03-02T23:00:00Z"), at("2026-03-02T22:59:00Z")), -1);
        QCOMPARE(
            berlin.addingDays(at("2026-03-28T01:30:00Z"), 1), at("2026-03-29T01:00:00Z")); // 02:30 is skipped
    }

    void times_long_ago_are_read_from_the_same_clock()
    {
        const Calendar shanghai("Asia/Shanghai"); // 8:05:43 before UTC until 1901
        QCOMPARE(shanghai.timeOfDay(at("1900-01-01T00:00:30Z")), (Calendar::TimeOfDay{8, 6}));
        QCOMPARE(shanghai.startOfMinute(at("1900-01-01T00:00:30Z")), at("1900-01-01T00:00:17Z"));
    }

    void a_date_is_formatted_in_its_zone_and_language()
    {
        const auto text = [](const char *locale, const char *zone) {
            return DateFormat::format(at("2026-03-02T02:00:00Z"), u"EEE H", locale, Calendar(zone));
        };
        QCOMPARE(text("en", "UTC"), u"Mon 2"_s);
        QCOMPARE(text("en", "Asia/Shanghai"), u"Mon 10"_s);
        QCOMPARE(text("de", "UTC"), u"Mo. 2"_s);
    }

    void a_new_time_zone_is_noticed_within_a_second()
    {
        QTemporaryFile link;
        QVERIFY(link.open());
        const QByteArray before = qgetenv("TZ");
        const auto restore = qScopeGuard([&before] { qputenv("TZ", before); });
        qputenv("TZ", "Europe/Berlin");
        const SystemClock clock(link.fileName().toLocal8Bit());
        QCOMPARE(clock.calendar().timeZoneID(), "Europe/Berlin");
        qputenv("TZ", "Asia/Shanghai");
        QVERIFY(link.setFileTime(QDateTime::fromSecsSinceEpoch(1), QFileDevice::FileModificationTime));
        QTRY_COMPARE_WITH_TIMEOUT(clock.calendar().timeZoneID(), "Asia/Shanghai", 2000);
    }

    void internet_date_times_are_read_strictly()
    {
        const Table<2> table = {
            {"2024-05-01T08:30:00Z", "2024-05-01T08:30:00Z"},
            {"2024-05-01T08:30:00+08:00", "2024-05-01T00:30:00Z"},
            {"2024-02-29T00:00:00-00:30", "2024-02-29T00:30:00Z"},
            {"2023-02-29T00:00:00Z", ""},
            {"2024-05-01T08:30:00.5Z", ""},
            {"2024-05-01T08:30:00", ""},
            {"2024-05-01 08:30:00Z", ""},
            {"2024-05-01t08:30:00z", ""},
            {"2024-05-01T24:00:00Z", ""},
            {"2024-05-01T08:60:00Z", ""},
            {"2024-05-01T08:30:60Z", ""},
            {"2024-05-01T08:30:00+0800", ""},
            {"2024-05-01T08:30:00+24:00", ""},
            {"2024-05-01T08:30:00+08:60", ""},
            {"2024-05-01T08:30:00Zjunk", ""},
            {"+024-05-01T08:30:00Z", ""},
            {"9999-12-31T23:59:59Z", "9999-12-31T23:59:59Z"},
            {"9999-12-31T23:59:59-00:01", ""}, // which could not be written again
            {"0000-01-01T00:00:00+00:01", ""},
            {"", ""},
        };
        table.check([](const QString &text) {
            const auto instant = InternetDateTime::parse(text.toUtf8());
            return instant ? QString::fromUtf8(InternetDateTime::format(*instant)) : QString();
        });
    }

    void a_fraction_is_dropped_towards_the_past()
    {
        QCOMPARE(InternetDateTime::format(at("2024-05-01T08:30:00Z") + 999ms), "2024-05-01T08:30:00Z");
        QCOMPARE(InternetDateTime::format(at("1969-12-31T23:59:59Z") + 1ms), "1969-12-31T23:59:59Z");
    }

    void what_is_written_can_be_read_again()
    {
        QCOMPARE(InternetDateTime::format(at("9999-12-31T23:59:59Z") + 24h), "9999-12-31T23:59:59Z");
        QCOMPARE(InternetDateTime::format(at("0000-01-01T00:00:00Z") - 1ms), "0000-01-01T00:00:00Z");
    }
};

QTEST_APPLESS_MAIN(CalendarTest)
#include "tst_calendar.moc"
