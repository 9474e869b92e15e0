#include "ui/lists/ReminderListView.h"

#include "model/ReminderStore.h"
#include "text/L10n.h"
#include "ui/lists/ReminderModel.h"

#include <QMenu>

ReminderListView::ReminderListView(ReminderStore &reminders, ReminderModel &model, QWidget *parent)
    : RowListView(model, parent)
    , m_reminders(reminders)
    , m_rows(model)
{
    setObjectName(QStringLiteral("reminderList"));
    setAccessibleName(L10n::text("提醒"));
}

RowPainter::EmptyState ReminderListView::emptyState() const
{
    return {
        QStringLiteral("bell"), L10n::text("暂无提醒"), {L10n::text("写上时间就会提醒，如「明天下午3点」")}};
}

QUuid ReminderListView::noteOf(int row) const
{
    return m_rows.row(row).reminder->noteID;
}

void ReminderListView::activate(int row)
{
    Q_EMIT noteChosen(noteOf(row));
}

void ReminderListView::clickPart(int row, RowPart part)
{
    if (part.kind == RowPart::Kind::Button)
        remove(row);
}

void ReminderListView::remove(int row)
{
    cancel(noteOf(row));
}

void ReminderListView::cancel(QUuid noteID)
{
    m_reminders.cancelForNote(noteID);
    Q_EMIT done(L10n::text("已取消提醒"));
}

void ReminderListView::fillMenu(QMenu &menu, int row)
{
    menu.addAction(L10n::text("跳转到笔记"), this, [this, id = noteOf(row)] { Q_EMIT noteChosen(id); });
    menu.addAction(L10n::text("取消提醒"), this, [this, id = noteOf(row)] { cancel(id); });
}
