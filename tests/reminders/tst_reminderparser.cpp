// Drafts that begin with a date and a time. It is Monday 2026-03-02 10:00 in Shanghai.
#include "reminders/DateDrafts.h"
#include "support/NoDateDetector.h"
#include "support/Table.h"

#include <QTest>

using namespace Qt::StringLiterals;

class ReminderParserTest final : public QObject
{
    Q_OBJECT

    /// "2026-03-03 15:00 | content", or nothing.
    static QString parsed(
        const QString &text, const Calendar &calendar, const char *now = "2026-03-02T02:00:00Z")
    {
        const auto result = ReminderDetector::detect(text, at(now), calendar, NoDateDetector());
        if (!result)
            return {};
        return DateFormat::format(result->fireAt, u"yyyy-MM-dd HH:mm", "en_US_POSIX", calendar) + u" | "_s
               + result->content;
    }
    /// The content of what fires then.
    static QString understood(const QString &text, const QString &moment)
    {
        const QString found = parsed(text, Calendar("Asia/Shanghai"));
        return found.startsWith(moment + u" | "_s) ? found.sliced(moment.size() + 3) : found;
    }

private Q_SLOTS:
    void chinese()
    {
        const Table<3> table = {
            {"明天下午3点 交房租 #家", "2026-03-03 15:00", "交房租 #家"},
            {"  明天下午3点  ", "2026-03-03 15:00", "明天下午3点"}, // nothing left: the whole draft
            {"明天3点开会", "2026-03-03 15:00", "开会"},            // a bare hour up to 6 is after noon
            {"明天7点开会", "2026-03-03 07:00", "开会"},
            {"昨天下午3点 交房租", "2026-03-02 15:00", "交房租"}, // a past day counts as today
            {"前天8点 交房租", "2026-03-02 08:00", "交房租"},
            {"後天上午9點半 看牙", "2026-03-04 09:30", "看牙"},
            {"后天 晚上12点 睡", "2026-03-05 00:00", "睡"}, // midnight ends the day
            {"今天傍晚6点15分散步", "2026-03-02 18:15", "散步"},
            {"凌晨12点 关机", "2026-03-02 00:00", "关机"},
            {"中午1点 午睡", "2026-03-02 01:00", "午睡"},  // as written
            {"下午3:30 开会", "2026-03-02 03:30", "开会"}, // with a colon the word is not heard
            {"下午１５：３０ 开会", "2026-03-02 15:30", "开会"},
            {"10点整开会", "2026-03-02 10:00", "开会"},
            {"9时5分出门", "2026-03-02 09:05", "出门"},
            {"3月1日9点 年检", "2027-03-01 09:00", "年检"}, // has passed this year
            {"3月2日9点 年检", "2026-03-02 09:00", "年检"}, // today has not
            {"2024-03-01 9:00 旧事", "2024-03-01 09:00", "旧事"},
            {"2026年12月31日23点 倒数", "2026-12-31 23:00", "倒数"},
            {"2月29日9点 闰年", "", ""},
            {"明天25点 没有", "", ""},
            {"明天9点75分", "", ""},
            {"开会 明天下午3点", "", ""},
            {"周五下午3点 开会", "", ""},
            {"明天 交房租", "", ""},
            {"明天下午3点提醒我交报告", "2026-03-03 15:00", "交报告"},
            {"明天9点买牛奶 别忘了 ", "2026-03-03 09:00", "买牛奶"},
            {"明天9点，、！买牛奶。", "2026-03-03 09:00", "买牛奶。"},
            {"明天9点 记得", "2026-03-03 09:00", "明天9点 记得"},
        };
        table.check(understood);
    }

    void english()
    {
        const Table<3> table = {
            {"tomorrow at 9am remind me to call mom", "2026-03-03 09:00", "call mom"},
            {"9am, buy milk", "2026-03-02 09:00", "buy milk"},
            {"9am buy milk don’t forget", "2026-03-02 09:00", "buy milk"},
            {"9 PM Tomorrow buy milk", "2026-03-03 21:00", "buy milk"},
            {"12am x", "2026-03-02 00:00", "x"},
            {"12 p.m. x", "2026-03-02 12:00", "x"},
            {"3:00 x", "2026-03-02 03:00", "x"}, // no bare-hour rule here
            {"next monday 3pm x", "2026-03-09 15:00", "x"},
            {"monday 3pm x", "2026-03-02 15:00", "x"},
            {"next friday 3pm x", "2026-03-06 15:00", "x"},
            {"the day after tomorrow at 15:30 x", "2026-03-04 15:30", "x"},
            {"5th mar. 9am x", "2026-03-05 09:00", "x"},
            {"Sept 3 10:15 x", "2026-09-03 10:15", "x"},
            {"9am on jan 2 x", "2027-01-02 09:00", "x"},
            {"2026/13/01 9am x", "", ""},
            {"13pm x", "2026-03-02 13:00", "x"},
            {"25:00 x", "", ""},
        };
        table.check(understood);
    }

    void other_languages()
    {
        QStringList faults;
        for (const QString &language : DateDrafts::languages()) {
            for (const auto &[draft, meaning] : DateDrafts::rows(language, u"grammar"_s)) {
                if (const QString found = parsed(draft, Calendar("Asia/Shanghai")); found != meaning)
                    faults.append(draft + u"  =>  "_s + found);
            }
        }
        QVERIFY2(faults.isEmpty(), qPrintable(faults.join(u'\n')));
    }

    void a_day_or_a_time_that_is_not_there_now_may_be_there_on_another()
    {
        QCOMPARE(parsed(u"2月29日9点 闰年"_s, Calendar("Asia/Shanghai"), "2028-02-28T16:00:00Z"),
            u"2028-02-29 09:00 | 闰年"_s);
        const Calendar berlin("Europe/Berlin");
        QCOMPARE(parsed(u"29. März nachts 2:30 Bäckerei"_s, berlin), u"2026-03-29 03:00 | Bäckerei"_s);
        QCOMPARE(parsed(u"29. März abends 12 Uhr Bäckerei"_s, berlin), u"2026-03-30 00:00 | Bäckerei"_s);
    }
};

QTEST_APPLESS_MAIN(ReminderParserTest)
#include "tst_reminderparser.moc"
