#pragma once

#include "ui/looks/CachedImage.h"

#include <QRect>

class QColor;
class QPainter;
class QPalette;
class QRegion;
class QWidget;

/// The looks of a floating window: rounded corners and a hairline; where the desktop puts windows together
/// also a shadow, and a ground that lets a little shine through. Elsewhere the window is cut out of its
/// rectangle.
class FloatingFrame final
{
public:
    /// What the desktop can show behind the window.
    enum class Backdrop { None, Sharp, Blurred };

    /// Nearly opaque, so that text stays readable over whatever shines through.
    [[nodiscard]] static QColor ground(const QPalette &palette, Backdrop backdrop);

    struct Shape {
        int radius;
        int shadow;           ///< how far it reaches
        bool isSolid = false; ///< nothing shines through the ground
    };

    /// Sets the window's attributes, so it is made before the window is shown.
    FloatingFrame(QWidget &window, Backdrop backdrop, Shape shape);

    [[nodiscard]] Backdrop backdrop() const { return m_backdrop; }
    [[nodiscard]] int margin() const; ///< from the window's edge to the frame's: room for the shadow
    [[nodiscard]] QRect inside() const;
    /// What is within the rounded corners, in device pixels.
    [[nodiscard]] QRegion outline(qreal devicePixelRatio) const;

    void windowDidResize();
    void paint(QPainter &painter);

private:
    void paintShadow(QPainter &painter) const;

    QWidget &m_window;
    Backdrop m_backdrop;
    Shape m_shape;
    CachedImage m_picture;
};
