#pragma once

#include "ui/lists/RowLayout.h"

#include <QPalette>
#include <QPixmap>

#include <functional>

/// Paints what a list shows: headers, entries, the text of an empty list, and the fading edge.
class RowPainter final
{
public:
    /// How a row is marked, beside what it shows.
    struct Marks {
        QColor ground; ///< behind the row; invalid for none
        RowPart hovered;
        double flash = 0; ///< its strength, up to 1
        bool isCurrent = false;
        bool isEdited = false;
        TextRange selected; ///< in the text
    };
    /// What a list without rows shows.
    struct EmptyState {
        QString symbol;
        QString text;
        QStringList hints = {}; ///< small lines below: how it comes to have rows
    };

    RowPainter(QPainter &painter, const QPalette &palette);

    /// A text that is dragged over the screen, from @p source.
    [[nodiscard]] static QPixmap dragged(const QString &text, const QWidget &source);

    void paintRow(const QRect &rect, const RowLayout &layout, const Marks &marks);
    void paintHeader(const QRect &rect, const QString &text);
    /// In the middle of the width, around @p middle.
    void paintEmptyState(const QRect &page, int middle, const EmptyState &state);
    /// Lets what @p paint paints fade out towards the bottom of @p rect.
    void paintFading(const QRect &rect, const std::function<void(QPainter &)> &paint);

private:
    void paintText(const RowLayout &layout, const Marks &marks);
    void paintQuote(const QRect &block, const QString &quote, bool isHovered);
    void paintAction(const QRect &line, const QString &text, bool isHovered);

    QPainter &m_painter;
    const QPalette &m_palette;
    QColor m_meta; ///< the colour of everything but the text
};
