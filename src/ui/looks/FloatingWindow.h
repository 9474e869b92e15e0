#pragma once

#include "ui/looks/CachedImage.h"

#include <QWidget>

/// A window without the desktop's frame: rounded corners and a hairline; with a compositor also a shadow and
/// a slightly translucent ground. Without one the window is masked to its shape.
class FloatingWindow : public QWidget
{
    Q_OBJECT

public:
    /// What the desktop shows through a translucent window.
    enum class Backdrop { None, Sharp, Blurred };

    /// Nearly opaque, so that text stays readable on any background.
    [[nodiscard]] static QColor ground(const QPalette &palette, Backdrop backdrop);
    /// For a window over that of @p widget, which is translucent if that is.
    [[nodiscard]] static Backdrop backdropOver(const QWidget &widget);

    struct Shape {
        int radius;
        int shadow;           ///< its width
        bool isSolid = false; ///< with an opaque ground
    };

    FloatingWindow(Qt::WindowFlags flags, Backdrop backdrop, Shape shape, QWidget *parent = nullptr);

    [[nodiscard]] Backdrop backdrop() const { return m_backdrop; }
    [[nodiscard]] int margin() const; ///< from the window's edge to what is seen of it: room for the shadow
    /// The area within the rounded corners, in device pixels.
    [[nodiscard]] QRegion outline(qreal devicePixelRatio) const;

protected:
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    [[nodiscard]] QRect inside() const; ///< the margin
    void paintShadow(QPainter &painter) const;

    Backdrop m_backdrop;
    Shape m_shape;
    CachedImage m_image;
};
