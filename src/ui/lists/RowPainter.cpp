#include "ui/lists/RowPainter.h"

#include "ui/looks/Design.h"
#include "ui/looks/NoteStyle.h"
#include "ui/looks/Symbol.h"

#include <QPainter>
#include <QWidget>

RowPainter::RowPainter(QPainter &painter, const QPalette &palette)
    : m_painter(painter)
    , m_palette(palette)
    , m_meta(NoteStyle::color(palette, Design::metaText))
{
}

QPixmap RowPainter::dragged(const QString &text, const QWidget &source)
{
    const QRect rect(0, 0, Design::menuTextWidth, Design::headerHeight);
    QPixmap pixmap(rect.size() * source.devicePixelRatioF());
    pixmap.setDevicePixelRatio(source.devicePixelRatioF());
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    const QPalette &palette = source.palette();
    NoteStyle::fillRounded(painter, rect, Design::rowRadius, NoteStyle::color(palette, Design::quoteGround));
    painter.setFont(NoteStyle::font());
    painter.setPen(NoteStyle::color(palette, Design::text));
    NoteStyle::drawLine(painter, rect.adjusted(Design::edge, 0, -Design::edge, 0), text.simplified());
    return pixmap;
}

void RowPainter::paintHeader(const QRect &rect, const QString &text)
{
    m_painter.setFont(NoteStyle::headerFont());
    m_painter.setPen(m_meta);
    NoteStyle::drawLine(m_painter, rect.adjusted(Design::edge, 0, -Design::edge, 0), text);
}

void RowPainter::paintRow(const QRect &rect, const RowLayout &layout, const Marks &marks)
{
    const RowContent &content = layout.content();
    if (content.isHeader()) {
        paintHeader(rect, content.header);
        return;
    }
    m_painter.setRenderHint(QPainter::Antialiasing);
    const QRect ground = rect.adjusted(Design::grid, 1, -Design::grid, -1);
    if (marks.ground.isValid())
        NoteStyle::fillRounded(m_painter, ground, Design::rowRadius, marks.ground);
    if (marks.flash > 0) {
        QColor flash = NoteStyle::color(m_palette, Design::flashGround);
        flash.setAlphaF(float(marks.flash));
        NoteStyle::fillRounded(m_painter, ground, Design::rowRadius, flash);
    }
    const QColor accent = NoteStyle::color(m_palette, Design::tagText);
    if (marks.isEdited) {
        const QRect edge(ground.left(), ground.top() + Design::grid, Design::accentWidth,
            ground.height() - 2 * Design::grid);
        NoteStyle::fillRounded(m_painter, edge, 1, accent);
    }
    if (marks.isCurrent)
        NoteStyle::outlineFocus(m_painter, ground, Design::rowRadius, m_palette);
    const QColor text = NoteStyle::color(m_palette, Design::text);
    const RowLayout::Parts &parts = layout.parts();
    m_painter.translate(rect.topLeft());
    if (!content.quote.isEmpty())
        paintQuote(parts.quote, content.quote, marks.hovered.kind == RowPart::Kind::Quote);
    m_painter.setFont(NoteStyle::quoteFont());
    m_painter.setPen(m_meta);
    if (marks.isEdited) {
        constexpr int size = Design::symbolSize;
        const QRect pencil(parts.lead.left() + Design::grid,
            parts.lead.top() + (parts.lead.height() - size) / 2, size, size);
        Symbol::paint(m_painter, pencil, QStringLiteral("pencil"), accent);
    } else {
        NoteStyle::drawLine(m_painter, parts.lead, content.lead);
    }
    NoteStyle::drawLine(m_painter, parts.above, content.above);
    NoteStyle::drawLine(m_painter, parts.marker, content.marker);
    NoteStyle::drawLine(m_painter, parts.trailing, content.trailing, Qt::AlignRight);
    if (!content.link.isEmpty()) {
        QRect line = parts.link;
        if (!content.linkSymbol.isEmpty()) {
            constexpr int size = Design::smallSymbolSize;
            Symbol::paint(m_painter, {line.left(), line.top() + (line.height() - size) / 2, size, size},
                content.linkSymbol, m_meta);
            line.adjust(size + Design::grid, 0, 0, 0);
        }
        paintAction(line, content.link, marks.hovered.kind == RowPart::Kind::Link);
    }
    if (!parts.fold.isEmpty())
        paintAction(parts.fold, layout.foldText(), marks.hovered.kind == RowPart::Kind::Fold);
    const bool isAwake = marks.isCurrent || marks.hovered.kind != RowPart::Kind::None;
    for (qsizetype i = 0; i < content.symbols.size(); ++i) {
        const bool isHovered = marks.hovered == RowPart{RowPart::Kind::Button, int(i)};
        const RowSymbol &symbol = content.symbols[i];
        const bool isQuiet = symbol.isQuiet && !isAwake;
        Symbol::paint(m_painter, parts.symbols[i], symbol.name,
            isQuiet     ? NoteStyle::color(m_palette, Design::hairline)
            : isHovered ? text
                        : m_meta);
    }
    m_painter.setPen(content.isExpired ? m_meta : text);
    paintText(layout, marks);
    m_painter.translate(-rect.topLeft());
}

