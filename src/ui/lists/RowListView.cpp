#include "ui/lists/RowListView.h"

#include "ui/lists/RowDelegate.h"
#include "ui/lists/RowModel.h"
#include "ui/looks/Design.h"
#include "ui/looks/MenuLooks.h"
#include "ui/looks/NoteStyle.h"
#include "ui/looks/SlimScrollBar.h"
#include "ui/looks/Symbol.h"

#include <QContextMenuEvent>
#include <QEasingCurve>
#include <QHelpEvent>
#include <QMenu>
#include <QPainter>
#include <QScrollBar>
#include <QToolTip>
#include <QVariantAnimation>

#include <algorithm>

RowListView::RowListView(RowModel &model, QWidget *parent)
    : QAbstractItemView(parent)
    , m_rowModel(model)
    , m_rows(new RowDelegate(model, this))
    , m_scrolling(new QVariantAnimation(this))
{
    setFrameShape(QFrame::NoFrame);
    setFocusPolicy(Qt::StrongFocus);
    setEditTriggers(NoEditTriggers);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollBar(new SlimScrollBar(this));
    setVerticalScrollMode(ScrollPerPixel);
    viewport()->setAutoFillBackground(false);
    viewport()->setMouseTracking(true);
    setItemDelegate(m_rows);
    m_rowModel.setSeen(false);
    RowListView::setModel(&m_rowModel);

    m_scrolling->setDuration(int(Design::scrollDuration.count()));
    m_scrolling->setEasingCurve(QEasingCurve::OutCubic);
    connect(m_scrolling, &QVariantAnimation::valueChanged, this,
        [this](const QVariant &value) { verticalScrollBar()->setValue(value.toInt()); });
}

RowListView::~RowListView() = default;

void RowListView::setModel(QAbstractItemModel *model)
{
    // Connected before the base class is: whatever it asks for when rows come or go, the heights are in step.
    connect(model, &QAbstractItemModel::rowsAboutToBeInserted, this, &RowListView::rowsWillChange);
    connect(model, &QAbstractItemModel::rowsAboutToBeRemoved, this, &RowListView::rowsWillChange);
    connect(model, &QAbstractItemModel::rowsInserted, this, [this](const QModelIndex &, int first, int last) {
        m_heights.insert(m_heights.begin() + first, size_t(last - first + 1), 0);
        rowsDidChange(first, last - first + 1);
    });
    connect(model, &QAbstractItemModel::rowsRemoved, this, [this](const QModelIndex &, int first, int last) {
        m_heights.erase(m_heights.begin() + first, m_heights.begin() + last + 1);
        rowsDidChange(first, -(last - first + 1));
    });
    connect(model, &QAbstractItemModel::modelReset, this, &RowListView::forgetHeights);
    QAbstractItemView::setModel(model);
    forgetHeights();
}

// What the person does

bool RowListView::enter()
{
    const int row = entryBeside(m_heights.empty() ? 0 : rowAt(verticalOffset()) - 1, 1);
    if (row < 0)
        return false;
    setCurrentIndex(m_rowModel.index(row));
    setFocus(Qt::TabFocusReason);
    return true;
}

void RowListView::activateRow(int row)
{
    if (!m_rowModel.isHeader(row))
        activate(row);
}

void RowListView::showMenuOfRow(int row)
{
    if (!m_rowModel.isHeader(row))
        popUpMenu(row, viewport()->mapToGlobal(visualRect(m_rowModel.index(row)).center()));
}

int RowListView::entryBeside(int row, int step) const
{
    for (int next = row + step; next >= 0 && next < m_rowModel.rowCount(); next += step) {
        if (!m_rowModel.isHeader(next))
            return next;
    }
    return -1;
}

