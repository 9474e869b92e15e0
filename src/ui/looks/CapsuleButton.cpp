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
    painter.setPen(NoteStyle::color(palette(), hasFocus() ? Design::tagText : Design::hairline));
    painter.setBrush(isDown()      ? NoteStyle::color(palette(), Design::editingGround)
                     : isPointedAt ? NoteStyle::color(palette(), Design::hoverGround)
                     : isEnabled() ? QBrush(NoteStyle::color(palette(), Design::fieldGround))
                                   : QBrush(Qt::NoBrush));
    painter.drawRoundedRect(capsule, capsule.height() / 2, capsule.height() / 2);
    painter.setPen(NoteStyle::color(palette(), isEnabled() ? Design::destructiveText : Design::metaText));
    painter.drawText(rect(), Qt::AlignCenter, text());
}
