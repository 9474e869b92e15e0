#include "ui/lists/RowScrollArea.h"

#include "ui/lists/RowModel.h"
#include "ui/looks/Design.h"
#include "ui/looks/SlimScrollBar.h"

#include <QEasingCurve>
#include <QPaintEvent>
#include <QPainter>

#include <algorithm>
#include <cmath>

RowScrollArea::RowScrollArea(RowModel &model, QWidget *parent)
    : QAbstractScrollArea(parent)
    , m_model(model)
{
    setFrameShape(QFrame::NoFrame);
    setFocusPolicy(Qt::StrongFocus);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollBar(new SlimScrollBar(this));
    // Always there, though it paints nothing where all is in view: a bar that comes and goes changes the
    // width, and with it the heights that it follows from.
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    verticalScrollBar()->setSingleStep(Design::headerHeight);
    viewport()->setAutoFillBackground(false);
    viewport()->setMouseTracking(true);

    connect(&m_model, &RowModel::rowsInserted, this,
        [this](const QModelIndex &, int first, int last) { didInsertRows(first, last - first + 1); });
    connect(&m_model, &RowModel::rowsRemoved, this,
        [this](const QModelIndex &, int first, int last) { didRemoveRows(first, last - first + 1); });
    connect(
        &m_model, &RowModel::dataChanged, this, [this](const QModelIndex &first, const QModelIndex &last) {
            m_geometry.invalidate(first.row(), last.row() - first.row() + 1);
            geometryChanged();
        });
    m_model.setParent(this);
    m_model.setSeen(false);
    estimateAll();

    m_scrolling.setDuration(int(Design::scrollDuration.count()));
    m_scrolling.setEasingCurve(QEasingCurve::OutCubic);
    m_scrolling.setStartValue(0.0);
    m_scrolling.setEndValue(1.0);
    connect(&m_scrolling, &QVariantAnimation::valueChanged, this,
        [this](const QVariant &value) { scrollStep(value.toDouble()); });
}

// Where the rows are

void RowScrollArea::didInsertRows(int first, int count)
{
    m_geometry.insert(first, estimatedHeights(first, count));
    geometryChanged();
}

void RowScrollArea::didRemoveRows(int first, int count)
{
    m_geometry.remove(first, count);
    geometryChanged();
}

void RowScrollArea::forgetHeights()
{
    m_geometry.invalidate(0, m_geometry.count());
    viewport()->update();
}

std::vector<int> RowScrollArea::estimatedHeights(int first, int count) const
{
    std::vector<int> heights(static_cast<size_t>(count), Design::headerHeight);
    for (int row = first; row < first + count; ++row) {
        if (!m_model.isHeader(row))
            heights[size_t(row - first)] = RowLayout::estimatedHeight(m_model.text(row), viewport()->width());
    }
    return heights;
}

void RowScrollArea::estimateAll()
{
    m_layouts.clear();
    m_geometry.reset(estimatedHeights(0, m_model.rowCount()));
    geometryChanged();
}

void RowScrollArea::geometryChanged()
{
    constexpr int spaceBelow = 2 * Design::grid;
    const int offset = m_geometry.offset(); // before a shorter range changes it
    const int end = m_geometry.top(m_geometry.count());
    verticalScrollBar()->setPageStep(page());
    verticalScrollBar()->setRange(0, std::max(0, end + spaceBelow - page()));
    verticalScrollBar()->setValue(offset);
    m_geometry.setOffset(verticalScrollBar()->value(), page());
    didMoveRows();
    viewport()->update();
}

const RowLayout &RowScrollArea::layoutOf(int row) const
{
    const RowContent content = m_model.content(row);
    if (const RowLayout *cached = m_layouts.object(content))
        return *cached;
    auto *layout = new RowLayout(content, viewport()->width(), palette());
    m_layouts.insert(content, layout); // takes ownership, and drops the one unused for longest
    return *layout;
}

bool RowScrollArea::measure(int firstRow, int lastRow)
{
    bool hasMeasured = false;
    for (int row = std::max(0, firstRow); row <= lastRow; ++row) {
        if (!m_geometry.isMeasured(row)) {
            m_geometry.setHeight(row, layoutOf(row).height());
            hasMeasured = true;
        }
    }
    return hasMeasured;
}

void RowScrollArea::measureRowsInView()
{
    // A measured row moves others, which may bring more of them into view.
    bool hasMeasured = false;
    while (measure(firstRowInView(), lastRowInView()))
        hasMeasured = true;
    if (hasMeasured)
        geometryChanged();
}

QRect RowScrollArea::rectOf(int row) const
{
    if (row < 0 || row >= m_geometry.count())
        return {};
    const int top = m_geometry.top(row);
    return {0, top - m_geometry.offset(), viewport()->width(), m_geometry.bottom(row) - top};
}

int RowScrollArea::rowAt(QPoint point) const
{
    const int row = m_geometry.rowAt(point.y() + m_geometry.offset());
    return rectOf(row).contains(point) ? row : -1;
}