void RowListView::keyPressEvent(QKeyEvent *event)
{
    const int row = currentIndex().isValid() ? currentIndex().row() : -1;
    const bool isEntry = row >= 0 && !m_rowModel.isHeader(row);
    if (event->matches(QKeySequence::Copy) && isEntry) {
        copy(row);
        return;
    }
    switch (event->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        if (isEntry)
            activate(row);
        return;
    case Qt::Key_Delete:
        if (isEntry)
            remove(row);
        return;
    case Qt::Key_Menu:
        if (isEntry)
            showMenuOfRow(row);
        return;
    case Qt::Key_Up:
    case Qt::Key_Down: {
        const int next = entryBeside(row, event->key() == Qt::Key_Up ? -1 : 1);
        if (next >= 0)
            setCurrentIndex(m_rowModel.index(next));
        else
            Q_EMIT left();
        return;
    }
    default:
        QAbstractItemView::keyPressEvent(event);
    }
}

RowListView::Hover RowListView::hoverAt(QPoint point) const
{
    const QModelIndex index = indexAt(point);
    if (!index.isValid() || m_rowModel.isHeader(index.row()))
        return {};
    const QRect place = visualRect(index);
    return {
        index.row(), m_rows->layout(index.row(), place.width(), palette()).partAt(point - place.topLeft())};
}

void RowListView::setHover(const Hover &hover)
{
    if (hover == m_hover)
        return;
    for (const int row : {m_hover.row, hover.row}) {
        if (row >= 0 && row < m_rowModel.rowCount())
            viewport()->update(visualRect(m_rowModel.index(row)));
    }
    m_hover = hover;
    const RowPart::Kind kind = hover.part.kind;
    const bool isButton =
        kind == RowPart::Kind::Symbol && m_rowModel.content(hover.row).symbols[hover.part.symbol].isButton;
    const bool isLink = kind == RowPart::Kind::Quote || kind == RowPart::Kind::Link || isButton;
    viewport()->setCursor(isLink ? Qt::PointingHandCursor : Qt::ArrowCursor);
}

void RowListView::mouseMoveEvent(QMouseEvent *event)
{
    setHover(hoverAt(event->position().toPoint()));
}

void RowListView::leaveEvent(QEvent *event)
{
    setHover({});
    QAbstractItemView::leaveEvent(event);
}

void RowListView::mousePressEvent(QMouseEvent *event)
{
    m_pressed = event->button() == Qt::LeftButton ? hoverAt(event->position().toPoint()) : Hover();
}

void RowListView::mouseReleaseEvent(QMouseEvent *event)
{
    const Hover pressed = std::exchange(m_pressed, {});
    if (event->button() == Qt::LeftButton && pressed.row >= 0
        && pressed == hoverAt(event->position().toPoint()))
        clickPart(pressed.row, pressed.part);
}

void RowListView::mouseDoubleClickEvent(QMouseEvent *event)
{
    const Hover hover = hoverAt(event->position().toPoint());
    if (hover.part.kind == RowPart::Kind::Body)
        activate(hover.row);
}

void RowListView::contextMenuEvent(QContextMenuEvent *event)
{
    const QModelIndex index =
        event->reason() == QContextMenuEvent::Keyboard ? currentIndex() : indexAt(event->pos());
    if (index.isValid() && !m_rowModel.isHeader(index.row()))
        popUpMenu(index.row(), event->globalPos());
}

void RowListView::popUpMenu(int row, QPoint globalPlace)
{
    auto *menu = new QMenu(this);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    fillMenu(*menu, row);
    MenuLooks::apply(*menu);
    if (!menu->isEmpty())
        menu->popup(globalPlace);
}

bool RowListView::viewportEvent(QEvent *event)
{
    if (event->type() != QEvent::ToolTip)
        return QAbstractItemView::viewportEvent(event);
    const auto *help = static_cast<QHelpEvent *>(event);
    const Hover hover = hoverAt(help->pos());
    if (hover.part.kind == RowPart::Kind::Symbol) {
        const QRect place = visualRect(m_rowModel.index(hover.row));
        QToolTip::showText(help->globalPos(), m_rowModel.content(hover.row).symbols[hover.part.symbol].help,
            viewport(), place);
    } else {
        QToolTip::hideText();
    }
    return true;
}

