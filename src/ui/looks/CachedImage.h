#pragma once

#include <QImage>

#include <functional>

class QPainter;
class QWidget;

/// A part of a widget that is drawn once and kept until the widget's size, scale or palette change: rounded
/// lines would take a good part of the time in which the panel opens.
class CachedImage final
{
public:
    /// @p draw paints it in the widget's own coordinates, on @p ground.
    void paint(QPainter &painter, const QWidget &widget, const QColor &ground,
        const std::function<void(QPainter &)> &draw);

private:
    QImage m_image;
    qint64 m_paletteKey = 0;
};
