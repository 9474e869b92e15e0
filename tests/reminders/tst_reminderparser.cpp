// now is Monday 2026-03-02 10:00 in Asia/Shanghai
#include "foundation/DateFormat.h"
#include "reminders/ReminderDetector.h"
#include "support/NoDateDetector.h"
#include "support/Table.h"
#include "support/TestClock.h"

#include <QTest>

using namespace Qt::StringLiterals;

class ReminderParserTest final : public QObject
{
    Q_OBJECT

    /// "2026-03-03 15:00|content", or nothing.
    static QString parsed(
        const QString &text, const Calendar &calendar, const char *now = "2026-03-02T02:00:00Z")
    {
        const auto result = ReminderDetector::detect(text, at(now), calendar, NoDateDetector());
        if (!result)
            return {};
        return DateFormat::format(result->fireAt, u"yyyy-MM-dd HH:mm", "en_US_POSIX", calendar) + u'|'
               + result->content;
    }
    /// The content of what fires then.
    static QString understood(const QString &text, const QString &moment)
    {
        const QString found = parsed(text, Calendar("Asia/Shanghai"));
        return found.startsWith(moment + u'|') ? found.sliced(moment.size() + 1) : found;
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

    void japanese_and_korean()
    {
        const Table<3> table = {
            {"明日9時にリマインドして薬", "2026-03-03 09:00", "薬"},
            {"あさって 朝8時半 ラジオ", "2026-03-04 08:30", "ラジオ"},
            {"来週の月曜日 15:00 レビュー", "2026-03-09 15:00", "レビュー"},
            {"月曜日 15:00 レビュー", "2026-03-02 15:00", "レビュー"},
            {"来週の金曜日 夜8時 飲み会", "2026-03-06 20:00", "飲み会"},
            {"午前12時 の", "2026-03-02 00:00", "の"},
            {"夜12時に寝る", "2026-03-03 00:00", "寝る"},
            {"4月5日9時5分 出発する", "2026-04-05 09:05", "出発する"},
            {"おととい 4時 の件", "2026-03-02 16:00", "の件"},

            {"내일 모레 9시 반에 병원", "2026-03-04 09:30", "병원"},
            {"내일 저녁 12시 취침", "2026-03-04 00:00", "취침"},
            {"다음 주 월요일 10시 15분 보고", "2026-03-09 10:15", "보고"},
            {"금요일 밤 9시 영화 잊지 말고", "2026-03-06 21:00", "영화"},
            {"5월 5일 아침 7시 소풍", "2026-05-05 07:00", "소풍"},
            {"2026년 4월 1일 14:30 회의", "2026-04-01 14:30", "회의"},
            {"오전 12시 알려줘 소등", "2026-03-02 00:00", "소등"},
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

    void german_french_spanish()
    {
        const Table<3> table = {
            {"morgen 3 Uhr Zahnarzt", "2026-03-03 15:00", "Zahnarzt"},
            {"Gestern 8 Uhr Zahnarzt", "2026-03-02 08:00", "Zahnarzt"},
            {"morgen abends 12 Uhr Feier", "2026-03-04 00:00", "Feier"},
            {"nachts 2 Uhr Feier", "2026-03-02 02:00", "Feier"},
            {"in der nacht um 11 Uhr Feier", "2026-03-02 23:00", "Feier"},
            {"halb 8 Frühstück", "2026-03-02 07:30", "Frühstück"},
            {"heute halb 3 Kaffee", "2026-03-02 14:30", "Kaffee"},
            {"heute um halb 1 Kaffee", "2026-03-02 00:30", "Kaffee"},
            {"nächsten Montag am Nachmittag 4 Uhr Kaffee", "2026-03-09 16:00", "Kaffee"},
            {"5. März um 9:15 Uhr erinnere mich Müll", "2026-03-05 09:15", "Uhr erinnere mich Müll"},
            {"übermorgen um 9 Uhr Müll nicht vergessen", "2026-03-04 09:00", "Müll"},

            {"demain à 9h du soir cinéma", "2026-03-03 21:00", "cinéma"},
            {"demain 14h30 rappelle-moi réunion", "2026-03-03 14:30", "réunion"},
            {"après-demain 8h et demie sport", "2026-03-04 08:30", "sport"},
            {"lundi prochain 9h à la gare", "2026-03-09 09:00", "à la gare"},
            {"5 mars à 3h thé à la menthe", "2026-03-05 15:00", "thé à la menthe"},
            {"aujourd'hui 10h pensez à l'été", "2026-03-02 10:00", "l'été"},

            {"mañana a las 3 de la tarde médico", "2026-03-03 15:00", "médico"},
            {"pasado mañana a las 9 y media médico", "2026-03-04 09:30", "médico"},
            {"el próximo lunes a las 10 dentista", "2026-03-09 10:00", "dentista"},
            {"hoy a las 12 de la noche año", "2026-03-03 00:00", "año"},
            {"hoy a las 2 de la noche año", "2026-03-02 02:00", "año"},
            {"5 de mayo 8:30 de la noche puebla, mañana", "2026-05-05 20:30", "puebla, mañana"},
        };
        table.check(understood);
    }

    void the_north_dutch_italian_portuguese()
    {
        const Table<3> table = {
            {"i morgon kväll klockan 8 middag", "2026-03-03 20:00", "middag"},
            {"i morgen natt kl 2 fly", "2026-03-03 02:00", "fly"},
            {"i kväll kl 8 film", "2026-03-02 20:00", "film"},
            {"halv 8 på fredag", "2026-03-02 07:30", "på fredag"},
            {"næste mandag kl 10 møde", "2026-03-09 10:00", "møde"},
            {"onsdag eftermiddag kl. 3:15 husk at ringe", "2026-03-04 15:15", "ringe"},

            {"'s avonds 8 uur eten", "2026-03-02 20:00", "eten"},
            {"'s middags 3 uur thee", "2026-03-02 03:00", "thee"},
            {"morgen om half 3 thee", "2026-03-03 14:30", "thee"},
            {"overmorgen om half 3 thee", "", ""}, // taken for Danish, whose half hour is "halv"
            {"volgende maandag 10 uur vergeet niet vuilnis", "2026-03-09 10:00", "vuilnis"},
            {"5 maart 's nachts 12 uur vuurwerk", "2026-03-06 00:00", "vuurwerk"},

            {"dopodomani alle 3 del pomeriggio spesa", "2026-03-04 15:00", "spesa"},
            {"lunedì prossimo alle 9 e mezza riunione", "2026-03-09 09:30", "riunione"},
            {"domani alle 8 di sera cena", "2026-03-03 20:00", "cena"},
            {"domani alle 3 di notte luna", "2026-03-03 03:00", "luna"},

            {"amanhã às 9 dentista", "2026-03-03 09:00", "dentista"},
            {"depois de amanhã às 9 e meia dentista", "2026-03-04 09:30", "dentista"},
            {"próxima segunda-feira às 3 da tarde não esqueça reunião", "2026-03-09 15:00", "reunião"},
            {"hoje às 11 da noite dormir", "2026-03-02 23:00", "dormir"},
        };
        table.check(understood);
    }

    void a_day_or_a_time_that_is_not_there_now_may_be_there_on_another()
    {
        QCOMPARE(parsed(u"2月29日9点 闰年"_s, Calendar("Asia/Shanghai"), "2028-02-28T16:00:00Z"),
            u"2028-02-29 09:00|闰年"_s);
        const Calendar berlin("Europe/Berlin");
        QCOMPARE(parsed(u"29. März nachts 2:30 Bäckerei"_s, berlin), u"2026-03-29 03:00|Bäckerei"_s);
        QCOMPARE(parsed(u"29. März abends 12 Uhr Bäckerei"_s, berlin), u"2026-03-30 00:00|Bäckerei"_s);
    }
};

QTEST_APPLESS_MAIN(ReminderParserTest)
#include "tst_reminderparser.moc"
