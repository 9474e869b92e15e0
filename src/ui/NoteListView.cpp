#include "ui/NoteListView.h"

#include "model/NoteStore.h"
#include "model/ReminderStore.h"
#include "text/L10n.h"
#include "ui/Design.h"
#include "ui/NoteRowView.h"
#include "ui/PanelState.h"
#include "ui/RelatedNotesView.h"
#include "ui/SlimScrollBar.h"
#include "ui/TimelineModel.h"

#include <QClipboard>
#include <QContextMenuEvent>
#include <QEasingCurve>
#include <QGuiApplication>
#include <QMenu>
#include <QPainter>
#include <QScrollBar>
#include <QTimer>
#include <QVariantAnimation>

#include <algorithm>

NoteListView::NoteListView(
    NoteStore &notes, ReminderStore &reminders, PanelState &state, TimelineModel &timeline, QWidget *parent)
    : QAbstractItemView(parent)
    , m_notes(notes)
    , m_reminders(reminders)
    , m_state(state)
    , m_timeline(timeline)
    , m_rows(new NoteRowView(timeline, this))
    , m_scrolling(new QVariantAnimation(this))
{
    setObjectName(QStringLiteral("timeline"));
    setAccessibleName(L10n::text("笔记"));
    setFrameShape(QFrame::NoFrame);
    setFocusPolicy(Qt::NoFocus);
    setEditTriggers(NoEditTriggers);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollBar(new SlimScrollBar(this));
    setVerticalScrollMode(ScrollPerPixel);
    viewport()->setAutoFillBackground(false);
    setItemDelegate(m_rows);
    setModel(&m_timeline);

    m_scrolling->setDuration(int(Design::scrollDuration.count()));
    m_scrolling->setEasingCurve(QEasingCurve::OutCubic);
    connect(m_scrolling, &QVariantAnimation::valueChanged, this,
        [this](const QVariant &value) { verticalScrollBar()->setValue(value.toInt()); });

    connect(&m_state, &PanelState::draftChanged, this, &NoteListView::queryDidChange);
    connect(&m_state, &PanelState::jumpTargetIDChanged, this, &NoteListView::jumpToExternalTarget);
    connect(&m_state, &PanelState::editingIDChanged, this, [this] {
        m_rows->setEditingID(m_state.editingID());
        viewport()->update();
    });
    jumpToExternalTarget();
}

void NoteListView::setModel(QAbstractItemModel *model)
{
    // Connected before the base class is: whatever it asks for when rows come or go, the heights are in step.
    connect(model, &QAbstractItemModel::rowsInserted, this, [this](const QModelIndex &, int first, int last) {
        m_heights.insert(m_heights.begin() + first, size_t(last - first + 1), 0);
        heightsDidChange();
    });
    connect(model, &QAbstractItemModel::rowsRemoved, this, [this](const QModelIndex &, int first, int last) {
        m_heights.erase(m_heights.begin() + first, m_heights.begin() + last + 1);
        heightsDidChange();
    });
    connect(model, &QAbstractItemModel::modelReset, this, &NoteListView::forgetHeights);
    QAbstractItemView::setModel(model);
    forgetHeights();
}

// What the person does

void NoteListView::queryDidChange()
{
    m_timeline.setQuery(m_state.draft());
    verticalScrollBar()->setValue(0);
    viewport()->update(); // the hits in the rows that stay are others
}

void NoteListView::beginEditing(QUuid noteID)
{
    const auto note = m_notes.note(noteID);
    if (!note)
        return;
    m_state.setDraft(note->text);
    m_state.setEditingID(noteID);
    m_state.setQuoting({});
    Q_EMIT m_state.focusComposer();
}

void NoteListView::mouseDoubleClickEvent(QMouseEvent *event)
{
    const QModelIndex index = indexAt(event->position().toPoint());
    if (index.isValid() && m_timeline.row(index.row()).note)
        beginEditing(m_timeline.row(index.row()).note->id);
}