void RowPainter::paintText(const RowLayout &layout, const Marks &marks)
{
    QList<QTextLayout::FormatRange> marked;
    const auto mark = [&](const TextRange &range, const QTextCharFormat &format) {
        marked.append({int(range.start), int(range.length()), format});
    };
    if (marks.hovered.kind == RowPart::Kind::Address) {
        QTextCharFormat link;
        link.setForeground(NoteStyle::color(m_palette, Design::tagText));
        link.setFontUnderline(true);
        for (const RowLayout::Target &target : layout.targets()) {
            if (target.part == marks.hovered)
                mark(target.range, link);
        }
    }
    QTextCharFormat selected;
    selected.setForeground(NoteStyle::color(m_palette, Design::text));
    selected.setBackground(NoteStyle::color(m_palette, Design::selectionGround));
    if (!marks.selected.isEmpty())
        mark(marks.selected, selected);
    layout.text().draw(&m_painter, {}, marked, m_painter.clipBoundingRect());
}

void RowPainter::paintQuote(const QRect &block, const QString &quote, bool isHovered)
{
    constexpr int size = Design::smallSymbolSize;
    const QColor color = isHovered ? NoteStyle::color(m_palette, Design::text) : m_meta;
    NoteStyle::fillRounded(m_painter, block, Design::grid, NoteStyle::color(m_palette, Design::quoteGround));
    Symbol::paint(m_painter,
        {block.left() + Design::grid, block.top() + (block.height() - size) / 2, size, size},
        QStringLiteral("text.quote"), color);
    m_painter.setFont(NoteStyle::quoteFont());
    m_painter.setPen(color);
    NoteStyle::drawLine(
        m_painter, block.adjusted(size + 2 * Design::grid, 0, -Design::grid, 0), quote.simplified());
}

void RowPainter::paintAction(const QRect &line, const QString &text, bool isHovered)
{
    QFont font = NoteStyle::quoteFont();
    font.setUnderline(isHovered);
    m_painter.setFont(font);
    m_painter.setPen(NoteStyle::color(m_palette, Design::tagText));
    NoteStyle::drawLine(m_painter, line, text);
}

void RowPainter::paintEmptyState(const QRect &page, int middle, const EmptyState &state)
{
    constexpr int size = Design::emptySymbolSize;
    QRect rest = page.adjusted(Design::edge, 0, -Design::edge, 0);
    rest.setTop(middle - size - 2 * Design::edge);
    Symbol::paint(m_painter, {rest.center().x() - size / 2, rest.top(), size, size}, state.symbol,
        NoteStyle::color(m_palette, Design::hairline));
    m_painter.setPen(m_meta);
    rest.adjust(0, size + Design::edge, 0, 0);
    const auto draw = [&](const QFont &font, const QString &text) {
        QRect drawn;
        m_painter.setFont(font);
        m_painter.drawText(rest, Qt::AlignHCenter | Qt::AlignTop | Qt::TextWordWrap, text, &drawn);
        rest.setTop(drawn.bottom() + Design::rowPadding);
    };
    draw(NoteStyle::font(), state.text);
    rest.adjust(0, Design::grid, 0, 0);
    for (const QString &hint : state.hints)
        draw(NoteStyle::quoteFont(), hint);
}

void RowPainter::paintFading(const QRect &rect, const std::function<void(QPainter &)> &paint)
{
    // Through an image, so that whatever is behind the list does not fade.
    const qreal ratio = m_painter.device()->devicePixelRatioF();
    QImage image(rect.size() * ratio, QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(ratio);
    image.fill(Qt::transparent);
    QPainter onImage(&image);
    onImage.translate(-rect.topLeft());
    onImage.setClipRect(rect);
    paint(onImage);
    onImage.setCompositionMode(QPainter::CompositionMode_DestinationIn);
    QLinearGradient fade(rect.topLeft(), rect.bottomLeft());
    fade.setColorAt(0, Qt::black);
    fade.setColorAt(1, Qt::transparent);
    onImage.fillRect(rect, fade);
    onImage.end();
    m_painter.drawImage(rect.topLeft(), image);
}
