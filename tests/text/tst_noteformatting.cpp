#include "support/Table.h"
#include "support/TestClock.h"
#include "text/NoteFormatting.h"

#include <QTest>

using namespace Qt::StringLiterals;

class NoteFormattingTest final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void locales_follow_the_first_prefix_that_fits()
    {
        const Table<2> table = {
            {"zh-Hant-TW", "zh_Hant"},
            {"zh-Hans", "zh_CN"},
            {"zh-HK", "zh_CN"},
            {"no", "nb_NO"},
            {"nb-NO", "nb_NO"},
            {"pt-BR", "pt_PT"},
            {"en-GB", "en_US"},
            {"ZH", "en_US"},
            {"", "en_US"},
        };
        table.check([](const QString &code) { return QString::fromUtf8(L10n::locale(code)); });
    }

    void times_are_worded_from_today()
    {
        const Table<2> table = {
            // now is Saturday 2026-03-28 10:00 in Berlin; the clocks change in the night that follows
            {"2026-03-27T22:59:00Z", "昨天 23:59"},
            {"2026-03-27T23:00:00Z", "今天 00:00"},
            {"2026-03-29T06:05:00Z", "明天 08:05"},
            {"2026-03-29T22:00:00Z", "后天 00:00"},
            {"2026-03-30T22:00:00Z", "3月31日 00:00"},
            {"2026-03-25T08:00:00Z", "3月25日 09:00"},
        };
        table.check([](const QString &date) {
            return NoteFormatting::reminderTimeString(
                at(date.toUtf8()), at("2026-03-28T09:00:00Z"), Calendar("Europe/Berlin"), u"zh-Hans"_s);
        });
    }

    void day_headers_name_today()
    {
        const Calendar shanghai("Asia/Shanghai");
        const Instant now = at("2026-03-02T02:00:00Z");
        QCOMPARE(NoteFormatting::dayTitle(now, now, shanghai, u"zh-Hans"_s), u"今天 · 3月2日 星期一"_s);
        QCOMPARE(NoteFormatting::dayTitle(at("2026-03-01T15:59:00Z"), now, shanghai, u"zh-Hans"_s),
            u"3月1日 星期日"_s);
        QCOMPARE(
            NoteFormatting::fullDayTitle(now, now, shanghai, u"zh-Hans"_s), u"今天 · 2026年3月2日 星期一"_s);
    }

    void a_text_without_a_translation_is_its_own_key()
    {
        QCOMPARE(L10n::text("导入"), u"导入"_s);
        QCOMPARE(L10n::text("明天 %@", {u"09:00"_s}, u"xx"_s), u"明天 09:00"_s);
    }
};

QTEST_APPLESS_MAIN(NoteFormattingTest)
#include "tst_noteformatting.moc"
