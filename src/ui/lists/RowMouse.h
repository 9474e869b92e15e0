#pragma once

#include "ui/lists/RowContent.h"
#include "ui/lists/RowSelection.h"

#include <functional>

class QHelpEvent;
class QMouseEvent;
class RowListView;

/// The mouse in the rows of a list: what it points at and clicks, what it selects in the text of the current
/// row, and what it drags out. Points are in the viewport's coordinates.
class RowMouse
{
public:
    explicit RowMouse(RowListView &list)
        : m_list(list)
    {
    }

    struct Hit {
        int row = -1;
        RowPart part;
        bool operator==(const Hit &) const = default;
    };
    [[nodiscard]] Hit hitAt(QPoint point) const;
    [[nodiscard]] const Hit &hover() const { return m_hover; }

    void move(const QMouseEvent &event);
    void press(const QMouseEvent &event);
    void release(const QMouseEvent &event);
    void doubleClick(const QMouseEvent &event);
    void showHelp(const QHelpEvent &event) const;
    void setHover(const Hit &hover);
    void forgetRows(); ///< whose numbers may be others' now

    [[nodiscard]] TextRange selectedRange() const;
    [[nodiscard]] QString selectedText() const; ///< empty for nothing
    void clearSelection();

private:
    [[nodiscard]] std::function<void()> actionOn(const Hit &hit) const; ///< by a click; empty for none
    void dragOut(int row);
    [[nodiscard]] Qt::CursorShape cursorAt(QPoint point) const;

    RowListView &m_list;
    Hit m_hover;
    bool m_isHoverClickable = false;
    Hit m_pressed; ///< none any more once the press has become a selection or a drag
    QPoint m_pressPoint;
    bool m_dragsOut = false; ///< as opposed to selecting
    Hit m_clicked;
    RowSelection m_selection; ///< in the current row
    bool m_isSelecting = false;
};
