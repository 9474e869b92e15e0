#include "ui/looks/FloatingWindow.h"

#include "ui/looks/Design.h"
#include "ui/looks/NoteStyle.h"

#include <QBitmap>
#include <QMargins>
#include <QPainter>
#include <QPainterPath>
#include <QRegion>

QColor FloatingWindow::ground(const QPalette &palette, Backdrop backdrop)
{
    QColor color = NoteStyle::color(palette, Design::ground);
    switch (backdrop) {
    case Backdrop::None:
        break;
    case Backdrop::Sharp:
        color.setAlphaF(Design::sharpGroundOpacity);
        break;
    case Backdrop::Blurred:
        color.setAlphaF(NoteStyle::isDark(palette) ? Design::blurredDarkGroundOpacity
                                                   : Design::blurredLightGroundOpacity);
        break;
    }
    return color;
}

FloatingWindow::Backdrop FloatingWindow::backdropOver(const QWidget &widget)
{
    return widget.window()->testAttribute(Qt::WA_TranslucentBackground) ? Backdrop::Sharp : Backdrop::None;
}

FloatingWindow::FloatingWindow(Qt::WindowFlags flags, Backdrop backdrop, Shape shape, QWidget *parent)
    : QWidget(parent, flags | Qt::FramelessWindowHint)
    , m_backdrop(backdrop)
    , m_shape(shape)
{
    setAttribute(m_backdrop == Backdrop::None ? Qt::WA_OpaquePaintEvent : Qt::WA_TranslucentBackground);
}

int FloatingWindow::margin() const
{
    return m_backdrop == Backdrop::None ? 0 : m_shape.shadow;
}

QRect FloatingWindow::inside() const
{
    return rect().marginsRemoved(QMargins() + margin());
}

QRegion FloatingWindow::outline(qreal devicePixelRatio) const
{
    QBitmap shape(size() * devicePixelRatio);
    shape.fill(Qt::color0);
    QPainter painter(&shape);
    painter.scale(devicePixelRatio, devicePixelRatio);
    painter.setPen(Qt::NoPen);
    painter.setBrush(Qt::color1);
    painter.drawRoundedRect(inside(), m_shape.radius, m_shape.radius);
    painter.end();
    return QRegion(shape);
}

void FloatingWindow::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    if (m_backdrop == Backdrop::None)
        setMask(outline(1));
}

void FloatingWindow::paintShadow(QPainter &painter) const
{
    // Soft at its edge, and offset downwards as if lit from above.
    constexpr int lower = 3;
    constexpr qreal darkest = 0.10;
    QPainterPath around;
    around.addRect(rect());
    QPainterPath within;
    within.addRoundedRect(inside(), m_shape.radius, m_shape.radius);
    painter.save();
    painter.setClipPath(around - within); // it would darken a translucent ground
    painter.setPen(Qt::NoPen);
    const int reach = m_shape.shadow - lower;
    for (int spread = reach; spread > 0; --spread) {
        const qreal nearness = 1 - qreal(spread) / reach;
        painter.setBrush(QColor::fromRgbF(0, 0, 0, float(darkest * nearness * nearness / 3)));
        painter.drawRoundedRect(QRectF(inside()).adjusted(-spread, -spread + lower, spread, spread + lower),
            m_shape.radius + spread, m_shape.radius + spread);
    }
    painter.restore();
}

void FloatingWindow::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    const bool isOpaque = m_backdrop == Backdrop::None;
    const QColor color = ground(palette(), m_shape.isSolid ? Backdrop::None : m_backdrop);
    m_image.paint(painter, *this, isOpaque ? color : QColor(Qt::transparent), [&](QPainter &image) {
        if (!isOpaque)
            paintShadow(image);
        image.setBrush(isOpaque ? Qt::NoBrush : QBrush(color));
        image.setPen(NoteStyle::color(palette(), Design::hairline));
        image.drawRoundedRect(
            QRectF(inside()).adjusted(0.5, 0.5, -0.5, -0.5), m_shape.radius, m_shape.radius);
    });
}
