#pragma once

#include <QImage>

#include <functional>

class QPainter;
class QWidget;

/// Caches what is drawn of a widget until its size, scale or palette changes: drawing rounded lines anew
/// takes a noticeable part of the time in which the panel opens.
class CachedImage final
{
public:
    /// @p draw paints in the widget's coordinates, on @p ground.
    void paint(QPainter &painter, const QWidget &widget, const QColor &ground,
        const std::function<void(QPainter &)> &draw);

private:
    QImage m_image;
    qint64 m_paletteKey = 0;
};
