#include "ui/looks/CapsuleButton.h"

#include "ui/looks/Design.h"
#include "ui/looks/NoteStyle.h"

#include <QPainter>

CapsuleButton::CapsuleButton(const QString &text, Kind kind, QWidget *parent)
    : QPushButton(text, parent)
    , m_kind(kind)
{
    setFont(NoteStyle::font());
    setAutoDefault(true); // for Return
    const bool isFlat = kind == Kind::Flat;
    setFixedHeight(isFlat ? Design::flatButtonHeight : Design::fieldHeight);
    setMinimumWidth(fontMetrics().horizontalAdvance(text) + (isFlat ? 2 : 4) * Design::edge);
}

void CapsuleButton::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const auto color = [this](Design::Tint tint) { return NoteStyle::color(palette(), tint); };
    const bool isFlat = m_kind == Kind::Flat;
    if (hasFocus())
        painter.setPen(QPen(color(Design::focusOutline), Design::focusWidth));
    else
        painter.setPen(isFlat ? QPen(Qt::NoPen) : QPen(color(Design::hairline)));
    if (isDown())
        painter.setBrush(color(Design::editingGround));
    else if (isEnabled() && underMouse())
        painter.setBrush(color(Design::hoverGround));
    else if (isEnabled() && !isFlat)
        painter.setBrush(color(Design::fieldGround));
    const qreal inset = painter.pen().widthF() / 2;
    const QRectF capsule = QRectF(rect()).adjusted(inset, inset, -inset, -inset);
    painter.drawRoundedRect(capsule, capsule.height() / 2, capsule.height() / 2);
    painter.setPen(color(!isEnabled()                  ? Design::metaText
                         : m_kind == Kind::Destructive ? Design::destructiveText
                         : isFlat                      ? Design::tagText
                                                       : Design::text));
    painter.drawText(rect(), Qt::AlignCenter, text());
}
