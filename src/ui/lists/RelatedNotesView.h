#pragma once

#include "ui/looks/FloatingFrame.h"

#include <QUuid>
#include <QWidget>

class NoteSearch;
struct Note;

/// A popover with a button for each note related to one. It deletes itself when it closes.
class RelatedNotesView final : public QWidget
{
    Q_OBJECT

public:
    RelatedNotesView(NoteSearch &search, const Note &note, QWidget *parent);

    /// Shows it below @p anchor on the screen, or above where there is no room.
    void popUp(const QRect &anchor);

Q_SIGNALS:
    void selected(QUuid noteID);

protected:
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    FloatingFrame m_frame;
};