void NoteListView::contextMenuEvent(QContextMenuEvent *event)
{
    const QModelIndex index = indexAt(event->pos());
    if (!index.isValid() || !m_timeline.row(index.row()).note)
        return;
    const Note note = *m_timeline.row(index.row()).note;
    auto *menu = new QMenu(this);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    menu->addAction(L10n::text("复制"), this, [note] { QGuiApplication::clipboard()->setText(note.text); });
    menu->addAction(L10n::text("删除"), this, [this, note] { m_notes.remove(note.id); });
    menu->addSeparator();
    if (m_reminders.hasReminder(note.id))
        menu->addAction(L10n::text("取消提醒"), this, [this, note] { m_reminders.cancelForNote(note.id); });
    menu->addAction(L10n::text("相关笔记"), this, [this, note] { showRelated(note); });
    menu->popup(event->globalPos());
}

void NoteListView::showRelated(const Note &note)
{
    const QRect row = visualRect(m_timeline.indexOf(note.id));
    auto *related = new RelatedNotesView(m_notes, note, this);
    connect(related, &RelatedNotesView::selected, this, [this](QUuid id) { scrollAndFlash(id, false); });
    related->popUp({viewport()->mapToGlobal(row.topLeft()), row.size()});
}

// Jumps

void NoteListView::jumpToExternalTarget()
{
    if (const auto target = m_state.jumpTargetID())
        scrollAndFlash(*target, true);
}

void NoteListView::scrollAndFlash(QUuid noteID, bool clearsExternalTarget)
{
    const auto jump = [this, noteID, clearsExternalTarget] {
        const QModelIndex index = m_timeline.indexOf(noteID);
        if (index.isValid())
            scrollTo(index, PositionAtCenter);
        setFlashID(noteID);
        if (clearsExternalTarget)
            m_state.setJumpTargetID({});
        QTimer::singleShot(Design::flashDuration, this, [this, noteID] {
            if (flashID() == noteID)
                setFlashID({});
        });
    };
    if (m_timeline.indexOf(noteID).isValid()) {
        jump();
        return;
    }
    m_state.setDraft({});
    QTimer::singleShot(0, this, jump);
}

std::optional<QUuid> NoteListView::flashID() const
{
    return m_rows->flashID();
}

void NoteListView::setFlashID(std::optional<QUuid> id)
{
    m_rows->setFlashID(id);
    viewport()->update();
}

void NoteListView::scrollTo(const QModelIndex &index, ScrollHint hint)
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
    const QRect rect = visualRect(index);
    if (rect.top() < 0)
        verticalScrollBar()->setValue(tops()[size_t(index.row())]);
    else if (rect.bottom() >= viewport()->height())
        verticalScrollBar()->setValue(tops()[size_t(index.row()) + 1] - viewport()->height());
}

// Where the rows are

void NoteListView::forgetHeights()
{
    m_heights.assign(size_t(m_timeline.rowCount()), 0);
    heightsDidChange();
}

void NoteListView::heightsDidChange()
{
    m_tops.clear();
    updateGeometries();
    viewport()->update();
}

int NoteListView::estimatedHeight(int row) const
{
    if (!m_timeline.row(row).note)
        return Design::headerHeight;
    constexpr int line = 20;
    const qsizetype perLine = std::max(1, (viewport()->width() - 90) / Design::bodySize);
    const qsizetype lines =
        std::clamp<qsizetype>(m_timeline.row(row).note->text.size() / perLine + 1, 1, 1000);
    return int(lines) * line + 2 * Design::rowPadding;
}

const std::vector<int> &NoteListView::tops() const
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

int NoteListView::rowAt(int y) const
{
    const auto next = std::upper_bound(tops().begin(), tops().end(), y);
    return std::clamp(int(next - tops().begin()) - 1, 0, std::max(0, int(m_heights.size()) - 1));
}

bool NoteListView::measure(int firstRow, int lastRow)
{
    QStyleOptionViewItem option;
    initViewItemOption(&option);
    option.rect = viewport()->rect();
    bool hasChanged = false;
    for (int row = firstRow; row <= lastRow && row < int(m_heights.size()); ++row) {
        if (m_heights[size_t(row)] == 0) {
            m_heights[size_t(row)] = m_rows->sizeHint(option, m_timeline.index(row)).height();
            hasChanged = true;
        }
    }
    if (hasChanged)
        m_tops.clear();
    return hasChanged;
}

