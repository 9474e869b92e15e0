#include "reminders/LanguageDetection.h"
#include "reminders/ReminderDetector.h"
#include "support/NoDateDetector.h"
#include "support/Table.h"
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

    void merged_content_is_what_stands_around_the_dates()
    {
        const Table<4> table = {
            {"two, out of order", "a 3pm b Friday c", "Friday|3pm", "a  b  c"},
            {"overlapping", "a Friday 3pm", "Friday 3pm|3pm", "a"},
            {"a phrase in front", "remind me to nap 3pm", "3pm", "nap"},
            {"no phrase, a longer word", "reminders 3pm", "3pm", "reminders"},
            {"a phrase without spaces", "提醒我周五交报告", "周五", "交报告"},
            {"nothing left", "remember: 3pm", "3pm", "remember: 3pm"},
        };
        table.check([](const QString &, const QString &text, const QString &dates) {
            QList<TextRange> ranges;
            for (const QString &date : dates.split(u'|'))
                ranges.append({text.indexOf(date), text.indexOf(date) + date.size()});
            return ReminderDetector::mergedContent(text, ranges, LanguageDetection::detect(text));
        });
    }
};

QTEST_APPLESS_MAIN(ReminderDetectorTest)
#include "tst_reminderdetector.moc"
