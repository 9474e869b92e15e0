#include "ui/lists/RowSelection.h"

#include "ui/lists/RowLayout.h"

#include <algorithm>

void RowSelection::begin(const RowLayout &row, QPoint point)
{
    m_text = row.text().text();
    m_anchor = m_caret = row.positionAt(point);
}

void RowSelection::extendTo(const RowLayout &row, QPoint point)
{
    m_caret = row.positionAt(point);
}

TextRange RowSelection::rangeIn(const RowLayout &row) const
{
    if (m_anchor == m_caret || row.text().text() != m_text)
        return {};
    const TextRange own = row.ownText();
    return {std::max<qsizetype>(own.start, std::min(m_anchor, m_caret)),
        std::min<qsizetype>(own.end, std::max(m_anchor, m_caret))};
}

QString RowSelection::textIn(const RowLayout &row) const
{
    const TextRange range = rangeIn(row);
    return range.isEmpty() ? QString()
                           : m_text.mid(range.start, range.length()).replace(QChar::LineSeparator, u'\n');
}

bool RowSelection::contains(const RowLayout &row, QPoint point) const
{
    const TextRange range = rangeIn(row);
    const int unit = row.isOnText(point) ? row.unitAt(point) : -1;
    return range.start <= unit && unit < range.end;
}
