#include "ui/lists/TrashListView.h"

#include "model/NoteStore.h"
#include "text/L10n.h"
#include "ui/lists/TrashModel.h"

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

QList<RowListView::Action> TrashListView::actionsOf(int row)
{
    const auto restore = [this, note = m_trash.row(row).note->id] {
        m_notes.restore(note);
        if (m_notes.note(note)) // the trash may have been emptied while the menu was open
            Q_EMIT done(L10n::text("已恢复到时间线"));
    };
    return {
        {L10n::text("恢复到时间线"), Qt::Key_Return, restore, RowPart::Kind::Button},
        {},
        copyAction(row),
    };
}
