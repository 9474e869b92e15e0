// now is Monday 2026-03-02 10:00 in Asia/Shanghai
#include "reminders/LanguageDetection.h"
#include "reminders/ReminderDetector.h"
#include "support/TestClock.h"

#include <QTest>

using namespace Qt::StringLiterals;
using Kind = DateDetection::Kind;

namespace {
/// Returns the detections that a test sets, in that order.
class PresetDetector final : public DateDetecting
{
public:
    /// @p moment is the day, the time of day or both, as @p kind says.
    void add(const QString &text, DateDetection::Kind kind, const char *moment)
    {
        const Calendar calendar("Asia/Shanghai");
        m_detections.append({kind, ReminderLanguage::English, calendar.day(at(moment)),
            {calendar.timeOfDay(at(moment))}, at(moment), {}, text});
    }

    [[nodiscard]] QList<DateDetection> detectDates(QStringView text, ReminderLanguage) const override
    {
        ++asked;
        QList<DateDetection> detections = m_detections;
        for (DateDetection &detection : detections) {
            const qsizetype start = text.indexOf(detection.text);
            detection.range = {start, start + detection.text.size()};
        }
        return detections;
    }

    mutable int asked = 0;

private:
    QList<DateDetection> m_detections;
};
} // namespace

class ReminderDetectorTest final : public QObject
{
    Q_OBJECT

    const Instant m_now = at("2026-03-02T02:00:00Z");
    const Calendar m_calendar{"Asia/Shanghai"};

    std::optional<ParsedReminder> detect(const QString &text, const PresetDetector &detector) const
    {
        return ReminderDetector::detect(text, m_now, m_calendar, detector);
    }

private Q_SLOTS:
    void the_grammar_and_a_blank_draft_leave_the_detector_alone()
    {
        const PresetDetector detector;
        QVERIFY(detect(u"明天下午3点 交房租"_s, detector));
        QVERIFY(!detect(u" \t\u3000 "_s, detector));
        QCOMPARE(detector.asked, 0);
        QVERIFY(!detect(u"交房租"_s, detector));
        QCOMPARE(detector.asked, 1);
    }

    void a_date_with_a_time_wins_and_is_taken_as_it_is()
    {
        PresetDetector detector;
        detector.add(u"Friday"_s, Kind::Day, "2026-03-06T04:00:00Z");
        detector.add(u"next Monday at 3pm"_s, Kind::DayAndTime, "2026-03-09T07:00:00Z");
        const auto found = detect(u"not Friday but next Monday at 3pm: call the bank"_s, detector);
        QCOMPARE(found, (ParsedReminder{at("2026-03-09T07:00:00Z"), u"not Friday but : call the bank"_s}));
    }

    void a_time_takes_its_day_from_another_detection_or_is_today()
    {
        PresetDetector detector;
        detector.add(u"3pm"_s, Kind::Time, "2026-03-02T07:00:00Z");
        QCOMPARE(
            detect(u"call mom 3pm"_s, detector), (ParsedReminder{at("2026-03-02T07:00:00Z"), u"call mom"_s}));
        detector.add(u"Friday"_s, Kind::Day, "2026-03-06T04:00:00Z");
        QCOMPARE(detect(u"Friday call mom 3pm remember"_s, detector),
            (ParsedReminder{at("2026-03-06T07:00:00Z"), u"call mom"_s}));
    }

    void a_date_alone_reminds_at_nine()
    {
        PresetDetector detector;
        detector.add(u"next Friday"_s, Kind::Day, "2026-03-06T04:00:00Z");
        QCOMPARE(detect(u"call the bank next Friday"_s, detector),
            (ParsedReminder{at("2026-03-06T01:00:00Z"), u"call the bank"_s}));
        QCOMPARE(detect(u"next Friday, remind me to call the bank"_s, detector)->content,
            u"remind me to call the bank"_s); // the phrase is not at the front: punctuation precedes it
        QCOMPARE(detect(u"next Friday"_s, detector)->content, u"next Friday"_s);
    }

    void merged_content_is_what_stands_around_the_dates_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QStringList>("dates");
        QTest::addColumn<QString>("content");
        QTest::newRow("two, out of order")
            << u"a 3pm b Friday c"_s << QStringList{u"Friday"_s, u"3pm"_s} << u"a  b  c"_s;
        QTest::newRow("overlapping") << u"a Friday 3pm"_s << QStringList{u"Friday 3pm"_s, u"3pm"_s} << u"a"_s;
        QTest::newRow("a phrase in front") << u"remind me to nap 3pm"_s << QStringList{u"3pm"_s} << u"nap"_s;
        QTest::newRow("no phrase, a longer word")
            << u"reminders 3pm"_s << QStringList{u"3pm"_s} << u"reminders"_s;
        QTest::newRow("a phrase without spaces")
            << u"提醒我周五交报告"_s << QStringList{u"周五"_s} << u"交报告"_s;
        QTest::newRow("nothing left") << u"remember: 3pm"_s << QStringList{u"3pm"_s} << u"remember: 3pm"_s;
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
