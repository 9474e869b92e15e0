#include "ui/looks/NoteStyle.h"

#include "ui/looks/Design.h"

#include <QApplication>

namespace {
QColor byAppearance(const QPalette &palette, QColor light, QColor dark)
{
    return NoteStyle::isDark(palette) ? dark : light;
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
    made.setColor(QPalette::Window, isDark ? Qt::black : Qt::white); // by which the colours below are chosen
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
    return byAppearance(palette, QColor(0x26, 0x28, 0x2c), QColor(0xe6, 0xe7, 0xea));
}

QColor NoteStyle::metaColor(const QPalette &palette)
{
    return byAppearance(palette, QColor(0x60, 0x64, 0x6c), QColor(0xa6, 0xab, 0xb4));
}

QColor NoteStyle::background(const QPalette &palette)
{
    return byAppearance(palette, QColor(0xfa, 0xfa, 0xf8), QColor(0x24, 0x26, 0x2a));
}

QColor NoteStyle::fieldColor(const QPalette &palette)
{
    return byAppearance(palette, QColor(0xff, 0xff, 0xff), QColor(0x30, 0x33, 0x38));
}

QColor NoteStyle::quoteGround(const QPalette &palette)
{
    return byAppearance(palette, QColor(0xf0, 0xf0, 0xed), QColor(0x30, 0x33, 0x38));
}

QColor NoteStyle::hover(const QPalette &palette)
{
    return byAppearance(palette, QColor(0xf1, 0xf1, 0xee), QColor(0x2f, 0x32, 0x38));
}

QColor NoteStyle::hairline(const QPalette &palette)
{
    return byAppearance(palette, QColor(0xd9, 0xd9, 0xd5), QColor(0x3d, 0x40, 0x46));
}

QColor NoteStyle::editing(const QPalette &palette)
{
    return byAppearance(palette, QColor(0xec, 0xf2, 0xf9), QColor(0x2c, 0x36, 0x42));
}

QColor NoteStyle::flash(const QPalette &palette)
{
    return byAppearance(palette, QColor(0xff, 0xee, 0xc4), QColor(0x45, 0x3c, 0x22));
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
