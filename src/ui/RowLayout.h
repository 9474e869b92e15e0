#pragma once

#include <QRect>
#include <QString>
#include <QTextLayout>

class QPalette;

/// Where the parts of a note's row stand, and its text broken into lines. The same for measuring and for
/// painting.
class RowLayout
{
public:
    /// @p query is the search term whose hits are coloured; the palette gives the colours.
    RowLayout(const QString &text, const QString &query, int width, const QPalette &palette);

    [[nodiscard]] int height() const { return m_height; }
    [[nodiscard]] QRect timeRect() const { return m_timeRect; }
    [[nodiscard]] QRect symbolRect() const { return m_symbolRect; }
    void drawText(QPainter &painter, QPoint rowOrigin) const;

private:
    QTextLayout m_text;
    QRect m_timeRect;
    QRect m_symbolRect;
    int m_height = 0;
};
