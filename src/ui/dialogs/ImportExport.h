#pragma once

class Clock;
class NoteStore;

/// Notes to and from a file that the person chooses; what came of it is told in a report.
namespace ImportExport {
/// The live notes, as JSON or as a Markdown journal.
void exportNotes(const NoteStore &store, const Clock &clock);
/// Adds the notes that the store does not hold yet.
void importNotes(NoteStore &store, const Clock &clock);
} // namespace ImportExport
