#pragma once

class Clock;
class NoteStore;
class QWidget;

/// Writes notes to and reads them from a file that the user chooses, and reports the result over @p panel.
namespace ImportExport {
/// The live notes, as JSON or as a Markdown journal.
void exportNotes(const NoteStore &store, const Clock &clock, QWidget *panel);
/// Adds the notes that the store does not contain yet.
void importNotes(NoteStore &store, const Clock &clock, QWidget *panel);
} // namespace ImportExport
