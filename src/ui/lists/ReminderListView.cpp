#include "ui/lists/ReminderListView.h"

#include "model/ReminderStore.h"
#include "text/L10n.h"
#include "ui/lists/ReminderModel.h"

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

QList<RowListView::Action> ReminderListView::actionsOf(int row)
{
    const QUuid note = m_rows.row(row).reminder->noteID;
    const auto cancel = [this, note] {
        if (!m_reminders.hasReminder(note))
            return; // it has come while the menu was open
        m_reminders.cancelForNote(note);
        Q_EMIT done(L10n::text("已取消提醒"));
    };
    return {
        {L10n::text("跳转到笔记"), Qt::Key_Return, [this, note] { Q_EMIT noteChosen(note); }},
        {L10n::text("取消提醒"), Qt::Key_Delete, cancel, RowPart::Kind::Button},
        {},
        copyAction(row),
    };
}
