#pragma once

#include "ui/looks/FloatingFrame.h"

#include <QUuid>
#include <QWidget>

class NoteSearch;
struct Note;

/// A popover with the notes that resemble one, a button for each. It deletes itself when it closes.
class RelatedNotesView final : public QWidget
{
    Q_OBJECT

public:
    RelatedNotesView(NoteSearch &search, const Note &note, QWidget *parent);

    /// Shows it below this place on the screen, or above where there is no room.
    void popUp(const QRect &place);

Q_SIGNALS:
    void selected(QUuid noteID);

protected:
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    FloatingFrame m_frame;
};
