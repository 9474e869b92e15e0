#include "ui/panel/PermissionBanner.h"

#include "text/L10n.h"
#include "ui/looks/Design.h"
#include "ui/looks/NoteStyle.h"
#include "ui/looks/Symbol.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>

PermissionBanner::PermissionBanner(QWidget *parent)
    : QWidget(parent)
{
    setObjectName(QStringLiteral("permissionBanner"));
    m_text =
        new QLabel(L10n::text("通知权限未开启，到点不会弹通知。请到 系统设置 → 通知 → Quillet 开启。"), this);
    m_text->setTextFormat(Qt::PlainText);
    m_text->setFont(NoteStyle::quoteFont());
    m_text->setWordWrap(true);
    colour();
    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(
        2 * Design::edge + Design::symbolSize, Design::grid, Design::edge, 2 * Design::grid);
    layout->addWidget(m_text);
}

void PermissionBanner::colour()
{
    QPalette colors;
    colors.setColor(QPalette::WindowText, NoteStyle::destructiveColor(palette()));
    m_text->setPalette(colors);
}

void PermissionBanner::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::PaletteChange && m_text)
        colour();
}

void PermissionBanner::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    Symbol::paint(painter,
        {Design::edge, (height() - Design::symbolSize) / 2, Design::symbolSize, Design::symbolSize},
        QStringLiteral("bell.slash"), NoteStyle::destructiveColor(palette()));
}
