#include "reminders/LanguageDetection.h"
#include "reminders/ReminderDetector.h"
#include "support/NoDateDetector.h"
#include "support/TestClock.h"

#include <QTest>

using namespace Qt::StringLiterals;

class ReminderDetectorTest final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void the_grammar_and_a_blank_draft_leave_the_detector_alone()
    {
        const NoDateDetector detector;
        const auto isReminder = [&detector](const QString &draft) {
            return ReminderDetector::detect(
                draft, at("2026-03-02T02:00:00Z"), Calendar("Asia/Shanghai"), detector)
                .has_value();
        };
        QVERIFY(isReminder(u"明天下午3点 交房租"_s));
        QVERIFY(!isReminder(u" \t\u3000 "_s));
        QCOMPARE(detector.asked, 0);
        QVERIFY(!isReminder(u"交房租"_s));
        QCOMPARE(detector.asked, 1);
    }

    void merged_content_is_what_stands_around_the_dates_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QStringList>("dates");
        QTest::addColumn<QString>("content");
        const auto row = [](const char *what, const QString &text, const QStringList &dates,
                             const QString &content) { QTest::newRow(what) << text << dates << content; };
        row("two, out of order", u"a 3pm b Friday c"_s, {u"Friday"_s, u"3pm"_s}, u"a  b  c"_s);
        row("overlapping", u"a Friday 3pm"_s, {u"Friday 3pm"_s, u"3pm"_s}, u"a"_s);
        row("a phrase in front", u"remind me to nap 3pm"_s, {u"3pm"_s}, u"nap"_s);
        row("no phrase, a longer word", u"reminders 3pm"_s, {u"3pm"_s}, u"reminders"_s);
        row("a phrase without spaces", u"提醒我周五交报告"_s, {u"周五"_s}, u"交报告"_s);
        row("nothing left", u"remember: 3pm"_s, {u"3pm"_s}, u"remember: 3pm"_s);
    }
    void merged_content_is_what_stands_around_the_dates()
    {
        QFETCH(QString, text);
        QFETCH(QStringList, dates);
        QList<TextRange> ranges;
        for (const QString &date : std::as_const(dates))
            ranges.append({text.indexOf(date), text.indexOf(date) + date.size()});
        QTEST(ReminderDetector::mergedContent(text, ranges, LanguageDetection::detect(text)), "content");
    }
};

QTEST_APPLESS_MAIN(ReminderDetectorTest)
#include "tst_reminderdetector.moc"
