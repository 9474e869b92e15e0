#pragma once

#include "ui/lists/RowMouse.h"
#include "ui/lists/RowScrollArea.h"

#include <QKeySequence>

#include <functional>

/// A list that the user works in with keys and mouse: one of its rows is the current one. What can be done
/// with a row is the subclass's. A header can be neither current nor clicked.
class RowListView : public RowScrollArea
{
    Q_OBJECT

public:
    explicit RowListView(RowModel &model, QWidget *parent = nullptr);

    /// The row that keys act on; -1 for none, as always while the list has neither the focus nor a menu or
    /// popover. It stays with its row when this moves and others come and go, and passes to the row below
    /// when its own is removed.
    [[nodiscard]] int currentRow() const { return m_current; }
    void setCurrentRow(int row);
    void goTo(int row); ///< makes it the current row, and takes the focus
    /// Takes the focus, with the first entry in view as the current row if there is one.
    void enter();

    /// Something that can be done with an entry: an entry of its menu, a key, perhaps a click. A double click
    /// is the Return key.
    struct Action {
        QString title; ///< empty for a line between two groups
        QKeySequence key;
        std::function<void()> run;
        RowPart::Kind part = RowPart::Kind::None; ///< that a click on does it
        bool isDestructive = false;
    };
    [[nodiscard]] QList<Action> allActionsOf(int row); ///< in the order of its menu

    // Also called by screen readers. A header does nothing.
    void activateRow(int row);
    void showMenuOfRow(int row);

    using Hit = RowMouse::Hit;
    [[nodiscard]] Hit hitAt(QPoint point) const { return m_mouse.hitAt(point); }

    /// In the text of the current row, by the mouse; empty for nothing.
    [[nodiscard]] QString selectedText() const { return m_mouse.selectedText(); }
    void clearSelection() { m_mouse.clearSelection(); }

Q_SIGNALS:
    /// @p undo takes it back; empty where that is impossible.
    void done(const QString &what, const std::function<void()> &undo = {});
    void left(); ///< by an arrow key beyond the first or last row

protected:
    [[nodiscard]] virtual QList<Action> actionsOf(int row) = 0; ///< those that are the list's own
    /// What a click on an address or a tag in the text does.
    [[nodiscard]] virtual Action actionOnText(const RowPart &) { return {}; }
    [[nodiscard]] Action copyAction(int row); ///< of what is selected in the row, else of its whole text
    [[nodiscard]] virtual QUrl linkOf(int) const { return {}; }
    /// Whether its text can be selected, and dragged out. A click has no other meaning there then.
    [[nodiscard]] virtual bool isCopyable() const { return true; }

    [[nodiscard]] RowPainter::Marks marksOf(int row) const override;
    void didInsertRows(int first, int count) override;
    void didRemoveRows(int first, int count) override;

    void contextMenuEvent(QContextMenuEvent *event) override;
    void hideEvent(QHideEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override { m_mouse.doubleClick(*event); }
    void mouseMoveEvent(QMouseEvent *event) override { m_mouse.move(*event); }
    void mousePressEvent(QMouseEvent *event) override { m_mouse.press(*event); }
    void mouseReleaseEvent(QMouseEvent *event) override { m_mouse.release(*event); }
    void leaveEvent(QEvent *event) override;
    bool viewportEvent(QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void keyReleaseEvent(QKeyEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;

private:
    friend RowMouse; // which is a part of it

    [[nodiscard]] bool isEntry(int row) const;
    [[nodiscard]] int entryFrom(int row, int step) const;    ///< @p row or the next entry; -1 beyond the ends
    [[nodiscard]] int nearestEntry(int row, int step) const; ///< in the other direction where there is none
    void moveCurrentRow(int row);
    [[nodiscard]] bool isRepeat(const QKeyEvent &press) const; ///< of a key that is held down
    // Empty for none.
    [[nodiscard]] std::function<void()> actionOf(int row, const QKeySequence &key);
    [[nodiscard]] QString textToCopy(int row) const;
    void popUpMenu(int row, QPoint globalPosition);

    int m_current = -1;
    QPersistentModelIndex m_currentIndex; ///< of the same row; follows it where it moves
    struct {
        int key = 0;
        quint64 time = 0;
    } m_lastRelease;
    RowMouse m_mouse;
};
