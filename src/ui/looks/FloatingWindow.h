#pragma once

#include "ui/looks/CachedImage.h"

#include <QRect>

class QColor;
class QPainter;
class QPalette;
class QRegion;
class QWidget;

/// The frame of a floating window: rounded corners and a hairline; with a compositor also a shadow and a
/// slightly translucent ground. Without one the window is masked to its shape.
class FloatingFrame final
{
public:
    /// What the desktop shows through a translucent window.
    enum class Backdrop { None, Sharp, Blurred };

    /// Nearly opaque, so that text stays readable on any background.
    [[nodiscard]] static QColor ground(const QPalette &palette, Backdrop backdrop);

    struct Shape {
        int radius;
        int shadow;           ///< its width
        bool isSolid = false; ///< with an opaque ground
    };

    /// Sets the window's attributes; to be created before the window is shown.
    FloatingFrame(QWidget &window, Backdrop backdrop, Shape shape);

    [[nodiscard]] Backdrop backdrop() const { return m_backdrop; }
    [[nodiscard]] int margin() const; ///< from the window's edge to the frame's: room for the shadow
    [[nodiscard]] QRect inside() const;
    /// The area within the rounded corners, in device pixels.
    [[nodiscard]] QRegion outline(qreal devicePixelRatio) const;

    void windowDidResize();
    void paint(QPainter &painter);

private:
    void paintShadow(QPainter &painter) const;

    QWidget &m_window;
    Backdrop m_backdrop;
    Shape m_shape;
    CachedImage m_image;
};
