#include "ui/looks/NoteStyle.h"

#include "ui/looks/Design.h"

#include <QApplication>

namespace {
QColor byAppearance(const QPalette &palette, QColor light, QColor dark)
{
    return NoteStyle::isDark(palette) ? dark : light;
}

QColor byAppearance(const QPalette &palette, Design::Tint tint)
{
    return byAppearance(palette, QColor(tint.light), QColor(tint.dark));
}

QFont systemFont(int pixelSize)
{
    QFont font = QApplication::font();
    font.setPixelSize(pixelSize);
    return font;
}
} // namespace

bool NoteStyle::isDark(const QPalette &palette)
{
    return palette.color(QPalette::Window).lightnessF() < 0.5;
}

QPalette NoteStyle::palette(bool isDark)
{
    QPalette made;
    made.setColor(
        QPalette::Window, isDark ? Qt::black : Qt::white); // decides which colours the functions below return
    const QPalette appearance = made;
    const QColor text = color(appearance);
    const QColor faint = metaColor(appearance);
    for (const auto role :
        {QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::ToolTipText})
        made.setColor(role, text);
    made.setColor(QPalette::PlaceholderText, faint);
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        made.setColor(QPalette::Disabled, role, faint);
    made.setColor(QPalette::Window, background(appearance));
    made.setColor(QPalette::Base, fieldColor(appearance));
    made.setColor(QPalette::AlternateBase, hover(appearance));
    made.setColor(QPalette::ToolTipBase, fieldColor(appearance));
    made.setColor(QPalette::Button, quoteGround(appearance));
    made.setColor(QPalette::Mid, hairline(appearance));
    made.setColor(QPalette::Highlight, tagColor(appearance));
    made.setColor(QPalette::HighlightedText, background(appearance));
    made.setColor(QPalette::Link, tagColor(appearance));
    return made;
}

QColor NoteStyle::numberColor(const QPalette &palette)
{
    return byAppearance(
        palette, QColor::fromRgbF(0.25F, 0.55F, 0.40F), QColor::fromRgbF(0.46F, 0.65F, 0.52F));
}

QColor NoteStyle::tagColor(const QPalette &palette)
{
    return byAppearance(
        palette, QColor::fromRgbF(0.26F, 0.47F, 0.67F), QColor::fromRgbF(0.52F, 0.63F, 0.75F));
}

QColor NoteStyle::matchColor(const QPalette &palette)
{
    return byAppearance(
        palette, QColor::fromRgbF(0.72F, 0.50F, 0.16F), QColor::fromRgbF(0.86F, 0.68F, 0.38F));
}

QColor NoteStyle::destructiveColor(const QPalette &palette)
{
    return byAppearance(
        palette, QColor::fromRgbF(0.70F, 0.32F, 0.30F), QColor::fromRgbF(0.84F, 0.52F, 0.50F));
}

QColor NoteStyle::color(const QPalette &palette)
{
    return byAppearance(palette, Design::text);
}

QColor NoteStyle::metaColor(const QPalette &palette)
{
    return byAppearance(palette, Design::metaText);
}

QColor NoteStyle::background(const QPalette &palette)
{
    return byAppearance(palette, Design::ground);
}

QColor NoteStyle::fieldColor(const QPalette &palette)
{
    return byAppearance(palette, Design::fieldGround);
}

QColor NoteStyle::quoteGround(const QPalette &palette)
{
    return byAppearance(palette, Design::quoteGround);
}

QColor NoteStyle::hover(const QPalette &palette)
{
    return byAppearance(palette, Design::hoverGround);
}

QColor NoteStyle::hairline(const QPalette &palette)
{
    return byAppearance(palette, Design::hairline);
}

QColor NoteStyle::editing(const QPalette &palette)
{
    return byAppearance(palette, Design::editingGround);
}

QColor NoteStyle::flash(const QPalette &palette)
{
    return byAppearance(palette, Design::flashGround);
}

QColor NoteStyle::segmentColor(NoteHighlighting::SegmentKind kind, const QPalette &palette)
{
    switch (kind) {
    case NoteHighlighting::SegmentKind::Plain:
        return {};
    case NoteHighlighting::SegmentKind::Number:
        return numberColor(palette);
    case NoteHighlighting::SegmentKind::Tag:
        return tagColor(palette);
    case NoteHighlighting::SegmentKind::Match:
        return matchColor(palette);
    }
    Q_UNREACHABLE();
}

QFont NoteStyle::font()
{
    return systemFont(Design::bodySize);
}

QFont NoteStyle::headerFont()
{
    QFont font = systemFont(Design::bodySize);
    font.setBold(true);
    return font;
}

QFont NoteStyle::quoteFont()
{
    return systemFont(Design::smallSize);
}
