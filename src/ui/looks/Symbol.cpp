#include "ui/looks/Symbol.h"

#include <QFile>
#include <QPainter>
#include <QPixmapCache>
#include <QSvgRenderer>

namespace {
/// The files are black; the colour is replaced before rendering.
QByteArray coloured(const QString &name, const QColor &color)
{
    QFile file(QStringLiteral(":/symbols/%1.svg").arg(name));
    if (!file.open(QIODevice::ReadOnly))
        qFatal("no symbol named %s", qPrintable(name));
    return file.readAll().replace("#000", color.name().toLatin1());
}
} // namespace

void Symbol::paint(QPainter &painter, const QRect &rect, const QString &name, const QColor &color)
{
    const qreal ratio = painter.device()->devicePixelRatioF();
    const QString key = QStringLiteral("%1 %2 %3 %4").arg(name, color.name()).arg(rect.width()).arg(ratio);
    QPixmap pixmap;
    if (!QPixmapCache::find(key, &pixmap)) {
        pixmap = QPixmap(rect.size() * ratio);
        pixmap.fill(Qt::transparent);
        QPainter onPixmap(&pixmap);
        QSvgRenderer(coloured(name, color)).render(&onPixmap);
        onPixmap.end();
        pixmap.setDevicePixelRatio(ratio);
        QPixmapCache::insert(key, pixmap);
    }
    painter.drawPixmap(rect.topLeft(), pixmap);
}

QIcon Symbol::icon(const QString &name, const QColor &color, const QList<int> &sizes)
{
    QSvgRenderer renderer(coloured(name, color));
    QIcon icon;
    for (const int size : sizes) {
        QPixmap pixmap(size, size);
        pixmap.fill(Qt::transparent);
        QPainter painter(&pixmap);
        renderer.render(&painter);
        painter.end();
        icon.addPixmap(pixmap);
    }
    return icon;
}
