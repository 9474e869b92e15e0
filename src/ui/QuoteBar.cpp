#include "ui/QuoteBar.h"

#include "text/L10n.h"
#include "ui/BarButton.h"
#include "ui/Design.h"
#include "ui/NoteStyle.h"
#include "ui/Symbol.h"

#include <QHBoxLayout>
#include <QPainter>

QuoteBar::QuoteBar(QWidget *parent)
    : QWidget(parent)
{
    setObjectName(QStringLiteral("quoteBar"));
    setFixedHeight(Design::barHeight);
    setVisible(false);
    auto *dismiss = new BarButton(QStringLiteral("xmark"), L10n::text("取消引用"), this);
    dismiss->setObjectName(QStringLiteral("dismissQuote"));
    dismiss->setFocusPolicy(Qt::NoFocus);
    connect(dismiss, &BarButton::clicked, this, &QuoteBar::dismissed);
    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, Design::edge, 0);
    layout->addStretch();
    layout->addWidget(dismiss);
}

void QuoteBar::setText(const QString &text)
{
    m_text = text.simplified();
    setAccessibleName(m_text);
    update();
}

void QuoteBar::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    const QColor color = NoteStyle::metaColor(palette());
    const QRect symbol(Design::edge + Design::grid, (height() - Design::symbolSize) / 2, Design::symbolSize,
        Design::symbolSize);
    Symbol::paint(painter, symbol, QStringLiteral("text.quote"), color);
    const QRect place =
        rect().adjusted(symbol.right() + 2 * Design::grid, 0, -Design::edge - Design::buttonSize, 0);
    painter.setFont(NoteStyle::quoteFont());
    painter.setPen(color);
    painter.drawText(place, Qt::AlignVCenter | Qt::TextSingleLine,
        painter.fontMetrics().elidedText(m_text, Qt::ElideRight, place.width()));
}
