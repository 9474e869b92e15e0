#include "ui/looks/BarButton.h"

#include "ui/looks/Design.h"
#include "ui/looks/NoteStyle.h"
#include "ui/looks/Symbol.h"

#include <QPainter>

BarButton::BarButton(const QString &symbol, const QString &name, QWidget *parent)
    : QToolButton(parent)
    , m_symbol(symbol)
{
    setFixedSize(Design::buttonSize, Design::buttonSize);
    setToolTip(name);
    setAccessibleName(name);
}

void BarButton::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const bool isMarked = isChecked() || isDown();
    if (isMarked || underMouse() || hasFocus()) {
        NoteStyle::fillRounded(painter, rect().adjusted(1, 1, -1, -1), Design::rowRadius,
            NoteStyle::color(palette(), isMarked ? Design::editingGround : Design::hoverGround));
    }
    if (hasFocus()) {
        NoteStyle::outlineFocus(painter, rect().adjusted(1, 1, -1, -1), Design::rowRadius, palette());
    }
    const int inset = (Design::buttonSize - Design::buttonSymbolSize) / 2;
    Symbol::paint(painter, {inset, inset, Design::buttonSymbolSize, Design::buttonSymbolSize}, m_symbol,
        NoteStyle::color(palette(), isMarked || underMouse() ? Design::text : Design::metaText));
}
