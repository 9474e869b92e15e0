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
    void activate(int row) override; ///< opens the note
    void clickPart(int row, RowPart part) override;
    void remove(int row) override; ///< cancels the reminder
    void fillMenu(QMenu &menu, int row) override;

private:
    [[nodiscard]] QUuid noteOf(int row) const;
    void cancel(QUuid noteID);

    ReminderStore &m_reminders;
    ReminderModel &m_rows;
};