void RowListView::focusOutEvent(QFocusEvent *event)
{
    QAbstractItemView::focusOutEvent(event);
    if (event->reason() != Qt::PopupFocusReason && event->reason() != Qt::ActiveWindowFocusReason)
        setCurrentIndex({});
    viewport()->update();
}

// Scrolling

void RowListView::scrollTo(const QModelIndex &index, ScrollHint hint)
{
    if (!index.isValid())
        return;
    m_scrolling->stop();
    if (hint == PositionAtCenter) {
        const int target = centredOffset(index.row());
        m_scrolling->setStartValue(verticalScrollBar()->value());
        m_scrolling->setEndValue(target);
        m_scrolling->start();
        return;
    }
    measure(index.row(), index.row());
    updateGeometries();
    const QRect rect = visualRect(index);
    const int header = Design::headerHeight; // which may stand pinned above it
    if (rect.top() < header)
        verticalScrollBar()->setValue(tops()[size_t(index.row())] - header);
    else if (rect.bottom() >= viewport()->height())
        verticalScrollBar()->setValue(tops()[size_t(index.row()) + 1] - viewport()->height());
}

void RowListView::rowsWillChange()
{
    m_anchorRow = m_heights.empty() ? 0 : rowAt(verticalOffset());
    m_anchorOffset = m_heights.empty() ? 0 : verticalOffset() - tops()[size_t(m_anchorRow)];
}

void RowListView::rowsDidChange(int first, int added)
{
    m_hover = {};
    m_pressed = {};
    m_tops.clear();
    const bool isAtTop = verticalOffset() == 0;
    updateGeometries();
    if (!isAtTop && first <= m_anchorRow && !m_heights.empty()) {
        const int row = std::clamp(std::max(first, m_anchorRow + added), 0, int(m_heights.size()) - 1);
        verticalScrollBar()->setValue(tops()[size_t(row)] + m_anchorOffset);
    }
    viewport()->update();
}

// Where the rows are

void RowListView::forgetHeights()
{
    m_heights.assign(size_t(m_rowModel.rowCount()), 0);
    m_tops.clear();
    updateGeometries();
    viewport()->update();
}

int RowListView::estimatedHeight(int row) const
{
    if (m_rowModel.isHeader(row))
        return Design::headerHeight;
    constexpr int line = 20;
    const qsizetype perLine = std::max(1, (viewport()->width() - 90) / Design::bodySize);
    const qsizetype lines = std::clamp<qsizetype>(m_rowModel.text(row).size() / perLine + 1, 1, 100);
    return int(lines) * line + 2 * Design::rowPadding;
}

const std::vector<int> &RowListView::tops() const
{
    if (m_tops.empty()) {
        m_tops.reserve(m_heights.size() + 1);
        int y = 0;
        for (size_t row = 0; row < m_heights.size(); ++row) {
            m_tops.push_back(y);
            y += m_heights[row] > 0 ? m_heights[row] : estimatedHeight(int(row));
        }
        m_tops.push_back(y);
    }
    return m_tops;
}

int RowListView::rowAt(int y) const
{
    const auto next = std::upper_bound(tops().begin(), tops().end(), y);
    return std::clamp(int(next - tops().begin()) - 1, 0, std::max(0, int(m_heights.size()) - 1));
}

bool RowListView::measure(int firstRow, int lastRow)
{
    bool hasChanged = false;
    for (int row = firstRow; row <= lastRow && row < int(m_heights.size()); ++row) {
        if (m_heights[size_t(row)] == 0) {
            m_heights[size_t(row)] = m_rows->layout(row, viewport()->width(), palette()).height();
            hasChanged = true;
        }
    }
    if (hasChanged)
        m_tops.clear();
    return hasChanged;
}

void RowListView::measureVisibleRows()
{
    // A measured row moves those below it, which may bring others into view.
    while (measure(rowAt(verticalOffset()), rowAt(verticalOffset() + viewport()->height()))) {
    }
}

