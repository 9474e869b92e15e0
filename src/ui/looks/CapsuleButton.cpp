#include "ui/looks/CapsuleButton.h"

#include "ui/looks/Design.h"
#include "ui/looks/NoteStyle.h"

#include <QPainter>

CapsuleButton::CapsuleButton(const QString &text, QWidget *parent)
    : QPushButton(text, parent)
{
    setFont(NoteStyle::font());
    setFixedSize(fontMetrics().horizontalAdvance(text) + 4 * Design::edge, Design::fieldHeight);
}

void CapsuleButton::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF capsule = QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5);
    const bool isPointedAt = isEnabled() && underMouse();
    painter.setPen(hasFocus() ? NoteStyle::tagColor(palette()) : NoteStyle::hairline(palette()));
    painter.setBrush(isDown()      ? NoteStyle::editing(palette())
                     : isPointedAt ? NoteStyle::hover(palette())
                     : isEnabled() ? QBrush(NoteStyle::fieldColor(palette()))
                                   : QBrush(Qt::NoBrush));
    painter.drawRoundedRect(capsule, capsule.height() / 2, capsule.height() / 2);
    painter.setPen(isEnabled() ? NoteStyle::destructiveColor(palette()) : NoteStyle::metaColor(palette()));
    painter.drawText(rect(), Qt::AlignCenter, text());
}
