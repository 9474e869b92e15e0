#include "ui/lists/RowScrollArea.h"

#include "ui/lists/RowModel.h"
#include "ui/looks/Design.h"
#include "ui/looks/SlimScrollBar.h"
#include "ui/looks/WidgetRole.h"

#include <QApplication>
#include <QPaintEvent>
#include <QPainter>
#include <QWheelEvent>

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
    verticalScrollBar()->installEventFilter(this);
    connect(verticalScrollBar(), &QScrollBar::actionTriggered, this, &RowScrollArea::didUseScrollBar);
    connect(verticalScrollBar(), &QScrollBar::sliderPressed, this, [this] { m_dragged = m_geometry; });
    connect(verticalScrollBar(), &QScrollBar::sliderReleased, this, [this] {
        m_dragged.reset();
        geometryChanged();
    });
    viewport()->setAutoFillBackground(false);
    viewport()->setMouseTracking(true);
    WidgetRole::set(*viewport(), QAccessible::Client);

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

    connect(&m_jump, &RowJump::moved, this, &RowScrollArea::jumpStep);
    connect(&m_jump, &RowJump::lightChanged, this, [this] { viewport()->update(rectOf(m_jump.row())); });
}

// Where the rows are

void RowScrollArea::didInsertRows(int first, int count)
{
    m_geometry.insert(first, estimatedHeights(first, count));
    rowsChanged();
}

void RowScrollArea::didRemoveRows(int first, int count)
{
    const int top = rectOf(firstRowInView()).top();
    const bool isAllInView = first <= firstRowInView() && lastRowInView() < first + count;
    m_geometry.remove(first, count);
    if (const int row = m_firstInView.row(); isAllInView && row >= 0) { // it has only moved
        measure(row, row);
        m_geometry.setOffset(std::clamp(m_geometry.top(row) - top, 0, maxOffset()), page());
    }
    rowsChanged();
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
    const RowGeometry before = m_geometry;
    m_geometry.reset(estimatedHeights(0, m_model.rowCount()));
    // What is read first stays: the text just below the pinned header.
    if (before.offset() > 0) {
        const int y = before.offset() + Design::headerHeight;
        measure(before.rowAt(y), before.rowAt(y));
        m_geometry.setOffset(m_geometry.yOf(before, y) - Design::headerHeight, page());
    }
    rowsChanged();
}

void RowScrollArea::rowsChanged()
{
    const bool isDragged = m_dragged.has_value();
    m_dragged.reset();
    geometryChanged();
    if (isDragged)
        m_dragged = m_geometry;
}

void RowScrollArea::geometryChanged()
{
    if (!m_dragged) {
        const int offset = m_geometry.offset(); // before a shorter range changes it
        verticalScrollBar()->setPageStep(page());
        verticalScrollBar()->setRange(0, maxOffset());
        verticalScrollBar()->setValue(offset);
        m_geometry.setOffset(verticalScrollBar()->value(), page());
    }
    offsetChanged();
}

void RowScrollArea::offsetChanged()
{
    m_firstInView = m_geometry.offset() > 0 ? m_model.index(firstRowInView()) : QModelIndex();
    didMoveRows();
    viewport()->update();
}

int RowScrollArea::maxOffset() const
{
    constexpr int spaceBelow = 2 * Design::grid;
    return std::max(0, m_geometry.top(m_geometry.count()) + std::max(spaceBelow, m_coveredBelow) - page());
}

