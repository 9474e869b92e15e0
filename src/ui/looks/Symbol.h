#pragma once

#include <QColor>
#include <QIcon>
#include <QString>

class QPainter;
class QRect;

/// Quillet's own symbols: one colour on a transparent ground, which is replaced by the colour asked for. The
/// tray's symbol has colours of its own.
namespace Symbol {
/// @p name is a file under resources/symbols, without the extension.
void paint(QPainter &painter, const QRect &rect, const QString &name, const QColor &color);

[[nodiscard]] QIcon icon(const QString &name, const QColor &color, const QList<int> &sizes);
} // namespace Symbol
