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
        const Design::Tint texts[] = {Design::text, Design::metaText};
        const Design::Tint highlights[] = {Design::numberText, Design::tagText, Design::matchText,
            Design::destructiveText, Design::focusOutline};
        using Backdrop = FloatingWindow::Backdrop;
        // At worst all that shines through is black, or white.
        const auto over = [](const QPalette &palette, Backdrop backdrop, float behind) {
            const QColor ground = FloatingWindow::ground(palette, backdrop);
            const auto mixed = [&](float part) {
                return part * ground.alphaF() + behind * (1 - ground.alphaF());
            };
            return QColor::fromRgbF(mixed(ground.redF()), mixed(ground.greenF()), mixed(ground.blueF()));
        };
        QStringList faults;
        for (const bool isDark : {false, true}) {
            const QPalette palette = NoteStyle::palette(isDark);
            QCOMPARE(NoteStyle::isDark(palette), isDark);
            const double ofSelected = contrast(
                NoteStyle::color(palette, Design::text), NoteStyle::color(palette, Design::selectionGround));
            QVERIFY2(ofSelected >= 4.5, qPrintable(QString::number(ofSelected)));
            const QColor flash = NoteStyle::color(palette, Design::flashGround);
            const QColor quote = NoteStyle::color(palette, Design::quoteGround);
            QList<QColor> grounds{flash, quote};
            for (const Design::Tint ground :
                {Design::ground, Design::fieldGround, Design::editingGround, Design::hoverGround})
                grounds.append(NoteStyle::color(palette, ground));
            for (const Backdrop backdrop : {Backdrop::Sharp, Backdrop::Blurred})
                grounds << over(palette, backdrop, 0) << over(palette, backdrop, 1);
            for (const Design::Tint ground : {Design::hoverGround, Design::editingGround}) // of its row
                QVERIFY(contrast(quote, NoteStyle::color(palette, ground)) > 1.1);
            for (const QColor &ground : grounds) {
                const auto check = [&](Design::Tint tint, double least) {
                    const QColor color = NoteStyle::color(palette, tint);
                    const double found = contrast(color, ground);
                    if (found < least) {
                        faults.append(u"%1 on %2: %3"_s.arg(color.name(), ground.name()).arg(found));
                    }
                };
                for (const Design::Tint text : texts)
                    check(text, 4.5);
                if (ground == flash) // half a second
                    continue;
                if (ground != quote) { // which has one colour
                    for (const Design::Tint highlight : highlights)
                        check(highlight, 3);
                }
            }
        }
        QVERIFY2(faults.isEmpty(), qPrintable(faults.join(u'\n')));
    }
};

QTEST_MAIN(LooksTest)
#include "tst_looks.moc"