int RowListView::centredOffset(int row)
{
    // The rows around it are measured first, so that the end of the way is exact.
    const int page = viewport()->height();
    measure(rowAt(tops()[size_t(row)] - page), rowAt(tops()[size_t(row)] + page));
    updateGeometries();
    const int middle = (tops()[size_t(row)] + tops()[size_t(row) + 1]) / 2;
    return std::clamp(middle - page / 2, 0, verticalScrollBar()->maximum());
}

void RowListView::updateGeometries()
{
    QAbstractItemView::updateGeometries();
    const int page = viewport()->height();
    verticalScrollBar()->setPageStep(page);
    verticalScrollBar()->setSingleStep(Design::headerHeight);
    constexpr int spaceBelow = 2 * Design::grid;
    verticalScrollBar()->setRange(0, std::max(0, tops().back() + spaceBelow - page));
}

int RowListView::verticalOffset() const
{
    return verticalScrollBar()->value();
}

QRect RowListView::visualRect(const QModelIndex &index) const
{
    if (!index.isValid() || size_t(index.row()) >= m_heights.size())
        return {};
    const int top = tops()[size_t(index.row())];
    return {0, top - verticalOffset(), viewport()->width(), tops()[size_t(index.row()) + 1] - top};
}

QModelIndex RowListView::indexAt(const QPoint &point) const
{
    const int y = point.y() + verticalOffset();
    if (m_heights.empty() || y < 0 || y >= tops().back())
        return {};
    return m_rowModel.index(rowAt(y));
}

// Painting

void RowListView::paintEvent(QPaintEvent *event)
{
    QPainter painter(viewport());
    if (m_heights.empty()) {
        paintEmptyState(painter);
        return;
    }
    measureVisibleRows();
    updateGeometries();
    const QRect page = viewport()->rect();
    const PinnedHeader header = pinnedHeader();
    const int headerBottom = header.row < 0 ? 0 : header.top + Design::headerHeight;
    const int fading = std::min(Design::fadingEdge, verticalScrollBar()->maximum() - verticalOffset());
    const QRect faded = page.adjusted(0, page.height() - fading, 0, 0);
    painter.setClipRect(page.adjusted(0, headerBottom, 0, -fading));
    paintRows(painter, event->rect());
    painter.setClipping(false);
    if (header.row >= 0) {
        m_rows->paintHeader(painter, {0, header.top, page.width(), Design::headerHeight},
            m_rowModel.content(header.row).header, palette());
    }
    if (event->rect().intersects(faded))
        paintFaded(painter, faded);
}

void RowListView::paintEmptyState(QPainter &painter) const
{
    const EmptyState empty = emptyState();
    const QRect page = viewport()->rect().adjusted(Design::edge, 0, -Design::edge, 0);
    const QPoint middle = page.center();
    const QRect symbol(middle.x() - Design::emptySymbolSize / 2,
        middle.y() - Design::emptySymbolSize - Design::grid, Design::emptySymbolSize,
        Design::emptySymbolSize);
    Symbol::paint(painter, symbol, empty.symbol, NoteStyle::hairline(palette()));
    painter.setFont(NoteStyle::font());
    painter.setPen(NoteStyle::metaColor(palette()));
    painter.drawText(
        QRect(page.left(), middle.y() + 2 * Design::grid, page.width(), page.bottom() - middle.y()),
        Qt::AlignHCenter | Qt::AlignTop | Qt::TextWordWrap, empty.text);
}

void RowListView::paintRows(QPainter &painter, const QRect &part)
{
    const int first = rowAt(verticalOffset() + part.top());
    const int last = rowAt(verticalOffset() + part.bottom());
    for (int row = first; row <= last; ++row) {
        RowDelegate::Marks marks{groundOf(row), row == m_hover.row ? m_hover.part : RowPart()};
        if (!marks.ground.isValid() && hasFocus() && currentIndex().row() == row)
            marks.ground = NoteStyle::editing(palette());
        else if (!marks.ground.isValid() && row == m_hover.row)
            marks.ground = NoteStyle::hover(palette());
        m_rows->paintRow(painter, visualRect(m_rowModel.index(row)), row, marks, palette());
    }
}

