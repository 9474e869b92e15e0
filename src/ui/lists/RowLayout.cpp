#include "ui/lists/RowLayout.h"

#include "foundation/CaseFolding.h"
#include "text/L10n.h"
#include "text/TagEditing.h"
#include "text/WebLink.h"
#include "ui/looks/Design.h"
#include "ui/looks/NoteStyle.h"

#include <QPalette>
#include <QTextCharFormat>

#include <algorithm>
#include <limits>

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

constexpr int maxLines = 12;    ///< up to which a text is not folded
constexpr int foldedLines = 10; ///< of one that is
// More than all the lines of a folded text hold; and of an unfolded one, what can be laid out between two
// keys. The whole of it is shown when the note is edited.
constexpr qsizetype maxFolded = 2000;
constexpr qsizetype maxUnfolded = 20'000;

/// Where an excerpt with a match begins: a little before, but not so far that the match is out of sight.
qsizetype excerptStart(const QString &text, qsizetype match)
{
    qsizetype start = std::max<qsizetype>(0, match - 40);
    if (const qsizetype lineBreak = text.sliced(start, match - start).lastIndexOf(u'\n'); lineBreak >= 0)
        start += lineBreak + 1;
    return start > 0 && text[start].isLowSurrogate() ? start - 1 : start;
}
} // namespace

RowLayout::RowLayout(RowContent content, int width, const QPalette &palette)
    : m_content(std::move(content))
    , m_text(QString(), NoteStyle::fontFor(m_content.text, NoteStyle::font()))
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
    if (m_content.text.isRightToLeft()) {
        option.setTextDirection(Qt::RightToLeft);
        option.setAlignment(Qt::AlignRight | Qt::AlignAbsolute);
    }
    m_text.setTextOption(option);
    const int textTop = y;
    fold({left, y}, textWidth, palette);
    findTargets();
    const QTextLine last = m_text.lineAt(m_text.lineCount() - 1);
    const int firstLine = int(m_text.lineAt(0).height());
    y = int(last.y() + last.height());
    addSmallLine(m_foldText, m_parts.fold);
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

void RowLayout::showText(qsizetype from, qsizetype maxLength, const QPalette &palette)
{
    constexpr QChar ellipsis(0x2026);
    const QStringView rest = QStringView(m_content.text).sliced(from);
    QString text = rest.first(std::min(maxLength, rest.size())).toString();
    if (from > 0)
        text.prepend(ellipsis);
    m_from = from;
    m_own = {from > 0, text.size()};
    if (rest.size() > maxLength)
        text.append(ellipsis);
    m_text.setText(text.replace(u'\n', QChar::LineSeparator));
    m_text.setFormats(colours(m_text.text(), m_content.query, palette));
}

int RowLayout::breakLines(QPoint topLeft, int width, int maxCount)
{
    int y = topLeft.y();
    m_text.beginLayout();
    for (int count = 0; count < maxCount; ++count) {
        QTextLine line = m_text.createLine();
        if (!line.isValid())
            break;
        line.setLineWidth(width);
        line.setPosition({qreal(topLeft.x()), qreal(y)});
        y += int(line.height());
    }
    m_text.endLayout();
    return m_text.lineCount();
}

void RowLayout::fold(QPoint topLeft, int width, const QPalette &palette)
{
    constexpr int all = std::numeric_limits<int>::max();
    const qsizetype size = m_content.text.size();
    const bool isUnfolded = m_content.fold == RowContent::Fold::Unfolded;
    showText(0, isUnfolded ? maxUnfolded : maxFolded, palette);
    int lines = breakLines(topLeft, width, all);
    if (m_content.fold == RowContent::Fold::Never || (lines <= maxLines && size <= maxFolded))
        return;
    if (isUnfolded) {
        const QString left = QString::number(size - maxUnfolded);
        m_foldText = size <= maxUnfolded ? L10n::text("收起")
                                         : L10n::text("收起 · 另有 %@ 字，编辑时可见", QStringList{left});
        return;
    }
    const auto end = [&] {
        return lines > foldedLines ? m_text.lineAt(foldedLines).textStart() : m_text.text().size();
    };
    const QString query = m_content.query.trimmed();
    const qsizetype match = query.isEmpty() ? -1 : CaseFolding::indexOf(m_content.text, query);
    const qsizetype from = match + query.size() > end() ? excerptStart(m_content.text, match) : 0;
    if (from > 0) {
        showText(from, maxFolded, palette);
        lines = breakLines(topLeft, width, all);
    }
    const qsizetype hidden = size - end() + (from > 0); // without the ellipsis
    m_foldText = from == 0 && size <= maxFolded
                     ? L10n::text("展开 · 还有 %@ 行", QStringList{QString::number(lines - foldedLines)})
                     : L10n::text("展开 · 还有 %@ 字", QStringList{QString::number(hidden)});
    if (lines > foldedLines)
        breakLines(topLeft, width, foldedLines);
}

int RowLayout::estimatedHeight(const QString &text, int width)
{
    constexpr int lineHeight = 20;
    const qsizetype perLine = std::max(1, (width - 90) / Design::bodySize);
    const qsizetype lines = std::clamp<qsizetype>(text.size() / perLine + 1, 1, maxLines);
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
    if (m_parts.fold.contains(point))
        return {RowPart::Kind::Fold};
    if (m_parts.link.contains(point))
        return {RowPart::Kind::Link};
    if (isOnText(point)) {
        const int unit = unitAt(point);
        for (const Target &target : m_targets) {
            if (target.range.start <= unit && unit < target.range.end)
                return target.part;
        }
    }
    return {RowPart::Kind::Body};
}

QTextLine RowLayout::lineAt(int y) const
{
    int line = 0;
    while (line + 1 < m_text.lineCount() && m_text.lineAt(line).rect().bottom() <= y)
        ++line;
    return m_text.lineAt(line);
}

bool RowLayout::isOnText(QPoint point) const
{
    return m_text.lineCount() > 0 && lineAt(point.y()).naturalTextRect().contains(point);
}

int RowLayout::unitAt(QPoint point) const
{
    return lineAt(point.y()).xToCursor(point.x(), QTextLine::CursorOnCharacter);
}

int RowLayout::positionAt(QPoint point) const
{
    if (m_text.lineCount() == 0)
        return 0;
    const QTextLine line = lineAt(point.y());
    if (point.y() < line.rect().top())
        return 0;
    if (point.y() >= line.rect().bottom())
        return line.textStart() + line.textLength();
    return line.xToCursor(point.x());
}

void RowLayout::findTargets()
{
    const QStringView text = m_content.text;
    const bool beginsInWord = m_from > 0 && !text[m_from - 1].isSpace();
    const qsizetype shownEnd = m_from + m_own.length();
    qsizetype end = shownEnd; // of the word that is cut there, so that no part of it passes for the whole
    while (end < text.size() && end < shownEnd + maxFolded && !text[end].isSpace())
        ++end;
    const QStringView shown = text.sliced(m_from, end - m_from);
    const auto add = [&](const TextRange &range, RowPart::Kind kind, const QString &target) {
        if (range.end <= m_own.length() && (range.start > 0 || !beginsInWord))
            m_targets.append({{range.start + m_own.start, range.end + m_own.start}, {kind, -1, target}});
    };
    for (const WebLink::Address &address : WebLink::addresses(shown))
        add(address.range, RowPart::Kind::Address, address.address);
    for (const TagEditing::Token &tag : TagEditing::tokens(shown))
        add(tag.range, RowPart::Kind::Tag, tag.text);
}
