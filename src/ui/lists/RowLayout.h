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

    /// Named as in RowContent; empty where the row has no such part.
    struct Parts {
        QRect lead;
        QRect above;
        QRect quote;
        QRect link;
        QRect marker;
        QRect trailing;
        QList<QRect> symbols;
    };
    // In the row's own coordinates.
    [[nodiscard]] const Parts &parts() const { return m_parts; }
    [[nodiscard]] const QTextLayout &text() const { return m_text; }
    [[nodiscard]] RowPart partAt(QPoint point) const;

private:
    RowContent m_content;
    QTextLayout m_text;
    Parts m_parts;
    int m_height = 0;
};
