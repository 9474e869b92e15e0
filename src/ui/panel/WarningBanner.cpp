#include "ui/panel/WarningBanner.h"

#include "ui/looks/Design.h"
#include "ui/looks/NoteStyle.h"
#include "ui/looks/Symbol.h"
#include "ui/looks/WidgetRole.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>

WarningBanner::WarningBanner(const QString &symbol, const QString &text, QWidget *parent)
    : QWidget(parent)
    , m_symbol(symbol)
    , m_text(new QLabel(text, this))
{
    setAccessibleName(text);
    WidgetRole::set(*this, QAccessible::Notification);
    m_text->setTextFormat(Qt::PlainText);
    m_text->setFont(NoteStyle::quoteFont());
    m_text->setWordWrap(true);
    applyColor();
    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(
        2 * Design::edge + Design::symbolSize, Design::grid, Design::edge, 2 * Design::grid);
    layout->addWidget(m_text);
}

void WarningBanner::applyColor()
{
    QPalette colors;
    colors.setColor(QPalette::WindowText, NoteStyle::color(palette(), Design::destructiveText));
    m_text->setPalette(colors);
}

void WarningBanner::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::PaletteChange && m_text)
        applyColor();
}

void WarningBanner::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    Symbol::paint(painter,
        {Design::edge, (height() - Design::symbolSize) / 2, Design::symbolSize, Design::symbolSize}, m_symbol,
        NoteStyle::color(palette(), Design::destructiveText));
}
