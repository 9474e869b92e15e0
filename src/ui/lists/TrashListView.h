#pragma once

#include "ui/lists/RowListView.h"

#include <QUuid>

class NoteStore;
class TrashModel;

/// The trash: each note can be restored.
class TrashListView final : public RowListView
{
    Q_OBJECT

public:
    TrashListView(NoteStore &notes, TrashModel &model, QWidget *parent = nullptr);

    [[nodiscard]] RowPainter::EmptyState emptyState() const override;

protected:
    QList<Action> actionsOf(int row) override;

private:
    NoteStore &m_notes;
    TrashModel &m_trash;
};
