#pragma once

#include "text/NoteHighlighting.h"
#include "ui/looks/Design.h"

#include <QColor>
#include <QFont>
#include <QPalette>

class QLabel;
class QPainter;
class QRect;
class QRectF;
class QWidget;

/// The colours and fonts of the panel, and the shapes that all its parts are painted with.
namespace NoteStyle {
[[nodiscard]] bool isDark(const QPalette &palette);
/// For what Qt paints itself: fields, menus, dialogs.
[[nodiscard]] QPalette palette(bool isDark);

/// In the appearance of the palette.
[[nodiscard]] QColor color(const QPalette &palette, Design::Tint tint);
/// The colour of a kind of segment; invalid where the row's own colour applies.
[[nodiscard]] QColor segmentColor(NoteHighlighting::SegmentKind kind, const QPalette &palette);

// With the typeface of the interface language.
[[nodiscard]] QFont font();       ///< 13
[[nodiscard]] QFont headerFont(); ///< 13, bold
[[nodiscard]] QFont quoteFont();  ///< 11
/// With the typeface of the text, where that is of another language.
[[nodiscard]] QFont fontFor(QStringView text, const QFont &font);

/// One line, elided to the width of @p rect, in the typeface of the text.
void drawLine(
    QPainter &painter, const QRect &rect, const QString &text, Qt::Alignment alignment = Qt::AlignLeft);
/// Plain text, in as many lines as it needs.
[[nodiscard]] QLabel *newLabel(const QString &text, const QFont &font, QWidget *parent);
/// A ground with round corners and no outline.
void fillRounded(QPainter &painter, const QRectF &rect, int radius, const QColor &color);
/// Around what has the focus.
void outlineFocus(QPainter &painter, const QRectF &rect, int radius, const QPalette &palette);
} // namespace NoteStyle
