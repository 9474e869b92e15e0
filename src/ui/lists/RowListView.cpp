#include "ui/lists/RowListView.h"

#include "ui/lists/RowListAccessible.h"
#include "ui/lists/RowModel.h"
#include "ui/looks/MenuLooks.h"
#include "ui/looks/NoteStyle.h"

#include <QHelpEvent>
#include <QKeyEvent>
#include <QMenu>
#include <QToolTip>

RowListView::RowListView(RowModel &model, QWidget *parent)
    : RowScrollArea(model, parent)
{
}

// The current row

bool RowListView::isEntry(int row) const
{
    return row >= 0 && row < model().rowCount() && !model().isHeader(row);
}

int RowListView::entryFrom(int row, int step) const
{
    while (row >= 0 && row < model().rowCount() && model().isHeader(row))
        row += step;
    return isEntry(row) ? row : -1;
}

int RowListView::nearestEntry(int row, int step) const
{
    const int entry = entryFrom(row, step);
    return entry < 0 ? entryFrom(row - step, -step) : entry;
}

void RowListView::setCurrentRow(int row)
{
    if (m_current == row)
        return;
    m_current = row;
    viewport()->update();
    if (hasFocus())
        RowListAccessible::announceCurrentRow(*this);
}

void RowListView::moveCurrentRow(int row)
{
    setCurrentRow(row);
    if (row >= 0)
        scrollTo(row);
}

bool RowListView::enter()
{
    const int row = entryFrom(firstRowInView(), 1);
    if (row < 0)
        return false;
    moveCurrentRow(row);
    setFocus(Qt::TabFocusReason);
    return true;
}

void RowListView::didInsertRows(int first, int count)
{
    if (m_current >= first)
        m_current += count;
    m_hover = m_pressed = {};
    RowScrollArea::didInsertRows(first, count);
}

void RowListView::didRemoveRows(int first, int count)
{
    m_hover = m_pressed = {};
    RowScrollArea::didRemoveRows(first, count);
    if (m_current >= first + count) {
        m_current -= count;
    } else if (m_current >= first) {
        m_current = -1; // so that the row that follows is announced even under the same number
        setCurrentRow(nearestEntry(first, 1));
        if (hasFocus() && m_current >= 0)
            scrollTo(m_current);
    }
}

void RowListView::focusInEvent(QFocusEvent *event)
{
    RowScrollArea::focusInEvent(event);
    const bool isByTab = event->reason() == Qt::TabFocusReason || event->reason() == Qt::BacktabFocusReason;
    if (isByTab && m_current < 0)
        m_current = entryFrom(firstRowInView(), 1);
    viewport()->update();
    RowListAccessible::announceCurrentRow(*this);
}

void RowListView::focusOutEvent(QFocusEvent *event)
{
    RowScrollArea::focusOutEvent(event);
    if (event->reason() != Qt::PopupFocusReason && event->reason() != Qt::ActiveWindowFocusReason)
        setCurrentRow(-1);
    viewport()->update();
}

// Keys

void RowListView::activateRow(int row)
{
    if (isEntry(row))
        activate(row);
}

void RowListView::showMenuOfRow(int row)
{
    if (isEntry(row))
        popUpMenu(row, viewport()->mapToGlobal(rectOf(row).center()));
}

void RowListView::keyPressEvent(QKeyEvent *event)
{
    if (event->matches(QKeySequence::Copy) && isEntry(m_current)) {
        copy(m_current);
        return;
    }
    const int last = model().rowCount() - 1;
    switch (event->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        activateRow(m_current);
        return;
    case Qt::Key_Delete:
        if (isEntry(m_current))
            remove(m_current);
        return;
    case Qt::Key_Menu:
        showMenuOfRow(m_current);
        return;
    case Qt::Key_Up:
    case Qt::Key_Down: {
        const int step = event->key() == Qt::Key_Up ? -1 : 1;
        const int next = entryFrom(m_current + step, step);
        if (next >= 0)
            moveCurrentRow(next);
        else
            Q_EMIT left();
        return;
    }
    case Qt::Key_Home:
        moveCurrentRow(nearestEntry(0, 1));
        return;
    case Qt::Key_End:
        moveCurrentRow(nearestEntry(last, -1));
        return;
    case Qt::Key_PageUp:
    case Qt::Key_PageDown: {
        const int pages = event->key() == Qt::Key_PageUp ? -1 : 1;
        if (last >= 0)
            moveCurrentRow(nearestEntry(rowPagesAway(std::max(0, m_current), pages), -pages));
        return;
    }
    default:
        event->ignore();
    }
}

