#pragma once

#include "foundation/TextRange.h"

#include <QPoint>
#include <QString>

class RowLayout;

/// What is selected in the text of a row as it was shown; nothing in a row that shows another. Points are in
/// the row's own coordinates.
class RowSelection
{
public:
    void begin(const RowLayout &row, QPoint point);
    void extendTo(const RowLayout &row, QPoint point);

    [[nodiscard]] TextRange rangeIn(const RowLayout &row) const; ///< in UTF-16 units
    [[nodiscard]] QString textIn(const RowLayout &row) const;
    [[nodiscard]] bool contains(const RowLayout &row, QPoint point) const;

private:
    QString m_text;
    int m_anchor = 0;
    int m_caret = 0;
};
