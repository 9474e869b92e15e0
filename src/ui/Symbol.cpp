#include "ui/Symbol.h"

#include <QFile>
#include <QPainter>
#include <QSvgRenderer>

namespace {
/// The symbols are written in black; their colour is put in before they are drawn.
QByteArray coloured(const QString &name, const QColor &color)
{
    QFile file(QStringLiteral(":/symbols/%1.svg").arg(name));
    if (!file.open(QIODevice::ReadOnly))
        qFatal("no symbol named %s", qPrintable(name));
    return file.readAll().replace("#000", color.name().toLatin1());
}
} // namespace

void Symbol::paint(QPainter &painter, const QRectF &rect, const QString &name, const QColor &color)
{
    QSvgRenderer(coloured(name, color)).render(&painter, rect);
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
