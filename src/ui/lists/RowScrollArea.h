#pragma once

#include "ui/lists/RowGeometry.h"
#include "ui/lists/RowPainter.h"

#include <QAbstractScrollArea>
#include <QCache>
#include <QPersistentModelIndex>
#include <QVariantAnimation>

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
    void scrollTo(int row);
    void scrollToCenter(int row); ///< animated

    [[nodiscard]] virtual RowPainter::EmptyState emptyState() const = 0;

protected:
    [[nodiscard]] virtual RowPainter::Marks marksOf(int row) const = 0;
    virtual void didInsertRows(int first, int count);
    virtual void didRemoveRows(int first, int count);
    virtual void didMoveRows() {} ///< within the viewport, by scrolling or a change

    void forgetHeights(); ///< of rows whose content has changed without the model having announced it
    [[nodiscard]] const RowLayout &layoutOf(int row) const; ///< valid until the next call
    [[nodiscard]] int rowPagesAway(int row, int pages) const;

    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;
    void changeEvent(QEvent *event) override;
    void scrollContentsBy(int dx, int dy) override;

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
    bool measure(int firstRow, int lastRow); ///< whether any of them had only been estimated
    void measureRowsInView();
    void scrollStep(double progress);
    void geometryChanged();
    [[nodiscard]] int page() const { return viewport()->height(); }

    RowModel &m_model;
    RowGeometry m_geometry;
    /// Of the rows in view and near it, for the present width, font and palette: breaking a text into lines
    /// takes longer than painting it.
    mutable QCache<RowContent, RowLayout> m_layouts{200};
    QVariantAnimation m_scrolling; ///< from 0 to 1
    QPersistentModelIndex m_scrollTarget;
    double m_scrollProgress = 0;
};
