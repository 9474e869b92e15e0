#include "ui/RowLayout.h"

#include "ui/Design.h"
#include "ui/NoteStyle.h"

#include <QPainter>
#include <QPalette>
#include <QTextCharFormat>

#include <algorithm>

namespace {
QList<QTextLayout::FormatRange> colours(const QString &text, const QString &query, const QPalette &palette)
{
    QList<QTextLayout::FormatRange> ranges;
    int start = 0;
    for (const NoteHighlighting::Segment &segment : NoteHighlighting::segments(text, query)) {
        const int length = int(segment.text.size());
        const QColor color = NoteStyle::segmentColor(segment.kind, palette);
        if (color.isValid()) {
            QTextLayout::FormatRange range{start, length, {}};
            range.format.setForeground(color);
            ranges.append(range);
        }
        start += length;
    }
    return ranges;
}
} // namespace

RowLayout::RowLayout(const RowContent &content, int width, const QPalette &palette)
    : m_content(content)
    // A text that came from elsewhere may have lines of its own.
    , m_text(QString(content.text).replace(u'\n', QChar::LineSeparator), NoteStyle::font())
{
    const int textLeft = Design::edge + Design::timeColumn;
    const int textWidth = std::max(1, width - textLeft - Design::edge - Design::symbolSize - Design::grid);
    m_text.setCacheEnabled(true);
    QTextOption option;
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    m_text.setTextOption(option);
    m_text.setFormats(colours(content.text, content.query, palette));
    m_text.beginLayout();
    qreal y = Design::rowPadding;
    int firstLine = 0;
    for (QTextLine line = m_text.createLine(); line.isValid(); line = m_text.createLine()) {
        line.setLineWidth(textWidth);
        line.setPosition({qreal(textLeft), y});
        y += line.height();
        if (firstLine == 0)
            firstLine = int(line.height());
    }
    m_text.endLayout();

    if (!content.marker.isEmpty()) {
        m_markerRect = {textLeft, int(y), textWidth, Design::markerHeight};
        y += Design::markerHeight;
    }
    m_height = int(y) + Design::rowPadding;
    m_timeRect = {Design::edge, Design::rowPadding, Design::timeColumn, firstLine};
    m_symbolRect = {width - Design::edge - Design::symbolSize,
        Design::rowPadding + (firstLine - Design::symbolSize) / 2, Design::symbolSize, Design::symbolSize};
}

void RowLayout::drawText(QPainter &painter, QPoint rowOrigin) const
{
    m_text.draw(&painter, rowOrigin);
}
