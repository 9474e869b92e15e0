#include "ui/ReminderBar.h"

#include "foundation/Clock.h"
#include "text/L10n.h"
#include "text/NoteFormatting.h"
#include "ui/BarButton.h"
#include "ui/Design.h"
#include "ui/NoteStyle.h"
#include "ui/Symbol.h"

#include <QHBoxLayout>
#include <QPainter>

ReminderBar::ReminderBar(const Clock &clock, QWidget *parent)
    : QWidget(parent)
    , m_clock(clock)
{
    setObjectName(QStringLiteral("reminderBar"));
    setFixedHeight(Design::barHeight);
    setVisible(false);

    auto *dismiss = new BarButton(QStringLiteral("xmark"), L10n::text("本次不创建提醒"), this);
    dismiss->setObjectName(QStringLiteral("dismissReminder"));
    dismiss->setFocusPolicy(Qt::NoFocus);
    connect(dismiss, &BarButton::clicked, this, &ReminderBar::dismissed);

    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, Design::edge, 0);
    layout->addStretch();
    layout->addWidget(dismiss);
}

void ReminderBar::setPreview(const std::optional<ParsedReminder> &preview)
{
    if (preview) {
        const Instant now = m_clock.now();
        m_text = preview->fireAt > now
                     ? NoteFormatting::reminderTimeString(preview->fireAt, now, m_clock.calendar())
                           + QStringLiteral(" · ") + preview->content
                     : L10n::text("时间已过，回车仅保存笔记");
        setAccessibleName(m_text);
        update();
    }
    setVisible(preview.has_value());
}

void ReminderBar::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    const QColor color = NoteStyle::metaColor(palette());
    const QRect symbol(Design::edge + Design::grid, (height() - Design::symbolSize) / 2, Design::symbolSize,
        Design::symbolSize);
    Symbol::paint(painter, symbol, QStringLiteral("bell"), color);

    const QRect place =
        rect().adjusted(symbol.right() + 2 * Design::grid, 0, -Design::edge - Design::buttonSize, 0);
    painter.setFont(NoteStyle::quoteFont());
    painter.setPen(color);
    painter.drawText(place, Qt::AlignVCenter | Qt::TextSingleLine,
        painter.fontMetrics().elidedText(m_text, Qt::ElideRight, place.width()));
}
