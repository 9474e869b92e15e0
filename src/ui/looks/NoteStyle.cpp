#include "ui/looks/NoteStyle.h"

#include <QApplication>
#include <QPainter>

namespace {
QColor inAppearance(bool isDark, Design::Tint tint)
{
    return QColor(isDark ? tint.dark : tint.light);
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
    const auto set = [&made, isDark](QPalette::ColorRole role, Design::Tint tint) {
        made.setColor(role, inAppearance(isDark, tint));
    };
    for (const auto role :
        {QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::ToolTipText})
        set(role, Design::text);
    set(QPalette::PlaceholderText, Design::metaText);
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        made.setColor(QPalette::Disabled, role, inAppearance(isDark, Design::metaText));
    set(QPalette::Window, Design::ground);
    set(QPalette::Base, Design::fieldGround);
    set(QPalette::AlternateBase, Design::hoverGround);
    set(QPalette::ToolTipBase, Design::fieldGround);
    set(QPalette::Button, Design::quoteGround);
    set(QPalette::Mid, Design::hairline);
    set(QPalette::Highlight, Design::tagText);
    set(QPalette::HighlightedText, Design::ground);
    set(QPalette::Link, Design::tagText);
    return made;
}

QColor NoteStyle::color(const QPalette &palette, Design::Tint tint)
{
    return inAppearance(isDark(palette), tint);
}

QColor NoteStyle::segmentColor(NoteHighlighting::SegmentKind kind, const QPalette &palette)
{
    switch (kind) {
    case NoteHighlighting::SegmentKind::Plain:
        return {};
    case NoteHighlighting::SegmentKind::Number:
        return color(palette, Design::numberText);
    case NoteHighlighting::SegmentKind::Tag:
        return color(palette, Design::tagText);
    case NoteHighlighting::SegmentKind::Match:
        return color(palette, Design::matchText);
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

void NoteStyle::drawLine(QPainter &painter, const QRect &rect, const QString &text, Qt::Alignment alignment)
{
    painter.drawText(rect, int(alignment | Qt::AlignVCenter) | Qt::TextSingleLine,
        painter.fontMetrics().elidedText(text, Qt::ElideRight, rect.width()));
}

void NoteStyle::fillRounded(QPainter &painter, const QRectF &rect, int radius, const QColor &color)
{
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(color);
    painter.drawRoundedRect(rect, radius, radius);
}
