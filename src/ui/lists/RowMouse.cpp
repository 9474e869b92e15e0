#include "ui/lists/RowMouse.h"

#include "ui/lists/RowListView.h"
#include "ui/lists/RowModel.h"

#include <QApplication>
#include <QClipboard>
#include <QDrag>
#include <QHelpEvent>
#include <QMimeData>
#include <QMouseEvent>
#include <QToolTip>
#include <QUrl>

#include <utility>

RowMouse::Hit RowMouse::hitAt(QPoint point) const
{
    const int row = m_list.rowAt(point);
    if (!m_list.isEntry(row))
        return {};
    const Hit hit{row, m_list.layoutOf(row).partAt(point - m_list.rectOf(row).topLeft())};
    const bool isInert =
        (!hit.part.target.isEmpty() || hit.part.kind == RowPart::Kind::Link) && !actionOn(hit);
    return isInert ? Hit{row, {RowPart::Kind::Body}} : hit;
}

std::function<void()> RowMouse::actionOn(const Hit &hit) const
{
    if (!hit.part.target.isEmpty())
        return m_list.actionOnText(hit.part).run;
    if (hit.row < 0 || hit.part.kind == RowPart::Kind::None)
        return {};
    for (const RowListView::Action &action : m_list.allActionsOf(hit.row)) {
        if (action.part == hit.part.kind)
            return action.run;
    }
    return {};
}

void RowMouse::setHover(const Hit &hover)
{
    if (hover == m_hover)
        return;
    m_list.viewport()->update(m_list.rectOf(m_hover.row));
    m_list.viewport()->update(m_list.rectOf(hover.row));
    m_hover = hover;
    m_isHoverClickable = bool(actionOn(hover));
}

void RowMouse::forgetRows()
{
    m_hover = m_pressed = m_clicked = {};
    m_isHoverClickable = false;
}

Qt::CursorShape RowMouse::cursorAt(QPoint point) const
{
    if (m_isHoverClickable)
        return Qt::PointingHandCursor;
    const int row = m_list.rowAt(point);
    if (!m_list.isEntry(row) || !m_list.isCopyable())
        return Qt::ArrowCursor;
    const RowLayout &layout = m_list.layoutOf(row);
    const QPoint inRow = point - m_list.rectOf(row).topLeft();
    // What is selected can be dragged.
    const bool isSelected = row == m_list.currentRow() && m_selection.contains(layout, inRow);
    return layout.isOnText(inRow) && !isSelected ? Qt::IBeamCursor : Qt::ArrowCursor;
}

void RowMouse::move(const QMouseEvent &event)
{
    const QPoint point = event.position().toPoint();
    const bool isFar = (point - m_pressPoint).manhattanLength() >= QApplication::startDragDistance();
    if (m_pressed.row >= 0 && isFar && m_list.isCopyable()) {
        const int row = std::exchange(m_pressed, {}).row;
        m_isSelecting = !m_dragsOut;
        setHover({});
        if (m_dragsOut) {
            dragOut(row);
            return;
        }
    }
    if (m_isSelecting) {
        const int row = m_list.currentRow();
        m_selection.extendTo(m_list.layoutOf(row), point - m_list.rectOf(row).topLeft());
        m_list.viewport()->update(m_list.rectOf(row));
        return;
    }
    setHover(hitAt(point));
    m_list.viewport()->setCursor(cursorAt(point));
}

void RowMouse::press(const QMouseEvent &event)
{
    const QPoint point = event.position().toPoint();
    const Hit hit = hitAt(point);
    if (hit.row >= 0)
        m_list.goTo(hit.row);
    m_clicked = m_pressed = {};
    if (event.button() != Qt::LeftButton)
        return;
    m_pressed = hit;
    m_pressPoint = point;
    const QPoint inRow = point - m_list.rectOf(hit.row).topLeft();
    m_dragsOut = hit.row >= 0 && m_selection.contains(m_list.layoutOf(hit.row), inRow);
    if (m_dragsOut)
        return;
    clearSelection();
    m_dragsOut = hit.row < 0 || !m_list.layoutOf(hit.row).isOnText(inRow);
    if (!m_dragsOut)
        m_selection.begin(m_list.layoutOf(hit.row), inRow);
}

void RowMouse::release(const QMouseEvent &event)
{
    if (event.button() != Qt::LeftButton)
        return;
    if (std::exchange(m_isSelecting, false)) {
        QClipboard *clipboard = QGuiApplication::clipboard();
        if (clipboard->supportsSelection() && !selectedRange().isEmpty())
            clipboard->setText(selectedText(), QClipboard::Selection);
        return;
    }
    const Hit pressed = std::exchange(m_pressed, {});
    if (pressed.row < 0)
        return;
    clearSelection();
    if (pressed != hitAt(event.position().toPoint()))
        return;
    m_clicked = pressed;
    if (const auto run = actionOn(pressed))
        run();
}

void RowMouse::doubleClick(const QMouseEvent &event)
{
    if (hitAt(event.position().toPoint()) != m_clicked) {
        // The first click was on what was here before, in this list or another: nobody meant what is here
        // now.
        press(event);
        m_pressed = {};
    } else if (m_clicked.part.kind == RowPart::Kind::Body) {
        m_list.activateRow(m_clicked.row);
    }
}

TextRange RowMouse::selectedRange() const
{
    const int row = m_list.currentRow();
    return row < 0 ? TextRange() : m_selection.rangeIn(m_list.layoutOf(row));
}

QString RowMouse::selectedText() const
{
    const int row = m_list.currentRow();
    return row < 0 ? QString() : m_selection.textIn(m_list.layoutOf(row));
}

void RowMouse::clearSelection()
{
    m_selection = {};
    m_isSelecting = false;
    m_list.viewport()->update();
}

void RowMouse::showHelp(const QHelpEvent &event) const
{
    const int row = m_list.rowAt(event.pos());
    const Hit hit = hitAt(event.pos());
    const RowContent content = row < 0 ? RowContent() : m_list.model().content(row);
    QToolTip::showText(event.globalPos(),
        content.isHeader()     ? content.help
        : hit.part.symbol >= 0 ? content.symbols[hit.part.symbol].help
                               : QString(),
        m_list.viewport(), content.isHeader() ? QRect() : m_list.rectOf(row));
}

void RowMouse::dragOut(int row)
{
    auto *content = new QMimeData;
    content->setText(m_list.textToCopy(row));
    if (const QUrl link = m_list.linkOf(row); !link.isEmpty() && selectedRange().isEmpty())
        content->setUrls({link});
    auto *drag = new QDrag(&m_list);
    drag->setMimeData(content);
    drag->setPixmap(RowPainter::dragged(content->text(), m_list));
    drag->exec(Qt::CopyAction);
}
