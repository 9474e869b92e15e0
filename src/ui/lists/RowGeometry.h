#pragma once

#include <cstddef>
#include <vector>

/// Where the rows of a list are: their heights, measured or still estimated, their tops, and how far the list
/// is scrolled.
///
/// One row is the anchor: it keeps its distance from the top of the view when others come, go or turn out to
/// be higher than estimated, and offset() follows. All numbers are logical pixels.
class RowGeometry final
{
public:
    void reset(const std::vector<int> &estimates); ///< the anchor stays with its row number
    void insert(int first, const std::vector<int> &estimates);
    /// An anchor that is removed gives its position to the row that follows it.
    void remove(int first, int count);
    void setHeight(int row, int height);   ///< as measured
    void invalidate(int first, int count); ///< to be measured again; until then the height is an estimate

    [[nodiscard]] int count() const { return int(m_rows.size()); }
    [[nodiscard]] bool isMeasured(int row) const { return m_rows[size_t(row)].isMeasured; }
    [[nodiscard]] int top(int row) const; ///< of count(): the end of the list
    [[nodiscard]] int bottom(int row) const { return top(row + 1); }
    [[nodiscard]] int rowAt(int y) const; ///< clamped to the rows; -1 without any

    /// Makes the first measured row in view the anchor, since heights above it may change. At 0 there is
    /// none: the list stays at its first row whatever is inserted there.
    void setOffset(int offset, int page);
    [[nodiscard]] int offset() const;

    /// The height of the view, and how much of it a pinned header and a fading edge may cover.
    struct View {
        int height;
        int covered;
        int faded;
    };
    // Offsets to scroll to, before they are clamped to the list. Of a row higher than the view:
    [[nodiscard]] int offsetToCenter(int row, View view) const; ///< its beginning
    [[nodiscard]] int offsetToShow(int row, View view) const;   ///< its beginning, unless it fills the view
    /// The next part of it, downwards or upwards by the sign of @p step; offset() when there is none.
    [[nodiscard]] int offsetWithin(int row, View view, int step) const;
    /// Where that which was at @p y in @p before is now: as far into its row as then.
    [[nodiscard]] int yOf(const RowGeometry &before, int y) const;

private:
    struct Row {
        int height;
        bool isMeasured = false;
    };
    void extendTops(int row) const;
    void heightsChanged(int firstRow);

    std::vector<Row> m_rows;
    int m_anchorRow = -1;
    int m_anchorY = 0;                  ///< of its top, from the top of the view
    mutable std::vector<int> m_tops{0}; ///< of the first rows, as many as have been asked for
};
