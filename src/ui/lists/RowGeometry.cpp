#include "ui/lists/RowGeometry.h"

#include <algorithm>
#include <cmath>

void RowGeometry::reset(const std::vector<int> &estimates)
{
    m_rows.clear();
    m_anchorRow = std::min(m_anchorRow, int(estimates.size()) - 1);
    for (const int estimate : estimates)
        m_rows.push_back({estimate});
    heightsChanged(0);
}

void RowGeometry::insert(int first, const std::vector<int> &estimates)
{
    m_rows.insert(m_rows.begin() + first, estimates.size(), {});
    for (size_t i = 0; i < estimates.size(); ++i)
        m_rows[size_t(first) + i] = {estimates[i]};
    if (m_anchorRow >= first)
        m_anchorRow += int(estimates.size());
    heightsChanged(first);
}

void RowGeometry::remove(int first, int count)
{
    m_rows.erase(m_rows.begin() + first, m_rows.begin() + first + count);
    if (m_anchorRow >= first + count) {
        m_anchorRow -= count;
    } else if (m_anchorRow >= first) {
        m_anchorRow = std::min(first, this->count() - 1);
        m_anchorY = std::max(m_anchorY, 0);
    }
    heightsChanged(first);
}

void RowGeometry::setHeight(int row, int height)
{
    m_rows[size_t(row)] = {height, true};
    heightsChanged(row);
}

void RowGeometry::invalidate(int first, int count)
{
    for (int row = first; row < first + count; ++row)
        m_rows[size_t(row)].isMeasured = false;
}

void RowGeometry::heightsChanged(int firstRow)
{
    m_tops.resize(std::min(m_tops.size(), size_t(firstRow) + 1));
}

void RowGeometry::extendTops(int row) const
{
    for (size_t next = m_tops.size(); next <= size_t(row); ++next)
        m_tops.push_back(m_tops.back() + m_rows[next - 1].height);
}

int RowGeometry::top(int row) const
{
    extendTops(row);
    return m_tops[size_t(row)];
}

int RowGeometry::rowAt(int y) const
{
    while (m_tops.back() <= y && int(m_tops.size()) <= count())
        extendTops(int(m_tops.size()));
    const auto next = std::upper_bound(m_tops.begin(), m_tops.end(), y);
    return std::clamp(int(next - m_tops.begin()) - 1, std::min(0, count() - 1), count() - 1);
}

void RowGeometry::setOffset(int offset, int page)
{
    m_anchorRow = -1;
    if (offset <= 0 || m_rows.empty())
        return;
    m_anchorRow = rowAt(offset);
    for (int row = m_anchorRow; row < count() && top(row) < offset + page; ++row) {
        if (isMeasured(row)) {
            m_anchorRow = row;
            break;
        }
    }
    m_anchorY = top(m_anchorRow) - offset;
}

int RowGeometry::offset() const
{
    return m_anchorRow < 0 ? 0 : std::max(0, top(m_anchorRow) - m_anchorY);
}

int RowGeometry::offsetToCenter(int row, View view) const
{
    return std::min((top(row) + bottom(row) - view.height) / 2, top(row) - view.covered);
}

int RowGeometry::offsetToShow(int row, View view) const
{
    const int atTop = top(row) - view.covered;
    const int atBottom = bottom(row) - view.height + view.faded;
    if (atBottom <= atTop)
        return std::clamp(offset(), atBottom, atTop);
    return offset() >= atTop && offset() <= atBottom ? offset() : atTop;
}

int RowGeometry::offsetWithin(int row, View view, int step) const
{
    const int atTop = top(row) - view.covered;
    const int atBottom = bottom(row) - view.height + view.faded;
    const bool isAtEdge = step > 0 ? offset() >= atBottom : offset() <= atTop;
    return atBottom <= atTop || isAtEdge ? offset() : std::clamp(offset() + step, atTop, atBottom);
}

int RowGeometry::yOf(const RowGeometry &before, int y) const
{
    const int row = before.rowAt(y);
    if (row < 0 || y >= before.bottom(row))
        return top(count()) + y - before.top(before.count());
    const double share = double(y - before.top(row)) / (before.bottom(row) - before.top(row));
    return top(row) + int(std::lround(share * (bottom(row) - top(row))));
}