// The mouse

RowListView::Hit RowListView::hitAt(QPoint point) const
{
    const int row = rowAt(point);
    if (!isEntry(row))
        return {};
    return {row, layoutOf(row).partAt(point - rectOf(row).topLeft())};
}

RowPainter::Marks RowListView::marksOf(int row) const
{
    QColor ground = groundOf(row);
    if (!ground.isValid() && row == m_current && hasFocus())
        ground = NoteStyle::color(palette(), Design::editingGround);
    else if (!ground.isValid() && row == m_hover.row)
        ground = NoteStyle::color(palette(), Design::hoverGround);
    return {ground, row == m_hover.row ? m_hover.part : RowPart()};
}

void RowListView::setHover(const Hit &hover)
{
    if (hover == m_hover)
        return;
    viewport()->update(rectOf(m_hover.row));
    viewport()->update(rectOf(hover.row));
    m_hover = hover;
    const RowPart::Kind kind = hover.part.kind;
    const bool isLink =
        kind == RowPart::Kind::Quote || kind == RowPart::Kind::Link || kind == RowPart::Kind::Button;
    viewport()->setCursor(isLink ? Qt::PointingHandCursor : Qt::ArrowCursor);
}

void RowListView::mouseMoveEvent(QMouseEvent *event)
{
    setHover(hitAt(event->position().toPoint()));
}

void RowListView::leaveEvent(QEvent *event)
{
    setHover({});
    RowScrollArea::leaveEvent(event);
}

void RowListView::mousePressEvent(QMouseEvent *event)
{
    m_pressed = event->button() == Qt::LeftButton ? hitAt(event->position().toPoint()) : Hit();
}

void RowListView::mouseReleaseEvent(QMouseEvent *event)
{
    const Hit pressed = std::exchange(m_pressed, {});
    if (event->button() == Qt::LeftButton && pressed.row >= 0
        && pressed == hitAt(event->position().toPoint()))
        clickPart(pressed.row, pressed.part);
}

void RowListView::mouseDoubleClickEvent(QMouseEvent *event)
{
    const Hit hit = hitAt(event->position().toPoint());
    if (hit.part.kind == RowPart::Kind::Body)
        activate(hit.row);
}

void RowListView::contextMenuEvent(QContextMenuEvent *event)
{
    if (event->reason() == QContextMenuEvent::Keyboard)
        showMenuOfRow(m_current);
    else if (const int row = rowAt(event->pos()); isEntry(row))
        popUpMenu(row, event->globalPos());
}

void RowListView::popUpMenu(int row, QPoint globalPosition)
{
    if (hasFocus())
        setCurrentRow(row);
    QMenu *menu = MenuLooks::newMenu(this);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    fillMenu(*menu, row);
    MenuLooks::apply(*menu);
    if (!menu->isEmpty())
        menu->popup(globalPosition);
}

bool RowListView::viewportEvent(QEvent *event)
{
    if (event->type() != QEvent::ToolTip)
        return RowScrollArea::viewportEvent(event);
    const auto *help = static_cast<QHelpEvent *>(event);
    const Hit hit = hitAt(help->pos());
    if (hit.part.symbol >= 0) {
        QToolTip::showText(help->globalPos(), model().content(hit.row).symbols[hit.part.symbol].help,
            viewport(), rectOf(hit.row));
    } else {
        QToolTip::hideText();
    }
    return true;
}
