#include "ui/lists/RowLayout.h"

#include "ui/looks/Design.h"
#include "ui/looks/NoteStyle.h"

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
    , m_text(shownText(m_content.text), NoteStyle::fontFor(m_content.text, NoteStyle::font()))
{
    if (m_content.isHeader()) {
        m_height = Design::headerHeight;
        return;
    }
    constexpr int symbolStep = Design::symbolSize + Design::grid;
    const int symbols = int(m_content.symbols.size()) * symbolStep;
    const int trailing = m_content.trailing.isEmpty() ? 0 : Design::timeColumn;
    const int left = Design::edge + (m_content.lead.isEmpty() ? 0 : Design::timeColumn);
    const int right = width - Design::edge - std::max(symbols, symbolStep) - trailing;
    const int textWidth = std::max(1, right - left);

    int y = Design::rowPadding;
    const auto addSmallLine = [&](const QString &line, QRect &rect) {
        if (line.isEmpty())
            return;
        rect = {left, y, textWidth, Design::smallLineHeight};
        y += Design::smallLineHeight;
    };
    addSmallLine(m_content.above, m_parts.above);
    if (!m_content.quote.isEmpty()) {
        m_parts.quote = {left, y, textWidth, Design::quoteHeight};
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

    addSmallLine(m_content.link, m_parts.link);
    addSmallLine(m_content.marker, m_parts.marker);
    m_height = y + Design::rowPadding;
    const bool isQuoting = !m_content.quote.isEmpty();
    m_parts.lead = {Design::edge, isQuoting ? m_parts.quote.top() : textTop, Design::timeColumn,
        isQuoting ? Design::quoteHeight : firstLine};
    m_parts.trailing = {right, textTop, trailing + symbolStep, firstLine};
    const QRect symbol(width - Design::edge - symbols + Design::grid,
        textTop + (firstLine - Design::symbolSize) / 2, Design::symbolSize, Design::symbolSize);
    for (int i = 0; i < m_content.symbols.size(); ++i)
        m_parts.symbols.append(symbol.translated(i * symbolStep, 0));
}

int RowLayout::estimatedHeight(const QString &text, int width)
{
    constexpr int lineHeight = 20;
    const qsizetype perLine = std::max(1, (width - 90) / Design::bodySize);
    const qsizetype lines = std::clamp<qsizetype>(text.size() / perLine + 1, 1, 100);
    return int(lines) * lineHeight + 2 * Design::rowPadding;
}

RowPart RowLayout::partAt(QPoint point) const
{
    if (m_content.isHeader() || point.y() < 0 || point.y() >= m_height)
        return {};
    for (qsizetype i = 0; i < m_content.symbols.size(); ++i) {
        const int around = Design::grid; // a symbol is small to hit
        if (m_parts.symbols[i].adjusted(-around, -around, around, around).contains(point))
            return {m_content.symbols[i].isButton ? RowPart::Kind::Button : RowPart::Kind::Symbol, int(i)};
    }
    if (m_parts.quote.contains(point))
        return {RowPart::Kind::Quote};
    if (m_parts.link.contains(point))
        return {RowPart::Kind::Link};
    return {RowPart::Kind::Body};
}
