#include "ui/looks/CachedImage.h"

#include <QPainter>
#include <QWidget>

void CachedImage::paint(QPainter &painter, const QWidget &widget, const QColor &ground,
    const std::function<void(QPainter &)> &draw)
{
    const qreal ratio = widget.devicePixelRatioF();
    const QSize size = widget.size() * ratio;
    const qint64 paletteKey = widget.palette().cacheKey();
    if (m_image.size() != size || m_image.devicePixelRatio() != ratio || m_paletteKey != paletteKey) {
        m_paletteKey = paletteKey;
        m_image =
            QImage(size, ground.alpha() == 255 ? QImage::Format_RGB32 : QImage::Format_ARGB32_Premultiplied);
        m_image.setDevicePixelRatio(ratio);
        m_image.fill(ground);
        QPainter onImage(&m_image);
        onImage.setRenderHint(QPainter::Antialiasing);
        draw(onImage);
    }
    painter.drawImage(0, 0, m_image);
}
