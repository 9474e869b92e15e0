#pragma once

#include "foundation/TextRange.h"
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
        QRect fold; ///< empty too where all of the text is shown anyway
        QRect link;
        QRect marker;
        QRect trailing;
        QList<QRect> symbols;
    };
    // In the row's own coordinates.
    [[nodiscard]] const Parts &parts() const { return m_parts; }
    [[nodiscard]] const QTextLayout &text() const { return m_text; }
    [[nodiscard]] const QString &foldText() const { return m_foldText; }
    [[nodiscard]] RowPart partAt(QPoint point) const;
    [[nodiscard]] bool isOnText(QPoint point) const; ///< on a line of it, not beside
    /// The place between two characters of the text that is nearest to the point.
    [[nodiscard]] int positionAt(QPoint point) const;
    [[nodiscard]] int unitAt(QPoint point) const; ///< of the character under a point on the text
    struct Target {
        TextRange range;
        RowPart part;
    };
    /// The addresses in the text, then the tags; without those that are not shown whole.
    [[nodiscard]] const QList<Target> &targets() const { return m_targets; }
    /// What of the text is the row's own, and no mark of what is left out.
    [[nodiscard]] const TextRange &ownText() const { return m_own; }

private:
    /// A part of the text, as long as is useful; what is left out is marked.
    void showText(qsizetype from, qsizetype maxLength, const QPalette &palette);
    /// Breaks the text into lines; the number of them.
    int breakLines(QPoint topLeft, int width, int maxLines);
    /// Decides which part of the text is shown, and breaks it.
    void fold(QPoint topLeft, int width, const QPalette &palette);
    void findTargets();
    [[nodiscard]] QTextLine lineAt(int y) const; ///< or the nearest

    RowContent m_content;
    QTextLayout m_text;
    qsizetype m_from = 0; ///< where the shown part of the text begins
    TextRange m_own;
    QList<Target> m_targets;
    Parts m_parts;
    QString m_foldText;
    int m_height = 0;
};
