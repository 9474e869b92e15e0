#pragma once

#include <QAbstractItemView>
#include <QUuid>

#include <optional>
#include <vector>

class NoteRowView;
class NoteStore;
class PanelState;
class QVariantAnimation;
class ReminderStore;
struct Note;
class TimelineModel;

/// The timeline: rows of differing height, measured when they come into view and estimated before.
class NoteListView final : public QAbstractItemView
{
    Q_OBJECT

public:
    NoteListView(NoteStore &notes, ReminderStore &reminders, PanelState &state, TimelineModel &model,
        QWidget *parent = nullptr);

    /// Scrolls the note into the middle and lights it up for a moment. A draft that hides the note is cleared
    /// first.
    void scrollAndFlash(QUuid noteID, bool clearsExternalTarget);
    [[nodiscard]] std::optional<QUuid> flashID() const;

    void setModel(QAbstractItemModel *model) override;
    [[nodiscard]] QRect visualRect(const QModelIndex &index) const override;
    void scrollTo(const QModelIndex &index, ScrollHint hint = EnsureVisible) override;
    [[nodiscard]] QModelIndex indexAt(const QPoint &point) const override;

protected:
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void contextMenuEvent(QContextMenuEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void updateGeometries() override;
    void dataChanged(
        const QModelIndex &topLeft, const QModelIndex &bottomRight, const QList<int> &roles = {}) override;

    QModelIndex moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) override;
    [[nodiscard]] int horizontalOffset() const override { return 0; }
    [[nodiscard]] int verticalOffset() const override;
    [[nodiscard]] bool isIndexHidden(const QModelIndex &) const override { return false; }
    void setSelection(const QRect &rect, QItemSelectionModel::SelectionFlags command) override;
    [[nodiscard]] QRegion visualRegionForSelection(const QItemSelection &selection) const override;

private:
    void queryDidChange();
    void beginEditing(QUuid noteID);
    void showRelated(const Note &note);
    void jumpToExternalTarget();
    void setFlashID(std::optional<QUuid> id);

    void forgetHeights();
    void heightsDidChange();
    bool measure(int firstRow, int lastRow); ///< whether any of them had not been measured yet
    void measureVisibleRows();
    [[nodiscard]] int estimatedHeight(int row) const;
    [[nodiscard]] const std::vector<int> &tops() const;
    [[nodiscard]] int rowAt(int y) const; ///< in the whole list's pixels; clamped to its rows
    [[nodiscard]] int centredOffset(int row);

    NoteStore &m_notes;
    ReminderStore &m_reminders;
    PanelState &m_state;
    TimelineModel &m_timeline;
    NoteRowView *m_rows = nullptr;
    QVariantAnimation *m_scrolling = nullptr;
    std::vector<int> m_heights;      ///< of each row; 0 where not yet measured
    mutable std::vector<int> m_tops; ///< of each row, and the list's end; empty when to be counted anew
};
