#include "ui/lists/TrashListView.h"

#include "model/NoteStore.h"
#include "text/L10n.h"
#include "ui/lists/TrashModel.h"

#include <QMenu>

TrashListView::TrashListView(NoteStore &notes, TrashModel &model, QWidget *parent)
    : RowListView(model, parent)
    , m_notes(notes)
    , m_trash(model)
{
    setObjectName(QStringLiteral("trashList"));
    setAccessibleName(L10n::text("回收站"));
}

RowPainter::EmptyState TrashListView::emptyState() const
{
    return {QStringLiteral("trash"), L10n::text("回收站为空")};
}

void TrashListView::activate(int row)
{
    m_notes.restore(m_trash.row(row).note->id);
}

void TrashListView::clickPart(int row, RowPart part)
{
    if (part.kind == RowPart::Kind::Button)
        activate(row);
}

void TrashListView::fillMenu(QMenu &menu, int row)
{
    menu.addAction(
        L10n::text("恢复到时间线"), this, [this, id = m_trash.row(row).note->id] { m_notes.restore(id); });
}
