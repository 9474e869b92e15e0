#pragma once

#include "ui/lists/RowListView.h"

#include <QUuid>

class NoteSearch;
class NoteStore;
class PanelState;
class ReminderStore;
class TimelineModel;
struct Note;
struct Reminder;

/// The timeline: the notes by day, filtered by the draft, and the actions of a note.
class NoteListView final : public RowListView
{
    Q_OBJECT

public:
    NoteListView(NoteStore &notes, NoteSearch &search, ReminderStore &reminders, PanelState &state,
        TimelineModel &model, QWidget *parent = nullptr);

    /// Scrolls the note to the center and flashes it. A draft that hides the note is cleared first.
    void scrollAndFlash(QUuid noteID, bool clearsExternalTarget);

    [[nodiscard]] RowPainter::EmptyState emptyState() const override;

protected:
    QList<Action> actionsOf(int row) override;
    [[nodiscard]] Action actionOnText(const RowPart &part) override;
    [[nodiscard]] RowPainter::Marks marksOf(int row) const override;
    [[nodiscard]] QUrl linkOf(int row) const override;

private:
    void queryDidChange();
    void open(const QString &address);
    void remove(QUuid id);
    void undoRemoval(QUuid id, const QList<Reminder> &reminders);
    void showRelated(const Note &note);
    void jumpToExternalTarget();

    NoteStore &m_notes;
    NoteSearch &m_search;
    ReminderStore &m_reminders;
    PanelState &m_state;
    TimelineModel &m_timeline;
};
