#include "ui/lists/RowListView.h"

#include "text/L10n.h"
#include "ui/lists/RowListAccessible.h"
#include "ui/lists/RowModel.h"
#include "ui/looks/MenuLooks.h"
#include "ui/looks/NoteStyle.h"

#include <QApplication>
#include <QClipboard>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QMenu>

RowListView::RowListView(RowModel &model, QWidget *parent)
    : RowScrollArea(model, parent)
    , m_mouse(*this)
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
    clearSelection();
    m_current = row;
    m_currentIndex = model().index(row);
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

void RowListView::goTo(int row)
{
    setCurrentRow(row);
    setFocus();
}

void RowListView::enter()
{
    moveCurrentRow(entryFrom(firstRowInView(), 1));
    setFocus();
}

void RowListView::didInsertRows(int first, int count)
{
    if (m_current >= first)
        m_current += count;
    m_mouse.forgetRows();
    RowScrollArea::didInsertRows(first, count);
}

void RowListView::didRemoveRows(int first, int count)
{
    m_mouse.forgetRows();
    RowScrollArea::didRemoveRows(first, count);
    if (m_currentIndex.isValid()) {
        m_current = m_currentIndex.row();
    } else if (m_current >= first) {
        clearSelection();
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
        moveCurrentRow(entryFrom(firstRowInView(), 1));
    viewport()->update();
    RowListAccessible::announceCurrentRow(*this);
}

void RowListView::focusOutEvent(QFocusEvent *event)
{
    RowScrollArea::focusOutEvent(event);
    const bool comesBack =
        event->reason() == Qt::PopupFocusReason || event->reason() == Qt::ActiveWindowFocusReason;
    if (!comesBack && !isAncestorOf(QApplication::focusWidget()))
        setCurrentRow(-1);
    viewport()->update();
}

void RowListView::hideEvent(QHideEvent *event)
{
    setCurrentRow(-1);
    m_mouse.forgetRows();
    RowScrollArea::hideEvent(event);
}

// Keys

QList<RowListView::Action> RowListView::allActionsOf(int row)
{
    QList<Action> actions = actionsOf(row);
    const RowLayout &layout = layoutOf(row);
    if (!layout.parts().fold.isEmpty()) {
        const bool isFolded = layout.content().fold == RowContent::Fold::Folded;
        const auto toggle = [this, index = QPersistentModelIndex(model().index(row)), isFolded] {
            if (index.isValid())
                setUnfolded(index.row(), isFolded);
        };
        actions.append(Action());
        actions.append({isFolded ? L10n::text("展开") : L10n::text("收起"),
            isFolded ? Qt::Key_Right : Qt::Key_Left, toggle, RowPart::Kind::Fold});
    }
    return actions;
}

std::function<void()> RowListView::actionOf(int row, const QKeySequence &key)
{
    if (isEntry(row)) {
        for (const Action &action : allActionsOf(row)) {
            if (!action.key.isEmpty() && action.key == key)
                return action.run;
        }
    }
    return {};
}

void RowListView::activateRow(int row)
{
    if (const auto run = actionOf(row, Qt::Key_Return))
        run();
}

void RowListView::showMenuOfRow(int row)
{
    if (!isEntry(row))
        return;
    scrollTo(row);
    popUpMenu(row, viewport()->mapToGlobal(rectOf(row).intersected(viewport()->rect()).center()));
}

bool RowListView::isRepeat(const QKeyEvent &press) const
{
    // A held key is a row of releases and presses. On X11 Qt notices that only if it has read a press
    // together with the release before it; but the two bear one time.
    return press.isAutoRepeat()
           || (press.timestamp() != 0 && press.timestamp() == m_lastRelease.time
               && press.key() == m_lastRelease.key);
}

void RowListView::keyReleaseEvent(QKeyEvent *event)
{
    m_lastRelease = {event->key(), event->timestamp()};
    RowScrollArea::keyReleaseEvent(event);
}

void RowListView::keyPressEvent(QKeyEvent *event)
{
    const int key = event->key() == Qt::Key_Enter ? Qt::Key_Return : event->key();
    const QKeySequence pressed = event->matches(QKeySequence::Copy)
                                     ? QKeySequence(QKeySequence::Copy)
                                     : QKeySequence(key | (event->modifiers() & ~Qt::KeypadModifier));
    if (const auto run = actionOf(m_current, pressed)) {
        // Once for each press, and on nothing that the user does not see.
        if (!viewport()->rect().intersects(rectOf(m_current)))
            scrollTo(m_current);
        else if (!isRepeat(*event))
            run();
        return;
    }
    const int last = model().rowCount() - 1;
    switch (key) {
    case Qt::Key_Menu:
        showMenuOfRow(m_current);
        return;
    case Qt::Key_Up:
    case Qt::Key_Down: {
        const int step = key == Qt::Key_Up ? -1 : 1;
        const int next = entryFrom(m_current < 0 ? firstRowInView() : m_current + step, step);
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
        const int step = key == Qt::Key_PageUp ? -1 : 1;
        const int row = std::max(0, m_current);
        if (last < 0 || scrollWithin(row, step))
            return;
        const int away = rowPagesAway(row, step);
        moveCurrentRow(nearestEntry(std::clamp(away == row ? row + step : away, 0, last), step));
        return;
    }
    default:
        event->ignore();
    }
}

// The mouse and the menu

RowPainter::Marks RowListView::marksOf(int row) const
{
    RowPainter::Marks marks;
    marks.isCurrent = row == m_current;
    if (marks.isCurrent) {
        marks.ground = NoteStyle::color(palette(), Design::editingGround);
        marks.selected = m_mouse.selectedRange();
    } else if (row == m_mouse.hover().row) {
        marks.ground = NoteStyle::color(palette(), Design::hoverGround);
    }
    if (row == m_mouse.hover().row)
        marks.hovered = m_mouse.hover().part;
    return marks;
}

void RowListView::leaveEvent(QEvent *event)
{
    m_mouse.setHover({});
    RowScrollArea::leaveEvent(event);
}

bool RowListView::viewportEvent(QEvent *event)
{
    if (event->type() != QEvent::ToolTip)
        return RowScrollArea::viewportEvent(event);
    m_mouse.showHelp(*static_cast<QHelpEvent *>(event));
    return true;
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
    goTo(row);
    QMenu *menu = MenuLooks::newMenu(this);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    for (const Action &action : allActionsOf(row)) {
        if (action.title.isEmpty()) {
            menu->addSeparator();
            continue;
        }
        // It may show what the user has written. The key is part of the text, or screen readers would not
        // read it out.
        QString title =
            QFontMetrics(NoteStyle::font()).elidedText(action.title, Qt::ElideMiddle, Design::menuTextWidth);
        title.replace(u'&', QStringLiteral("&&"));
        if (!action.key.isEmpty())
            title += u'\t' + action.key.toString(QKeySequence::NativeText);
        QAction *entry = menu->addAction(title, this, action.run);
        if (action.isDestructive)
            MenuLooks::markDestructive(*entry);
    }
    MenuLooks::apply(*menu);
    menu->popup(globalPosition);
}

QString RowListView::textToCopy(int row) const
{
    const QString selected = row == m_current ? selectedText() : QString();
    return selected.isEmpty() ? model().text(row) : selected;
}

RowListView::Action RowListView::copyAction(int row)
{
    const auto copy = [this, text = textToCopy(row)] {
        QGuiApplication::clipboard()->setText(text);
        Q_EMIT done(L10n::text("已复制"));
    };
    return {L10n::text("复制"), QKeySequence::Copy, copy};
}
