#pragma once

#include <QColor>
#include <QIcon>
#include <QString>

class QPainter;
class QRect;

/// Quillet's own symbols, each one colour on a clear ground, drawn in the colour of the text they stand
/// beside; but for the one of the tray, which brings its colours.
namespace Symbol {
/// @p name is a file under resources/symbols, without its ending.
void paint(QPainter &painter, const QRect &rect, const QString &name, const QColor &color);

[[nodiscard]] QIcon icon(const QString &name, const QColor &color, const QList<int> &sizes);
} // namespace Symbol
