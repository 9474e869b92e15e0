#pragma once

#include "model/TagSummary.h"
#include "ui/lists/RowModel.h"

class NoteStore;

[[nodiscard]] QString rowKey(const TagSummary &row);

/// The tags whose name contains the query, compared without case.
class TagModel final : public RowsOf<TagSummary>
{
    Q_OBJECT

public:
    explicit TagModel(NoteStore &notes);
    void setQuery(const QString &query);

    [[nodiscard]] bool isHeader(int) const override { return false; }
    [[nodiscard]] QString text(int row) const override;
    [[nodiscard]] int rowOf(const QString &tag) const; ///< -1 when not shown

private:
    [[nodiscard]] QString help(int row) const override;
    void fillEntry(RowContent &entry, int row) const override;
    void refresh() override;

    NoteStore &m_notes;
    QString m_query;
};
