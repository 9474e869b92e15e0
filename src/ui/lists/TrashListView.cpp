#include "ui/lists/TrashListView.h"

#include "foundation/Clock.h"
#include "model/NoteStore.h"
#include "text/L10n.h"
#include "text/NoteFormatting.h"

#include <QMenu>

bool isSameRow(const TrashRow &a, const TrashRow &b)
{
    if (a.note && b.note)
        return a.note->id == b.note->id;
    return !a.note && !b.note && a.day == b.day;
}

TrashModel::TrashModel(NoteStore &notes, const Clock &clock, QObject *parent)
    : RowsOf(parent)
    , m_notes(notes)
    , m_clock(clock)
{
    connect(&m_notes, &NoteStore::notesChanged, this, &TrashModel::refreshWhenSeen);
    TrashModel::refresh();
}

void TrashModel::refresh()
{
    QList<TrashRow> rows;
    for (const DaySection &section : m_notes.trashDaySections()) {
        rows.append({section.day, {}});
        for (const Note &note : section.notes)
            rows.append({section.day, note});
    }
    show(rows);
}

QString TrashModel::text(int number) const
{
    const TrashRow &row = this->row(number);
    return row.note ? row.note->text : NoteFormatting::dayTitle(row.day, m_clock.now(), m_clock.calendar());
}

RowContent TrashModel::content(int number) const
{
    const TrashRow &row = this->row(number);
    RowContent content;
    if (!row.note) {
        content.header = text(number);
        return content;
    }
    content.lead = NoteFormatting::timeString(row.note->createdAt, m_clock.calendar());
    content.text = row.note->text;
    content.symbols = {{QStringLiteral("arrow.uturn.backward"), L10n::text("恢复到时间线"), true}};
    return content;
}

TrashListView::TrashListView(NoteStore &notes, TrashModel &model, QWidget *parent)
    : RowListView(model, parent)
    , m_notes(notes)
    , m_trash(model)
{
    setObjectName(QStringLiteral("trashList"));
    setAccessibleName(L10n::text("回收站"));
}

RowListView::EmptyState TrashListView::emptyState() const
{
    return {QStringLiteral("trash"), L10n::text("回收站为空")};
}

void TrashListView::activate(int row)
{
    m_notes.restore(m_trash.row(row).note->id);
}

void TrashListView::clickPart(int row, RowPart part)
{
    if (part.kind == RowPart::Kind::Symbol)
        activate(row);
}

void TrashListView::fillMenu(QMenu &menu, int row)
{
    menu.addAction(
        L10n::text("恢复到时间线"), this, [this, id = m_trash.row(row).note->id] { m_notes.restore(id); });
}
