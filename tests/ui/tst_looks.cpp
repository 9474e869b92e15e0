// Texts can be read on the screen.
#include "ui/looks/FloatingWindow.h"
#include "ui/looks/NoteStyle.h"

#include <QTest>

using namespace Qt::StringLiterals;

namespace {
double luminance(QColor color)
{
    const auto linear = [](float part) {
        return part <= 0.03928F ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) + 0.0722 * linear(color.blueF());
}

double contrast(QColor a, QColor b)
{
    const double first = luminance(a);
    const double second = luminance(b);
    return (std::max(first, second) + 0.05) / (std::min(first, second) + 0.05);
}

} // namespace

class LooksTest final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void text_stands_out_from_its_ground()
    {
        using Tints = QList<Design::Tint>;
        using Backdrop = FloatingWindow::Backdrop;
        const Tints texts{Design::text, Design::metaText};
        const Tints highlights{Design::numberText, Design::tagText, Design::matchText,
            Design::destructiveText, Design::focusOutline};
        QStringList faults;
        for (const bool isDark : {false, true}) {
            const QPalette palette = NoteStyle::palette(isDark);
            QCOMPARE(NoteStyle::isDark(palette), isDark);
            const auto color = [&](Design::Tint tint) { return NoteStyle::color(palette, tint); };
            const auto check = [&](const Tints &tints, QColor ground, double least) {
                for (const Design::Tint tint : tints) {
                    if (const double found = contrast(color(tint), ground); found < least)
                        faults.append(u"%1 on %2: %3"_s.arg(color(tint).name(), ground.name()).arg(found));
                }
            };
            QList<QColor> grounds{color(Design::ground), color(Design::fieldGround),
                color(Design::editingGround), color(Design::hoverGround)};
            for (const Backdrop backdrop : {Backdrop::Sharp, Backdrop::Blurred}) {
                const QColor ground = FloatingWindow::ground(palette, backdrop);
                for (const float behind : {0, 1}) { // at worst all that shines through is black, or white
                    const auto mixed = [&](float part) {
                        return part * ground.alphaF() + behind * (1 - ground.alphaF());
                    };
                    grounds.append(QColor::fromRgbF(
                        mixed(ground.redF()), mixed(ground.greenF()), mixed(ground.blueF())));
                }
            }
            for (const QColor &ground : std::as_const(grounds)) {
                check(texts, ground, 4.5);
                check(highlights, ground, 3);
            }
            check({Design::text}, color(Design::selectionGround), 4.5);
            check(texts, color(Design::flashGround), 4.5);                                 // half a second
            check(texts, color(Design::quoteGround), 4.5);                                 // has one colour
            for (const Design::Tint ground : {Design::hoverGround, Design::editingGround}) // of its row
                QVERIFY(contrast(color(Design::quoteGround), color(ground)) > 1.1);
        }
        QVERIFY2(faults.isEmpty(), qPrintable(faults.join(u'\n')));
    }
};

QTEST_MAIN(LooksTest)
#include "tst_looks.moc"