void RowListView::paintFaded(QPainter &painter, const QRect &part)
{
    // On a picture of its own: what is behind the rows, if anything, is not theirs to fade.
    const qreal ratio = devicePixelRatioF();
    QImage picture(part.size() * ratio, QImage::Format_ARGB32_Premultiplied);
    picture.setDevicePixelRatio(ratio);
    picture.fill(Qt::transparent);
    QPainter onPicture(&picture);
    onPicture.translate(-part.topLeft());
    paintRows(onPicture, part);
    onPicture.setCompositionMode(QPainter::CompositionMode_DestinationIn);
    QLinearGradient fade(part.topLeft(), part.bottomLeft());
    fade.setColorAt(0, Qt::black);
    fade.setColorAt(1, Qt::transparent);
    onPicture.fillRect(part, fade);
    onPicture.end();
    painter.drawImage(part.topLeft(), picture);
}

RowListView::PinnedHeader RowListView::pinnedHeader() const
{
    int header = rowAt(verticalOffset());
    while (header >= 0 && !m_rowModel.isHeader(header))
        --header;
    if (header < 0 || verticalOffset() == 0)
        return {};
    // The next header pushes it out.
    int next = header + 1;
    while (next < m_rowModel.rowCount() && !m_rowModel.isHeader(next)
           && tops()[size_t(next)] < verticalOffset() + Design::headerHeight)
        ++next;
    if (next < m_rowModel.rowCount() && m_rowModel.isHeader(next))
        return {header, std::min(0, tops()[size_t(next)] - verticalOffset() - Design::headerHeight)};
    return {header, 0};
}

// Qt's calls

void RowListView::dataChanged(
    const QModelIndex &topLeft, const QModelIndex &bottomRight, const QList<int> &roles)
{
    QAbstractItemView::dataChanged(topLeft, bottomRight, roles);
    std::fill(m_heights.begin() + topLeft.row(), m_heights.begin() + bottomRight.row() + 1, 0);
    m_tops.clear();
    updateGeometries();
    viewport()->update();
}

void RowListView::resizeEvent(QResizeEvent *event)
{
    QAbstractItemView::resizeEvent(event);
    if (event->size().width() != event->oldSize().width())
        forgetHeights();
}

void RowListView::showEvent(QShowEvent *event)
{
    m_rowModel.setSeen(true);
    QAbstractItemView::showEvent(event);
}

void RowListView::hideEvent(QHideEvent *event)
{
    m_rowModel.setSeen(false);
    QAbstractItemView::hideEvent(event);
}

void RowListView::changeEvent(QEvent *event)
{
    QAbstractItemView::changeEvent(event);
    if (event->type() == QEvent::FontChange)
        forgetHeights();
}

QModelIndex RowListView::moveCursor(CursorAction action, Qt::KeyboardModifiers)
{
    const int last = m_rowModel.rowCount() - 1;
    const int current = currentIndex().isValid() ? currentIndex().row() : 0;
    const auto entry = [this](int row, int step) {
        const int found = entryBeside(row - step, step);
        return m_rowModel.index(found < 0 ? entryBeside(row, -step) : found);
    };
    switch (action) {
    case MoveUp:
    case MoveLeft:
    case MovePrevious:
        return entry(current - 1, -1);
    case MoveDown:
    case MoveRight:
    case MoveNext:
        return entry(current + 1, 1);
    case MoveHome:
        return entry(0, 1);
    case MoveEnd:
        return entry(last, -1);
    case MovePageUp:
        return entry(rowAt(tops()[size_t(current)] - viewport()->height()), 1);
    case MovePageDown:
        return entry(rowAt(tops()[size_t(current)] + viewport()->height()), -1);
    }
    return currentIndex();
}

void RowListView::setSelection(const QRect &rect, QItemSelectionModel::SelectionFlags command)
{
    const QModelIndex index = indexAt(rect.topLeft());
    selectionModel()->select(QItemSelection(index, index), command);
}

QRegion RowListView::visualRegionForSelection(const QItemSelection &selection) const
{
    QRegion region;
    for (const QModelIndex &index : selection.indexes())
        region += visualRect(index);
    return region;
}
