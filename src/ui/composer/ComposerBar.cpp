#include "ui/composer/ComposerBar.h"

#include "ui/looks/BarButton.h"
#include "ui/looks/Design.h"
#include "ui/looks/NoteStyle.h"
#include "ui/looks/Symbol.h"
#include "ui/looks/WidgetRole.h"

#include <QHBoxLayout>
#include <QPainter>

ComposerBar::ComposerBar(const QString &symbol, const QString &dismissHelp, QWidget *parent)
    : QWidget(parent)
    , m_symbol(symbol)
{
    setFixedHeight(Design::barHeight);
    setVisible(false);
    WidgetRole::set(*this, QAccessible::Notification);
    auto *dismiss = new BarButton(QStringLiteral("xmark"), dismissHelp, this);
    dismiss->setObjectName(QStringLiteral("dismiss"));
    dismiss->setFocusPolicy(Qt::NoFocus);
    connect(dismiss, &BarButton::clicked, this, &ComposerBar::dismissed);
    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, Design::edge, 0);
    layout->addStretch();
    layout->addWidget(dismiss);
}

void ComposerBar::setText(const QString &title, const QString &content)
{
    const bool isNews = isVisible() && title != m_title;
    m_title = title;
    m_text = content.isEmpty() ? title : title + QStringLiteral(" · ") + content;
    setAccessibleName(m_text);
    update();
    if (isNews)
        WidgetRole::announce(*this, QAccessible::ObjectShow);
}

void ComposerBar::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    const QColor color = NoteStyle::color(palette(), Design::metaText);
    const QRect symbol(Design::edge + Design::grid, (height() - Design::symbolSize) / 2, Design::symbolSize,
        Design::symbolSize);
    Symbol::paint(painter, symbol, m_symbol, color);
    const QRect textRect =
        rect().adjusted(symbol.right() + 2 * Design::grid, 0, -Design::edge - Design::buttonSize, 0);
    painter.setFont(NoteStyle::quoteFont());
    painter.setPen(color);
    NoteStyle::drawLine(painter, textRect, m_text.simplified());
}
