#include "ui/NoteStyle.h"

#include "ui/Design.h"

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
    return byAppearance(palette, QColor(0x6a, 0x6e, 0x76), QColor(0x9a, 0x9f, 0xa8));
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
    return byAppearance(palette, QColor(0xf1, 0xf1, 0xee), QColor(0x2b, 0x2e, 0x33));
}

QColor NoteStyle::hairline(const QPalette &palette)
{
    return byAppearance(palette, QColor(0xd9, 0xd9, 0xd5), QColor(0x3d, 0x40, 0x46));
}

QColor NoteStyle::editing(const QPalette &palette)
{
    return byAppearance(palette, QColor(0xe8, 0xef, 0xf7), QColor(0x2c, 0x36, 0x42));
}

QColor NoteStyle::flash(const QPalette &palette)
{
    return byAppearance(palette, QColor(0xff, 0xe9, 0xb0), QColor(0x5a, 0x4c, 0x26));
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
