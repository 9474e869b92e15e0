#pragma once

#include <QFrame>
#include <QUuid>

class NoteStore;
struct Note;

/// A popover with the notes that resemble one, a button for each. It deletes itself when it closes.
class RelatedNotesView final : public QFrame
{
    Q_OBJECT

public:
    RelatedNotesView(const NoteStore &store, const Note &note, QWidget *parent);

    /// Shows it below this place on the screen, or above where there is no room.
    void popUp(const QRect &place);

Q_SIGNALS:
    void selected(QUuid noteID);

protected:
    void paintEvent(QPaintEvent *event) override;
};