RowGeometry::View RowScrollArea::view() const
{
    return {page(), Design::headerHeight, std::max(Design::fadingEdge, m_coveredBelow)};
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

void RowScrollArea::measureAround(int row, int distance)
{
    measure(row, row);
    for (const int step : {-1, 1}) {
        int next = row + step;
        for (int height = 0; height < distance && next >= 0 && next < m_geometry.count(); next += step) {
            measure(next, next);
            height += m_geometry.bottom(next) - m_geometry.top(next);
        }
    }
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
    const PinnedHeader header = pinnedHeader();
    if (header.row >= 0 && point.y() >= 0 && point.y() < header.top + Design::headerHeight)
        return header.row;
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

int RowScrollArea::rowPagesAway(int row, int pages)
{
    measureAround(row, std::abs(pages) * page());
    return m_geometry.rowAt(m_geometry.top(row) + pages * step());
}

// Scrolling

void RowScrollArea::setUnfolded(int row, bool isUnfolded)
{
    const int top = rectOf(row).top();
    m_model.setUnfolded(row, isUnfolded);
    measure(row, row);
    moveTo(m_geometry.top(row) - top);
    if (!isUnfolded)
        scrollTo(row);
}

void RowScrollArea::moveTo(int offset)
{
    m_geometry.setOffset(std::clamp(offset, 0, maxOffset()), page());
    geometryChanged();
}

void RowScrollArea::scrollBy(int distance)
{
    m_jump.stop();
    // What comes into view is measured before, so that it cannot move what is there by more or less.
    const auto rowAt = [this](int y) { return m_geometry.rowAt(m_geometry.offset() + y); };
    while (measure(rowAt(std::min(0, distance)), rowAt(page() + std::max(0, distance)))) {
    }
    moveTo(m_geometry.offset() + distance);
}

void RowScrollArea::scrollTo(int row)
{
    m_jump.stop();
    measureAround(row, page());
    moveTo(m_geometry.offsetToShow(row, view()));
}

bool RowScrollArea::scrollWithin(int row, int direction)
{
    m_jump.stop();
    measureAround(row, page());
    const int before = m_geometry.offset();
    moveTo(m_geometry.offsetWithin(row, view(), direction * step()));
    return m_geometry.offset() != before;
}

void RowScrollArea::scrollPage(int pages)
{
    scrollBy(pages * step());
}

void RowScrollArea::scrollToEnd(int direction)
{
    m_jump.stop();
    if (direction > 0 && m_geometry.count() > 0)
        measureAround(m_geometry.count() - 1, page());
    moveTo(direction < 0 ? 0 : maxOffset());
}

void RowScrollArea::setCoveredBelow(int height)
{
    m_coveredBelow = height;
    geometryChanged();
}

int RowScrollArea::step() const
{
    return std::max(1, page() - view().covered - view().faded);
}

// Jumps

void RowScrollArea::jumpTo(std::function<QModelIndex()> target)
{
    m_jump.start(std::move(target));
}

void RowScrollArea::jumpStep(double share)
{
    const int row = m_jump.row();
    if (row < 0) {
        m_jump.stop();
        return;
    }
    // Measured anew at each step, since rows may have come and gone. A far jump begins two pages away.
    const int farthest = 2 * page();
    measureAround(row, farthest + page());
    const int target = std::clamp(m_geometry.offsetToCenter(row, view()), 0, maxOffset());
    const int offset = std::clamp(m_geometry.offset(), target - farthest, target + farthest);
    moveTo(offset + int(std::lround((target - offset) * share)));
    if (rectOf(row).intersects(viewport()->rect()))
        m_jump.lightUp();
}

// Wheel and scroll bar

void RowScrollArea::wheelEvent(QWheelEvent *event)
{
    // On X11 the pixels are the driver's units, whatever these are.
    const bool hasPixels =
        !event->pixelDelta().isNull() && QGuiApplication::platformName() != QStringLiteral("xcb");
    const double notch = QApplication::wheelScrollLines() * verticalScrollBar()->singleStep();
    m_wheelRest += hasPixels ? event->pixelDelta().y() : event->angleDelta().y() * notch / 120;
    const int whole = int(m_wheelRest);
    m_wheelRest -= whole;
    if (whole != 0)
        scrollBy(-whole);
    event->accept();
}

bool RowScrollArea::eventFilter(QObject *object, QEvent *event)
{
    if (object != verticalScrollBar() || event->type() != QEvent::Wheel)
        return QAbstractScrollArea::eventFilter(object, event);
    wheelEvent(static_cast<QWheelEvent *>(event));
    return true;
}

void RowScrollArea::didUseScrollBar(int action)
{
    m_jump.stop();
    switch (action) {
    case QScrollBar::SliderSingleStepAdd:
        return scrollBy(verticalScrollBar()->singleStep());
    case QScrollBar::SliderSingleStepSub:
        return scrollBy(-verticalScrollBar()->singleStep());
    case QScrollBar::SliderPageStepAdd:
        return scrollPage(1);
    case QScrollBar::SliderPageStepSub:
        return scrollPage(-1);
    case QScrollBar::SliderToMinimum:
        return scrollToEnd(-1);
    case QScrollBar::SliderToMaximum:
        return scrollToEnd(1);
    default:
        return;
    }
}

void RowScrollArea::scrollContentsBy(int, int)
{
    const int value = verticalScrollBar()->value();
    if (!m_dragged) {
        m_geometry.setOffset(value, page());
    } else {
        // The thumb keeps to the heights of when it was taken. What is as far down the view as the thumb down
        // its groove is found in them, so that both ends are reached whatever the heights turn out to be.
        const int y = int(std::lround(double(page()) * value / std::max(1, verticalScrollBar()->maximum())));
        measureAround(m_dragged->rowAt(value + y), page());
        const int offset = m_geometry.yOf(*m_dragged, value + y) - y;
        m_geometry.setOffset(std::clamp(offset, 0, maxOffset()), page());
    }
    offsetChanged();
}

// Painting

void RowScrollArea::paintEvent(QPaintEvent *event)
{
    QPainter painter(viewport());
    RowPainter rows(painter, palette());
    const QRect view = viewport()->rect();
    if (m_geometry.count() == 0) {
        // At the same height in every list, whatever is above and below it.
        const int middle = viewport()->mapFrom(window(), window()->rect().center()).y();
        rows.paintEmptyState(view, middle, emptyState());
        return;
    }
    measureRowsInView();
    const PinnedHeader header = pinnedHeader();
    const int headerBottom = header.row < 0 ? 0 : header.top + Design::headerHeight;
    const int fading = std::min(Design::fadingEdge, maxOffset() - m_geometry.offset());
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
    for (int row = m_geometry.rowAt(m_geometry.offset() + part.top()); row <= last; ++row) {
        RowPainter::Marks marks = marksOf(row);
        marks.flash = m_jump.lightOn(row);
        rows.paintRow(rectOf(row), layoutOf(row), marks);
    }
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
    verticalScrollBar()->setSliderDown(false); // its release will not come
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
