#pragma once

#include "ui/lists/RowContent.h"

#include <QAbstractItemView>

#include <vector>

class QMenu;
class QVariantAnimation;
class RowDelegate;
class RowModel;

/// A list of rows of differing height, measured when they come near the view and estimated before. The header
/// above what is shown stays at the top. What a row does is the subclass's.
///
/// The scroll position stays with the rows in view when others come or go.
class RowListView : public QAbstractItemView
{
    Q_OBJECT

public:
    explicit RowListView(RowModel &model, QWidget *parent = nullptr);
    ~RowListView() override;

    /// Shown where there are no rows.
    struct EmptyState {
        QString symbol;
        QString text;
    };
    [[nodiscard]] virtual EmptyState emptyState() const = 0;
    /// Puts the focus on the first entry in view; false when there is none.
    bool enter();
    // What the keyboard and the mouse do, for those who listen to the screen. A header does nothing.
    void activateRow(int row);
    void showMenuOfRow(int row);

    void setModel(QAbstractItemModel *model) override;
    [[nodiscard]] QRect visualRect(const QModelIndex &index) const override;
    void scrollTo(const QModelIndex &index, ScrollHint hint = EnsureVisible) override;
    [[nodiscard]] QModelIndex indexAt(const QPoint &point) const override;

Q_SIGNALS:
    void left(); ///< Escape, or an arrow key beyond the first or last row: the field is to have the focus

protected:
    // What the person does with an entry.
    virtual void activate(int row) = 0; ///< Return, or a double click
    virtual void clickPart(int, RowPart) {}
    virtual void remove(int) {} ///< Delete
    virtual void copy(int) {}   ///< Ctrl+C
    virtual void fillMenu(QMenu &, int) {}
    [[nodiscard]] virtual QColor groundOf(int) const { return {}; } ///< a colour behind the row

    void forgetHeights();

    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;
    void contextMenuEvent(QContextMenuEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void leaveEvent(QEvent *event) override;
    bool viewportEvent(QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;
    void changeEvent(QEvent *event) override;
    void updateGeometries() override;
    void dataChanged(
        const QModelIndex &topLeft, const QModelIndex &bottomRight, const QList<int> &roles = {}) override;

    QModelIndex moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) override;
    [[nodiscard]] int horizontalOffset() const override { return 0; }
    [[nodiscard]] int verticalOffset() const override;
    [[nodiscard]] bool isIndexHidden(const QModelIndex &) const override { return false; }
    void setSelection(const QRect &rect, QItemSelectionModel::SelectionFlags command) override;
    [[nodiscard]] QRegion visualRegionForSelection(const QItemSelection &selection) const override;

private:
    struct Hover {
        int row = -1;
        RowPart part;
        bool operator==(const Hover &) const = default;
    };
    [[nodiscard]] Hover hoverAt(QPoint point) const;
    void setHover(const Hover &hover);
    void popUpMenu(int row, QPoint globalPlace);
    [[nodiscard]] int entryBeside(int row, int step) const; ///< -1 beyond the ends

    void rowsWillChange();
    void rowsDidChange(int first, int added);
    bool measure(int firstRow, int lastRow); ///< whether any of them had not been measured yet
    void measureVisibleRows();
    void paintEmptyState(QPainter &painter) const;
    void paintRows(QPainter &painter, const QRect &part);
    void paintFaded(QPainter &painter, const QRect &part);
    /// The header of the rows at the top of the view, while it is not there by itself.
    struct PinnedHeader {
        int row = -1;
        int top = 0;
    };
    [[nodiscard]] PinnedHeader pinnedHeader() const;
    [[nodiscard]] int estimatedHeight(int row) const;
    [[nodiscard]] const std::vector<int> &tops() const;
    [[nodiscard]] int rowAt(int y) const; ///< in the whole list's pixels; clamped to its rows
    [[nodiscard]] int centredOffset(int row);

    RowModel &m_rowModel;
    RowDelegate *m_rows = nullptr;
    QVariantAnimation *m_scrolling = nullptr;
    Hover m_hover;
    Hover m_pressed;
    int m_anchorRow = 0;             ///< the first row in view, while rows come and go
    int m_anchorOffset = 0;          ///< how far it is scrolled out
    std::vector<int> m_heights;      ///< of each row; 0 where not yet measured
    mutable std::vector<int> m_tops; ///< of each row, and the list's end; empty when to be counted anew
};
