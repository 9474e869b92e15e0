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
    return {
        QStringLiteral("trash"), L10n::text("回收站为空"), {L10n::text("删除的笔记会放在这里，可以恢复")}};
}

void TrashListView::activate(int row)
{
    restore(m_trash.row(row).note->id);
}

void TrashListView::restore(QUuid noteID)
{
    m_notes.restore(noteID);
    Q_EMIT done(L10n::text("已恢复到时间线"));
}

void TrashListView::clickPart(int row, RowPart part)
{
    if (part.kind == RowPart::Kind::Button)
        activate(row);
}

void TrashListView::fillMenu(QMenu &menu, int row)
{
    menu.addAction(L10n::text("恢复到时间线"), this, [this, id = m_trash.row(row).note->id] { restore(id); });
}
