// The panel can be read on the screen and by a screen reader.
#include "ui/TestPanel.h"
#include "ui/looks/FloatingWindow.h"
#include "ui/looks/NoteStyle.h"

#include <QAccessible>
#include <QMetaEnum>

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

/// "role name" of all that is under it.
QStringList described(QAccessibleInterface *interface)
{
    if (!interface)
        return {};
    static const QMetaEnum roles = QMetaEnum::fromType<QAccessible::Role>();
    QStringList all{
        QString::fromLatin1(roles.valueToKey(interface->role())) + u' ' + interface->text(QAccessible::Name)};
    for (int i = 0; i < interface->childCount(); ++i)
        all += described(interface->child(i));
    return all;
}
} // namespace

class LooksTest final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void text_stands_out_from_its_ground()
    {
        const Design::Tint texts[] = {Design::text, Design::metaText};
        const Design::Tint highlights[] = {
            Design::numberText, Design::tagText, Design::matchText, Design::destructiveText};
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
            const QColor flash = NoteStyle::color(palette, Design::flashGround);
            QList<QColor> grounds{flash};
            for (const Design::Tint ground : {Design::ground, Design::fieldGround, Design::editingGround,
                     Design::hoverGround, Design::quoteGround})
                grounds.append(NoteStyle::color(palette, ground));
            for (const Backdrop backdrop : {Backdrop::Sharp, Backdrop::Blurred})
                grounds << over(palette, backdrop, 0) << over(palette, backdrop, 1);
            for (const QColor &ground : grounds) {
                const auto check = [&](Design::Tint tint, double least) {
                    const QColor color = NoteStyle::color(palette, tint);
                    const double found = contrast(color, ground);
                    if (found < least) {
                        faults.append(
                            QStringLiteral("%1 on %2: %3").arg(color.name(), ground.name()).arg(found));
                    }
                };
                for (const Design::Tint text : texts)
                    check(text, 4.5);
                if (ground != flash) { // half a second
                    for (const Design::Tint highlight : highlights)
                        check(highlight, 3);
                }
            }
        }
        QVERIFY2(faults.isEmpty(), qPrintable(faults.join(u'\n')));
    }

    void screen_readers_find_the_field_the_buttons_and_the_rows()
    {
        TestPanel panel;
        panel.notes.add(u"买牛奶 #家"_s);
        const QStringList all = described(QAccessible::queryAccessibleInterface(&panel.window));
        for (const QString &expected : {u"EditableText 输入即筛选，回车保存"_s, u"CheckBox 标签"_s,
                 u"CheckBox 提醒"_s, u"CheckBox 回收站"_s, u"List 笔记"_s, u"ListItem 买牛奶 #家"_s,
                 u"ListItem 今天 · 3月2日 星期一"_s})
            QVERIFY2(all.contains(expected), qUtf8Printable(expected + u" is not in\n"_s + all.join(u'\n')));
    }
};

QTEST_MAIN(LooksTest)
#include "tst_looks.moc"
