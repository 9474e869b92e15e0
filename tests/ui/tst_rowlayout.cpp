// What a row's text looks like: its typeface, its side, and how much of it is shown.
#include "ui/lists/RowLayout.h"
#include "ui/lists/RowSelection.h"
#include "ui/looks/NoteStyle.h"
#include "ui/looks/Typeface.h"

#include <QFontDatabase>
#include <QGlyphRun>
#include <QRawFont>
#include <QTest>

using namespace Qt::StringLiterals;
using Typeface::Region;

class RowLayoutTest final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void a_text_has_the_typeface_of_its_language()
    {
        struct Row {
            const char *text;
            const char *language;
            Region expected;
        };
        const Row rows[] = {
            {"plain text, 10:00 – café 😀 שלום", "zh-Hans", Region::None},
            {"买牛奶", "en", Region::Simplified},
            {"這個 and that", "zh-Hans", Region::Traditional},
            {"天下", "zh-Hans", Region::Simplified},
            {"天下", "zh-Hant-TW", Region::Traditional},
            {"这个", "zh-Hant-TW", Region::Simplified},
            {"天下", "ja", Region::Japanese},
            {"天下", "ko", Region::Korean},
            {"東京へ行く", "zh-Hans", Region::Japanese},
            {"집에 가다 學校", "zh-Hans", Region::Korean},
            {"著名作家陶喆於乾隆年間", "zh-Hans", Region::Traditional}, // only the last character decides
            {"著名作家陶喆，皇后沈", "zh-Hans", Region::Simplified},    // written so in both, or only rare
            {"他说「這個」这样写", "zh-Hans", Region::Simplified},      // a quotation
            {"！", "en", Region::Simplified},
            {"𠮷", "ja", Region::Japanese},
        };
        for (const auto &[text, language, expected] : rows)
            QVERIFY2(
                Typeface::region(QString::fromUtf8(text), QString::fromUtf8(language)) == expected, text);
    }

    void the_best_families_that_are_there_are_taken()
    {
        const QString sc = u"Noto Sans CJK SC"_s;
        const QString tc = u"Noto Sans CJK TC"_s;
        const QString jp = u"Noto Sans CJK JP"_s;
        const QString kr = u"Noto Sans CJK KR"_s;
        const QString dejaVu = u"DejaVu Sans"_s;
        const QString wen = u"WenQuanYi Zen Hei"_s;
        const QString ming = u"AR PL UMing CN"_s;
        const QString kai = u"LXGW Neo XiHei"_s;
        const QStringList pan{u"Noto Sans CJK HK"_s, jp, kr, sc, tc, u"Noto Serif CJK SC"_s, wen};
        struct Row {
            Region region;
            QString system;
            QStringList available;
            QStringList expected;
        };
        const Row rows[] = {
            {Region::Simplified, dejaVu, pan, {dejaVu, sc}},
            {Region::Traditional, dejaVu, pan, {dejaVu, tc}},
            {Region::Japanese, dejaVu, pan, {dejaVu, jp}},
            {Region::Korean, dejaVu, pan, {dejaVu, kr}},
            {Region::Simplified, jp, pan, {sc, jp}},
            {Region::Korean, sc, pan, {kr, sc}},
            {Region::Simplified, wen, pan, {wen, sc}}, // as the user wishes
            {Region::Simplified, kai, pan, {kai, sc}},
            {Region::Traditional, dejaVu, {ming, wen}, {dejaVu, wen}},
            {Region::Japanese, dejaVu, {u"Source Han Sans JP VF"_s}, {dejaVu, u"Source Han Sans JP VF"_s}},
            {Region::Simplified, dejaVu, {ming, kai}, {dejaVu, kai}},
            {Region::Simplified, dejaVu, {ming}, {dejaVu, ming}},
            {Region::Korean, dejaVu, {}, {dejaVu}},
        };
        for (const auto &[region, system, available, expected] : rows)
            QCOMPARE(Typeface::families(region, system, available), expected);
    }

    void a_row_is_drawn_with_one_typeface()
    {
        QMap<QString, QString> expected{{u"买牛奶和面包，直至傍晚"_s, u"Noto Sans CJK SC"_s},
            {u"這個包裹還沒有收到直"_s, u"Noto Sans CJK TC"_s}, {u"東京へ行く直前"_s, u"Noto Sans CJK JP"_s},
            {u"집에가다"_s, u"Noto Sans CJK KR"_s}};
        if (!QFontDatabase::families(QFontDatabase::Japanese).contains(u"Noto Sans CJK JP"_s))
            QSKIP("needs the fonts that Quillet's package recommends");
        for (const auto &[text, family] : expected.asKeyValueRange()) {
            RowContent content;
            content.text = text;
            const RowLayout row(content, 340, NoteStyle::palette(false));
            for (const QGlyphRun &run : row.text().glyphRuns())
                QCOMPARE(
                    run.rawFont().familyName() + u' ' + run.rawFont().styleName(), family + u" Regular"_s);
        }
    }

    void a_long_text_is_folded_around_its_first_match()
    {
        using Fold = RowContent::Fold;
        struct Row {
            QString text;
            Fold fold;
            QString query;
            QString foldText;
            QString shown; // its beginning and its end
        };
        const auto lines = [](int count) {
            QStringList all;
            for (int i = 1; i <= count; ++i)
                all.append(u"<%1>"_s.arg(i));
            return all.join(u'\n');
        };
        const QString wide(5000, u'字');
        const Row rows[] = {
            {lines(12), Fold::Folded, {}, {}, u"<1>…<12>"_s},
            {lines(13), Fold::Folded, {}, u"展开 · 还有 3 行"_s, u"<1>…<10>"_s},
            {lines(13), Fold::Unfolded, {}, u"收起"_s, u"<1>…<13>"_s},
            {lines(3), Fold::Unfolded, {}, {}, u"<1>…<3>"_s},
            {lines(99), Fold::Never, {}, {}, u"<1>…<99>"_s},
            {lines(30), Fold::Folded, u" <9> "_s, u"展开 · 还有 20 行"_s, u"<1>…<10>"_s},
            {lines(30), Fold::Folded, u"<21"_s, u"展开 · 还有 91 字"_s, u"…<21>…<30>"_s},
            {wide + u"NEEDLE"_s + wide, Fold::Folded, u"needle"_s, u"展开 · 还有 97"_s, u"…字…字"_s},
            {QString(1'000'000, u'a'), Fold::Folded, {}, u"展开 · 还有"_s, u"a…a"_s},
            {QString(1'000'000, u'a'), Fold::Unfolded, {}, u"收起 · 另有 980000 字，编辑时可见"_s, u"a…a…"_s},
        };
        for (const auto &[text, fold, query, foldText, shown] : rows) {
            RowContent content;
            content.text = text;
            content.fold = fold;
            content.query = query;
            const RowLayout row(content, 340, NoteStyle::palette(false));
            const QTextLine last = row.text().lineAt(row.text().lineCount() - 1);
            const QString inLines = row.text().text().first(last.textStart() + last.textLength()).trimmed();
            QVERIFY2(row.foldText().startsWith(foldText), qPrintable(row.foldText()));
            QCOMPARE(row.parts().fold.isEmpty(), foldText.isEmpty());
            const qsizetype middle = shown.indexOf(u'…', 1);
            QVERIFY2(inLines.startsWith(shown.first(middle)) && inLines.endsWith(shown.sliced(middle + 1)),
                qPrintable(inLines));
            QVERIFY(inLines.contains(query.trimmed(), Qt::CaseInsensitive));
            QVERIFY(inLines.size() <= 20'001);
        }
    }

    void what_is_cut_leads_nowhere_and_its_mark_is_not_copied()
    {
        const QString page = u"https://a.example/"_s;
        const QString pad = QString(19'990, u'i') + u' ';
        const QString tail(20, u'i');
        const QString needle = QString(22, u' ') + u"needle"_s;
        const std::tuple<QString, QString, QStringList> rows[] = {
            {pad + u"#cat "_s + tail, {}, {u"#cat"_s}},
            {pad + u"#categories"_s, {}, {}},
            {pad + page + tail, {}, {}},
            {pad + page + page + needle, u"needle"_s, {}}, // the end of an address
            {pad + u'\n' + page + needle, u"needle"_s, {page}},
        };
        for (const auto &[text, query, targets] : rows) {
            RowContent content;
            content.text = text;
            content.query = query;
            content.fold = query.isEmpty() ? RowContent::Fold::Unfolded : RowContent::Fold::Folded;
            const RowLayout row(content, 340, NoteStyle::palette(false));
            QStringList found;
            for (const RowLayout::Target &target : row.targets()) {
                found.append(target.part.target);
                QCOMPARE(row.text().text().mid(target.range.start, target.range.length()), found.last());
            }
            QCOMPARE(found, targets);
            RowSelection all;
            all.begin(row, {0, 0});
            all.extendTo(row, {1000, row.height()});
            const QString copied = all.textIn(row);
            QVERIFY(!copied.isEmpty() && !copied.contains(u'…'));
            QVERIFY(text.contains(copied));
        }
    }

    void a_text_begins_at_the_side_of_its_script()
    {
        for (const auto &[text, isFromRight] : QMap<QString, bool>{{u"שלום abc"_s, true},
                 {u"10:30 مرحبا"_s, true}, {u"abc שלום"_s, false},
                 {u"买牛奶"_s, false}}.asKeyValueRange()) {
            RowContent content;
            content.text = text;
            const RowLayout row(content, 340, NoteStyle::palette(false));
            const QTextLine line = row.text().lineAt(0);
            const bool isAtRight = line.naturalTextRect().right() > line.x() + line.width() - 2;
            const bool isAtLeft = line.naturalTextRect().left() < line.x() + 2;
            QCOMPARE(isAtRight, isFromRight);
            QCOMPARE(isAtLeft, !isFromRight);
        }
    }
};

QTEST_MAIN(RowLayoutTest)
#include "tst_rowlayout.moc"
