#pragma once

#include "ui/lists/RowListView.h"
#include "ui/lists/TagRenameState.h"

class NoteStore;
class QLineEdit;
class TagModel;

/// The tags: a click filters the timeline by a tag; each can be renamed, merged and deleted.
class TagListView final : public RowListView
{
    Q_OBJECT

public:
    TagListView(NoteStore &notes, TagModel &model, QWidget *parent = nullptr);

    void setQuery(const QString &query);
    [[nodiscard]] RowPainter::EmptyState emptyState() const override;
    [[nodiscard]] TagRenameState &renameState() { return m_rename; }

Q_SIGNALS:
    void selected(const QString &tag);

protected:
    QList<Action> actionsOf(int row) override;
    [[nodiscard]] bool isCopyable() const override { return false; }
    void didMoveRows() override;

private:
    void editDidChange();
    void endEdit();
    void commitRename(const QString &from, const QString &to);
    void deleteTag(const QString &tag);

    NoteStore &m_notes;
    TagModel &m_tags;
    TagRenameState m_rename;
    QLineEdit *m_editor = nullptr; ///< over the row of the tag being renamed
};
