#include "ui/panel/StatusLine.h"

#include "text/L10n.h"
#include "ui/looks/CapsuleButton.h"
#include "ui/looks/Design.h"
#include "ui/looks/NoteStyle.h"
#include "ui/looks/WidgetRole.h"

#include <QHBoxLayout>
#include <QPainter>

#include <utility>

StatusLine::StatusLine(QWidget *parent)
    : QWidget(parent)
    , m_button(new CapsuleButton(L10n::text("撤销"), CapsuleButton::Kind::Flat, this))
    , m_closing(this)
{
    setObjectName(QStringLiteral("statusLine"));
    setVisible(false);
    setFixedHeight(Design::fieldHeight + 2 * Design::grid);
    WidgetRole::set(*this, QAccessible::Notification);
    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, Design::edge + Design::grid, 2 * Design::grid);
    layout->addWidget(m_button, 0, Qt::AlignRight);
    connect(m_button, &CapsuleButton::clicked, this, &StatusLine::undo);
    m_closing.setSingleShot(true);
    m_closing.setInterval(Design::statusDuration);
    connect(&m_closing, &QTimer::timeout, this, [this] {
        if (underMouse() || hasFocusWithin())
            m_closing.start();
        else
            dismiss();
    });
}

void StatusLine::tell(const QString &text, const std::function<void()> &undo)
{
    dismiss(); // so that screen readers notice a new line
    m_undo = undo;
    m_button->setVisible(bool(undo));
    setAccessibleName(text);
    raise(); // above the lists
    show();
    m_closing.start();
    Q_EMIT covers(height());
}

void StatusLine::undo()
{
    const auto undo = std::exchange(m_undo, {});
    dismiss();
    if (undo)
        undo();
}

void StatusLine::dismiss()
{
    m_undo = {};
    m_closing.stop();
    if (hasFocusWithin())
        Q_EMIT left(); // before hiding it gives the focus to the next in the order of the Tab key
    hide();
    Q_EMIT covers(0);
}

bool StatusLine::hasFocusWithin() const
{
    return m_button->hasFocus();
}

void StatusLine::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF ground =
        QRectF(rect()).adjusted(Design::edge + 0.5, 0.5, -Design::edge - 0.5, -2 * Design::grid - 0.5);
    painter.setPen(NoteStyle::color(palette(), Design::hairline));
    painter.setBrush(NoteStyle::color(palette(), Design::fieldGround));
    painter.drawRoundedRect(ground, Design::rowRadius, Design::rowRadius);
    painter.setFont(NoteStyle::font());
    painter.setPen(NoteStyle::color(palette(), Design::text));
    const int right = m_button->isVisible() ? m_button->x() : int(ground.right());
    NoteStyle::drawLine(painter,
        QRect(2 * Design::edge, int(ground.top()), right - 3 * Design::edge, int(ground.height())),
        accessibleName());
}
