#pragma once

#include "ui/lists/RowListView.h"

#include <QUuid>

class ReminderModel;
class ReminderStore;

/// The reminders: each leads to its note and can be cancelled.
class ReminderListView final : public RowListView
{
    Q_OBJECT

public:
    ReminderListView(ReminderStore &reminders, ReminderModel &model, QWidget *parent = nullptr);

    [[nodiscard]] RowPainter::EmptyState emptyState() const override;

Q_SIGNALS:
    void noteChosen(QUuid noteID);

protected:
    QList<Action> actionsOf(int row) override;

private:
    ReminderStore &m_reminders;
    ReminderModel &m_rows;
};
