#pragma once

#include "ui/lists/RowGeometry.h"
#include "ui/lists/RowJump.h"
#include "ui/lists/RowPainter.h"

#include <QAbstractScrollArea>
#include <QCache>
#include <QPersistentModelIndex>

#include <functional>
#include <optional>

class RowModel;

/// Shows the rows of a model below each other and scrolls them. A row is measured when it comes into view and
/// estimated before. The header above the rows in view stays at the top.
class RowScrollArea : public QAbstractScrollArea
{
    Q_OBJECT

public:
    /// Takes ownership of @p model.
    explicit RowScrollArea(RowModel &model, QWidget *parent = nullptr);

    [[nodiscard]] RowModel &model() const { return m_model; }
    [[nodiscard]] QRect rectOf(int row) const; ///< in the viewport's coordinates, which it may lie outside of
    [[nodiscard]] int rowAt(QPoint point) const; ///< -1 where there is none
    [[nodiscard]] int firstRowInView() const;    ///< -1 without rows, as the next
    [[nodiscard]] int lastRowInView() const;
    void scrollTo(int row); ///< so that neither the pinned header nor the fading edge covers it
    /// Downwards or upwards in a row higher than the view, by a page. False when that end of it is in view.
    bool scrollWithin(int row, int direction);
    void scrollPage(int pages);
    void scrollToEnd(int direction); ///< the last row, or the first
    /// So much of the view, at its bottom, is under something else: rows are scrolled to above that.
    void setCoveredBelow(int height);
    /// Scrolls the row to the middle of the view and flashes it there, or shows the beginning of a row higher
    /// than the view. @p target is asked for again when the model has replaced the row.
    void jumpTo(std::function<QModelIndex()> target);

    [[nodiscard]] virtual RowPainter::EmptyState emptyState() const = 0;

protected:
    [[nodiscard]] virtual RowPainter::Marks marksOf(int row) const = 0;
    virtual void didInsertRows(int first, int count);
    virtual void didRemoveRows(int first, int count);
    virtual void didMoveRows() {} ///< within the viewport, by scrolling or a change

    void setUnfolded(int row, bool isUnfolded); ///< its beginning stays where it is, or is shown
    void forgetHeights(); ///< of rows whose content has changed without the model having announced it
    [[nodiscard]] const RowLayout &layoutOf(int row) const; ///< valid until the next call
    [[nodiscard]] int rowPagesAway(int row, int pages);

    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;
    void changeEvent(QEvent *event) override;
    void scrollContentsBy(int dx, int dy) override;
    void wheelEvent(QWheelEvent *event) override;
    bool eventFilter(QObject *object, QEvent *event) override;

private:
    /// The header of the rows at the top of the view, when it is scrolled out itself.
    struct PinnedHeader {
        int row = -1;
        int top = 0;
    };
    [[nodiscard]] PinnedHeader pinnedHeader() const;
    void paintRows(QPainter &painter, const QRect &part) const;

    [[nodiscard]] std::vector<int> estimatedHeights(int first, int count) const;
    void estimateAll();
    bool measure(int firstRow, int lastRow);   ///< whether any of them had only been estimated
    void measureAround(int row, int distance); ///< the row, and those within the distance of it
    void measureRowsInView();
    void rowsChanged();
    void geometryChanged();
    void offsetChanged();
    void moveTo(int offset);
    void scrollBy(int distance); ///< exactly, as far as the list goes
    void didUseScrollBar(int action);
    void jumpStep(double share);
    [[nodiscard]] int maxOffset() const;
    [[nodiscard]] RowGeometry::View view() const;
    [[nodiscard]] int step() const; ///< of a page; what the header and the fading edge cover is shown again
    [[nodiscard]] int page() const { return viewport()->height(); }

    RowModel &m_model;
    RowGeometry m_geometry;
    QPersistentModelIndex m_firstInView; ///< none at the top, where the list stays whatever comes
    /// Of the rows in view and near it, for the present width, font and palette: breaking a text into lines
    /// takes longer than painting it.
    mutable QCache<RowContent, RowLayout> m_layouts{200};
    std::optional<RowGeometry> m_dragged; ///< as it was when the thumb was taken, while it is held
    int m_coveredBelow = 0;
    double m_wheelRest = 0; ///< what is left of a pixel
    RowJump m_jump{this};
};