int RowScrollArea::firstRowInView() const
{
    return m_geometry.rowAt(m_geometry.offset());
}

int RowScrollArea::lastRowInView() const
{
    return m_geometry.rowAt(m_geometry.offset() + page());
}

int RowScrollArea::rowPagesAway(int row, int pages) const
{
    return m_geometry.rowAt(m_geometry.top(row) + pages * page());
}

// Scrolling

void RowScrollArea::scrollContentsBy(int, int)
{
    m_geometry.setOffset(verticalScrollBar()->value(), page());
    didMoveRows();
    viewport()->update();
}

void RowScrollArea::scrollTo(int row)
{
    m_scrolling.stop();
    measure(row, row);
    geometryChanged();
    verticalScrollBar()->setValue(m_geometry.offsetToShow(row, page(), Design::headerHeight));
}

void RowScrollArea::scrollToCenter(int row)
{
    m_scrolling.stop();
    m_scrollTarget = m_model.index(row);
    m_scrollProgress = 0;
    m_scrolling.start();
}

void RowScrollArea::scrollStep(double progress)
{
    if (!m_scrollTarget.isValid()) {
        m_scrolling.stop();
        return;
    }
    // The rows around the target are measured first: what is measured on the way may move the target.
    const int row = m_scrollTarget.row();
    if (measure(rowPagesAway(row, -1), rowPagesAway(row, 1)))
        geometryChanged();
    const int offset = m_geometry.offset();
    const int target = std::clamp(m_geometry.offsetToCenter(row, page()), 0, verticalScrollBar()->maximum());
    const double share = m_scrollProgress < 1 ? (progress - m_scrollProgress) / (1 - m_scrollProgress) : 1;
    m_scrollProgress = progress;
    verticalScrollBar()->setValue(offset + int(std::lround((target - offset) * share)));
}

// Painting

void RowScrollArea::paintEvent(QPaintEvent *event)
{
    QPainter painter(viewport());
    RowPainter rows(painter, palette());
    const QRect view = viewport()->rect();
    if (m_geometry.count() == 0) {
        rows.paintEmptyState(view, emptyState());
        return;
    }
    measureRowsInView();
    const PinnedHeader header = pinnedHeader();
    const int headerBottom = header.row < 0 ? 0 : header.top + Design::headerHeight;
    const int fading = std::min(Design::fadingEdge, verticalScrollBar()->maximum() - m_geometry.offset());
    const QRect fadingRect = view.adjusted(0, view.height() - fading, 0, 0);
    painter.setClipRect(view.adjusted(0, headerBottom, 0, -fading));
    paintRows(painter, event->rect());
    painter.setClipping(false);
    if (header.row >= 0) {
        rows.paintHeader(
            {0, header.top, view.width(), Design::headerHeight}, m_model.content(header.row).header);
    }
    if (event->rect().intersects(fadingRect))
        rows.paintFading(fadingRect, [&](QPainter &faded) { paintRows(faded, fadingRect); });
}

void RowScrollArea::paintRows(QPainter &painter, const QRect &part) const
{
    RowPainter rows(painter, palette());
    const int last = m_geometry.rowAt(m_geometry.offset() + part.bottom());
    for (int row = m_geometry.rowAt(m_geometry.offset() + part.top()); row <= last; ++row)
        rows.paintRow(rectOf(row), layoutOf(row), marksOf(row));
}

RowScrollArea::PinnedHeader RowScrollArea::pinnedHeader() const
{
    const int offset = m_geometry.offset();
    int header = firstRowInView();
    while (header >= 0 && !m_model.isHeader(header))
        --header;
    if (header < 0 || offset == 0)
        return {};
    // The next header pushes it out.
    for (int next = header + 1;
         next < m_geometry.count() && m_geometry.top(next) < offset + Design::headerHeight; ++next) {
        if (m_model.isHeader(next))
            return {header, m_geometry.top(next) - offset - Design::headerHeight};
    }
    return {header, 0};
}

// Qt's calls

void RowScrollArea::resizeEvent(QResizeEvent *event)
{
    QAbstractScrollArea::resizeEvent(event);
    if (event->size().width() != event->oldSize().width())
        estimateAll();
    else
        geometryChanged();
}

void RowScrollArea::showEvent(QShowEvent *event)
{
    m_model.setSeen(true);
    QAbstractScrollArea::showEvent(event);
}

void RowScrollArea::hideEvent(QHideEvent *event)
{
    m_model.setSeen(false);
    QAbstractScrollArea::hideEvent(event);
}

void RowScrollArea::changeEvent(QEvent *event)
{
    QAbstractScrollArea::changeEvent(event);
    if (event->type() == QEvent::FontChange)
        estimateAll();
    else if (event->type() == QEvent::PaletteChange || event->type() == QEvent::StyleChange)
        m_layouts.clear();
}
