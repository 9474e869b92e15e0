#include "ui/lists/RowLayout.h"

#include "ui/looks/Design.h"
#include "ui/looks/NoteStyle.h"

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

/// An imported text may contain line breaks, and be longer than is useful in a list; the whole of it is shown
/// when the note is edited.
QString shownText(const QString &text)
{
    constexpr qsizetype maxShown = 2000;
    QString shown = text.size() > maxShown ? text.first(maxShown) + QChar(0x2026) : text;
    return shown.replace(u'\n', QChar::LineSeparator);
}
} // namespace

RowLayout::RowLayout(RowContent content, int width, const QPalette &palette)
    : m_content(std::move(content))
    , m_text(shownText(m_content.text), NoteStyle::font())
{
    if (m_content.isHeader()) {
        m_height = Design::headerHeight;
        return;
    }
    const int symbols = int(m_content.symbols.size()) * (Design::symbolSize + Design::grid);
    const int trailing = m_content.trailing.isEmpty() ? 0 : Design::timeColumn;
    const int left = Design::edge + (m_content.lead.isEmpty() ? 0 : Design::timeColumn);
    const int right = width - Design::edge - std::max(symbols, Design::symbolSize + Design::grid) - trailing;
    const int textWidth = std::max(1, right - left);
    const auto smallLine = [&](int y) { return QRect(left, y, textWidth, Design::smallLineHeight); };

    int y = Design::rowPadding;
    if (!m_content.above.isEmpty()) {
        m_aboveRect = smallLine(y);
        y += Design::smallLineHeight;
    }
    if (!m_content.quote.isEmpty()) {
        m_quoteRect = QRect(left, y, textWidth, Design::quoteHeight);
        y += Design::quoteHeight + Design::grid;
    }

    m_text.setCacheEnabled(true);
    QTextOption option;
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    m_text.setTextOption(option);
    m_text.setFormats(colours(m_text.text(), m_content.query, palette));
    const int textTop = y;
    int firstLine = 0;
    m_text.beginLayout();
    for (QTextLine line = m_text.createLine(); line.isValid(); line = m_text.createLine()) {
        line.setLineWidth(textWidth);
        line.setPosition({qreal(left), qreal(y)});
        y += int(line.height());
        if (firstLine == 0)
            firstLine = int(line.height());
    }
    m_text.endLayout();

    if (!m_content.link.isEmpty()) {
        m_linkRect = smallLine(y);
        y += Design::smallLineHeight;
    }
    if (!m_content.marker.isEmpty()) {
        m_markerRect = smallLine(y);
        y += Design::smallLineHeight;
    }
    m_height = y + Design::rowPadding;
    const int leadHeight = m_content.quote.isEmpty() ? firstLine : Design::quoteHeight;
    m_leadRect = {Design::edge, m_content.quote.isEmpty() ? textTop : m_quoteRect.top(), Design::timeColumn,
        leadHeight};
    m_trailingRect = {right, textTop, trailing + Design::symbolSize + Design::grid, firstLine};
    m_symbols = {
        width - Design::edge - symbols + Design::grid, textTop + (firstLine - Design::symbolSize) / 2};
}

int RowLayout::estimatedHeight(const QString &text, int width)
{
    constexpr int lineHeight = 20;
    const qsizetype perLine = std::max(1, (width - 90) / Design::bodySize);
    const qsizetype lines = std::clamp<qsizetype>(text.size() / perLine + 1, 1, 100);
    return int(lines) * lineHeight + 2 * Design::rowPadding;
}

QRect RowLayout::symbolRect(qsizetype symbol) const
{
    const int step = Design::symbolSize + Design::grid;
    return {m_symbols.x() + int(symbol) * step, m_symbols.y(), Design::symbolSize, Design::symbolSize};
}

RowPart RowLayout::partAt(QPoint point) const
{
    if (m_content.isHeader() || point.y() < 0 || point.y() >= m_height)
        return {};
    for (qsizetype symbol = 0; symbol < m_content.symbols.size(); ++symbol) {
        const int around = Design::grid; // a symbol is small to hit
        if (symbolRect(symbol).adjusted(-around, -around, around, around).contains(point))
            return {RowPart::Kind::Symbol, int(symbol)};
    }
    if (m_quoteRect.contains(point))
        return {RowPart::Kind::Quote};
    if (m_linkRect.contains(point))
        return {RowPart::Kind::Link};
    return {RowPart::Kind::Body};
}

void RowLayout::drawText(QPainter &painter, QPoint rowOrigin) const
{
    m_text.draw(&painter, rowOrigin);
}
