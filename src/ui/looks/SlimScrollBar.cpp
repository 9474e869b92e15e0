#include "ui/looks/SlimScrollBar.h"

#include "ui/looks/Design.h"
#include "ui/looks/NoteStyle.h"

#include <QPainter>
#include <QStyle>
#include <QStyleOptionSlider>

SlimScrollBar::SlimScrollBar(QWidget *parent)
    : QScrollBar(Qt::Vertical, parent)
{
}

QSize SlimScrollBar::sizeHint() const
{
    return {2 * Design::grid, QScrollBar::sizeHint().height()};
}

void SlimScrollBar::paintEvent(QPaintEvent *)
{
    if (minimum() == maximum())
        return;
    QStyleOptionSlider option;
    initStyleOption(&option);
    const QRectF handle =
        style()->subControlRect(QStyle::CC_ScrollBar, &option, QStyle::SC_ScrollBarSlider, this);
    QPainter painter(this);
    NoteStyle::fillRounded(
        painter, handle.adjusted(2, 0, -2, 0), 2, NoteStyle::color(palette(), Design::hairline));
}