void NoteListView::measureVisibleRows()
{
    // A measured row moves those below it, which may bring others into view.
    while (measure(rowAt(verticalOffset()), rowAt(verticalOffset() + viewport()->height()))) {
    }
}

int NoteListView::centredOffset(int row)
{
    // The rows around it are measured first, so that the end of the way is exact.
    const int page = viewport()->height();
    measure(rowAt(tops()[size_t(row)] - page), rowAt(tops()[size_t(row)] + page));
    updateGeometries();
    const int middle = (tops()[size_t(row)] + tops()[size_t(row) + 1]) / 2;
    return std::clamp(middle - page / 2, 0, verticalScrollBar()->maximum());
}

void NoteListView::updateGeometries()
{
    QAbstractItemView::updateGeometries();
    const int page = viewport()->height();
    verticalScrollBar()->setPageStep(page);
    verticalScrollBar()->setSingleStep(Design::headerHeight);
    verticalScrollBar()->setRange(0, std::max(0, tops().back() - page));
}

int NoteListView::verticalOffset() const
{
    return verticalScrollBar()->value();
}

QRect NoteListView::visualRect(const QModelIndex &index) const
{
    if (!index.isValid() || size_t(index.row()) >= m_heights.size())
        return {};
    const int top = tops()[size_t(index.row())];
    return {0, top - verticalOffset(), viewport()->width(), tops()[size_t(index.row()) + 1] - top};
}

QModelIndex NoteListView::indexAt(const QPoint &point) const
{
    const int y = point.y() + verticalOffset();
    if (m_heights.empty() || y < 0 || y >= tops().back())
        return {};
    return m_timeline.index(rowAt(y));
}

// Qt's calls

void NoteListView::dataChanged(
    const QModelIndex &topLeft, const QModelIndex &bottomRight, const QList<int> &roles)
{
    QAbstractItemView::dataChanged(topLeft, bottomRight, roles);
    std::fill(m_heights.begin() + topLeft.row(), m_heights.begin() + bottomRight.row() + 1, 0);
    heightsDidChange();
}

void NoteListView::resizeEvent(QResizeEvent *event)
{
    QAbstractItemView::resizeEvent(event);
    if (event->size().width() != event->oldSize().width())
        forgetHeights();
}

void NoteListView::paintEvent(QPaintEvent *event)
{
    measureVisibleRows();
    updateGeometries();
    if (m_heights.empty())
        return;
    QPainter painter(viewport());
    QStyleOptionViewItem option;
    initViewItemOption(&option);
    const int first = rowAt(verticalOffset() + event->rect().top());
    const int last = rowAt(verticalOffset() + event->rect().bottom());
    for (int row = first; row <= last; ++row) {
        option.rect = visualRect(m_timeline.index(row));
        m_rows->paint(&painter, option, m_timeline.index(row));
    }
}

QModelIndex NoteListView::moveCursor(CursorAction action, Qt::KeyboardModifiers)
{
    const int last = m_timeline.rowCount() - 1;
    const int current = currentIndex().isValid() ? currentIndex().row() : 0;
    switch (action) {
    case MoveUp:
    case MoveLeft:
    case MovePrevious:
        return m_timeline.index(std::max(0, current - 1));
    case MoveDown:
    case MoveRight:
    case MoveNext:
        return m_timeline.index(std::min(last, current + 1));
    case MoveHome:
        return m_timeline.index(0);
    case MoveEnd:
        return m_timeline.index(last);
    case MovePageUp:
        return m_timeline.index(rowAt(verticalOffset() - viewport()->height()));
    case MovePageDown:
        return m_timeline.index(rowAt(verticalOffset() + 2 * viewport()->height()));
    }
    return currentIndex();
}

void NoteListView::setSelection(const QRect &rect, QItemSelectionModel::SelectionFlags command)
{
    const QModelIndex index = indexAt(rect.topLeft());
    selectionModel()->select(QItemSelection(index, index), command);
}

QRegion NoteListView::visualRegionForSelection(const QItemSelection &selection) const
{
    QRegion region;
    for (const QModelIndex &index : selection.indexes())
        region += visualRect(index);
    return region;
}
