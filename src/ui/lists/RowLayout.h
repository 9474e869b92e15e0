#pragma once

#include "ui/lists/RowContent.h"

#include <QRect>
#include <QTextLayout>

class QPalette;

/// The rectangles of the parts of a row, and its text broken into lines; used for measuring, painting and hit
/// testing alike.
class RowLayout
{
public:
    /// @p palette decides between light and dark colours.
    RowLayout(RowContent content, int width, const QPalette &palette);
    /// From the length of an entry's text alone.
    [[nodiscard]] static int estimatedHeight(const QString &text, int width);

    [[nodiscard]] const RowContent &content() const { return m_content; }
    [[nodiscard]] int height() const { return m_height; }

    // In the row's own coordinates; empty where the row has no such part.
    [[nodiscard]] QRect leadRect() const { return m_leadRect; }
    [[nodiscard]] QRect aboveRect() const { return m_aboveRect; }
    [[nodiscard]] QRect quoteRect() const { return m_quoteRect; }
    [[nodiscard]] QRect linkRect() const { return m_linkRect; }
    [[nodiscard]] QRect markerRect() const { return m_markerRect; }
    [[nodiscard]] QRect trailingRect() const { return m_trailingRect; }
    [[nodiscard]] QRect symbolRect(qsizetype symbol) const;
    [[nodiscard]] RowPart partAt(QPoint point) const;

    void drawText(QPainter &painter, QPoint rowOrigin) const;

private:
    RowContent m_content;
    QTextLayout m_text;
    QRect m_leadRect;
    QRect m_aboveRect;
    QRect m_quoteRect;
    QRect m_linkRect;
    QRect m_markerRect;
    QRect m_trailingRect;
    QPoint m_symbols; ///< top left corner of the first
    int m_height = 0;
};
