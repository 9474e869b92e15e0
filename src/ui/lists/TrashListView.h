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
    void activate(int row) override; ///< restores the note
    void clickPart(int row, RowPart part) override;
    void fillMenu(QMenu &menu, int row) override;

private:
    void restore(QUuid noteID);

    NoteStore &m_notes;
    TrashModel &m_trash;
};
