#pragma once

#include <QRect>
#include <QString>
#include <QTextLayout>

class QPalette;

/// What a note's row shows of it in lines.
struct RowContent {
    QString text;
    QString query;  ///< whose hits in the text are coloured
    QString marker; ///< a remark below the text; empty for none
    bool operator==(const RowContent &) const = default;
};

/// Where the parts of a note's row stand, and its text broken into lines. The same for measuring and for
/// painting.
class RowLayout
{
public:
    /// The palette gives the colours.
    RowLayout(const RowContent &content, int width, const QPalette &palette);

    [[nodiscard]] const RowContent &content() const { return m_content; }
    [[nodiscard]] int height() const { return m_height; }
    [[nodiscard]] QRect timeRect() const { return m_timeRect; }
    [[nodiscard]] QRect symbolRect() const { return m_symbolRect; }
    [[nodiscard]] QRect markerRect() const { return m_markerRect; }
    void drawText(QPainter &painter, QPoint rowOrigin) const;

private:
    RowContent m_content;
    QTextLayout m_text;
    QRect m_timeRect;
    QRect m_symbolRect;
    QRect m_markerRect;
    int m_height = 0;
};
