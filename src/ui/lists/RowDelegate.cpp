#include "ui/lists/RowDelegate.h"

#include "ui/lists/RowModel.h"
#include "ui/looks/Design.h"
#include "ui/looks/NoteStyle.h"
#include "ui/looks/Symbol.h"

#include <QPainter>

namespace {
void drawLine(
    QPainter &painter, const QRect &place, const QString &text, Qt::Alignment alignment = Qt::AlignLeft)
{
    painter.drawText(place, int(alignment | Qt::AlignVCenter) | Qt::TextSingleLine,
        painter.fontMetrics().elidedText(text, Qt::ElideRight, place.width()));
}
} // namespace

RowDelegate::RowDelegate(const RowModel &model, QObject *parent)
    : QStyledItemDelegate(parent)
    , m_model(model)
    , m_layouts(200)
{
}

RowDelegate::~RowDelegate() = default;

const RowLayout &RowDelegate::layout(int row, int width, const QPalette &palette) const
{
    const Key key{m_model.content(row), width, NoteStyle::isDark(palette)};
    if (const RowLayout *kept = m_layouts.object(key))
        return *kept;
    auto *made = new RowLayout(key.content, width, palette);
    m_layouts.insert(key, made); // which takes it, and drops one not used for long
    return *made;
}

void RowDelegate::paintHeader(
    QPainter &painter, const QRect &place, const QString &text, const QPalette &palette) const
{
    painter.setFont(NoteStyle::headerFont());
    painter.setPen(NoteStyle::metaColor(palette));
    drawLine(painter, place.adjusted(Design::edge, 0, -Design::edge, 0), text);
}

void RowDelegate::paintRow(
    QPainter &painter, const QRect &place, int row, const Marks &marks, const QPalette &palette) const
{
    const RowLayout &parts = layout(row, place.width(), palette);
    const RowContent &content = parts.content();
    if (content.isHeader()) {
        paintHeader(painter, place, content.header, palette);
        return;
    }
    const QPoint origin = place.topLeft();
    const QColor meta = NoteStyle::metaColor(palette);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    if (marks.ground.isValid()) {
        painter.setBrush(marks.ground);
        painter.drawRoundedRect(
            place.adjusted(Design::grid, 1, -Design::grid, -1), Design::rowRadius, Design::rowRadius);
    }
    if (!content.quote.isEmpty()) {
        const QRect block = parts.quoteRect().translated(origin);
        painter.setBrush(marks.hovered.kind == RowPart::Kind::Quote ? NoteStyle::hairline(palette)
                                                                    : NoteStyle::quoteGround(palette));
        painter.drawRoundedRect(block, Design::grid, Design::grid);
        const QRect symbol(block.left() + Design::grid,
            block.top() + (block.height() - Design::smallSymbolSize) / 2, Design::smallSymbolSize,
            Design::smallSymbolSize);
        Symbol::paint(painter, symbol, QStringLiteral("text.quote"), meta);
        painter.setFont(NoteStyle::quoteFont());
        painter.setPen(meta);
        drawLine(painter, block.adjusted(Design::smallSymbolSize + 2 * Design::grid, 0, -Design::grid, 0),
            content.quote.simplified());
    }
    painter.setFont(NoteStyle::quoteFont());
    painter.setPen(meta);
    drawLine(painter, parts.leadRect().translated(origin), content.lead);
    drawLine(painter, parts.aboveRect().translated(origin), content.above);
    drawLine(painter, parts.markerRect().translated(origin), content.marker);
    drawLine(painter, parts.trailingRect().translated(origin), content.trailing, Qt::AlignRight);
    if (!content.link.isEmpty()) {
        QRect line = parts.linkRect().translated(origin);
        if (!content.linkSymbol.isEmpty()) {
            Symbol::paint(painter,
                {line.left(), line.top() + (line.height() - Design::smallSymbolSize) / 2,
                    Design::smallSymbolSize, Design::smallSymbolSize},
                content.linkSymbol, meta);
            line.adjust(Design::smallSymbolSize + Design::grid, 0, 0, 0);
        }
        QFont font = NoteStyle::quoteFont();
        font.setUnderline(marks.hovered.kind == RowPart::Kind::Link);
        painter.setFont(font);
        painter.setPen(NoteStyle::tagColor(palette));
        drawLine(painter, line, content.link);
    }
    for (qsizetype i = 0; i < content.symbols.size(); ++i) {
        const bool isHovered = marks.hovered == RowPart{RowPart::Kind::Symbol, int(i)};
        Symbol::paint(painter, parts.symbolRect(i).translated(origin), content.symbols[i].name,
            isHovered && content.symbols[i].isButton ? NoteStyle::color(palette) : meta);
    }
    painter.setPen(content.isExpired ? meta : NoteStyle::color(palette));
    parts.drawText(painter, origin);
}
