#pragma once

#include "ui/looks/FloatingWindow.h"

#include <QUuid>

class NoteSearch;
struct Note;

/// A popover with a button for each note related to one. It deletes itself when it closes.
class RelatedNotesView final : public FloatingWindow
{
    Q_OBJECT

public:
    RelatedNotesView(NoteSearch &search, const Note &note, QWidget *parent);

    /// Shows it below @p anchor on the screen, or above where there is no room.
    void popUp(const QRect &anchor);

Q_SIGNALS:
    void selected(QUuid noteID);
};
