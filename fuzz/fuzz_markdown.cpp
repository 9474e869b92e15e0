// What a journal is read as, once it is trimmed as the store does, stays the same when it is written and read
// again.
#include "FuzzInput.h"
#include "model/NoteMarkdown.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    QList<Note> notes;
    for (Note &note : NoteMarkdown::parse(FuzzInput(data, size).text(), fuzzNow, fuzzCalendar())) {
        note.text = note.text.trimmed();
        if (!note.text.isEmpty())
            notes.append(note);
    }
    const QString journal = NoteMarkdown::exported(notes, fuzzCalendar());
    const QList<Note> again = NoteMarkdown::parse(journal, fuzzNow, fuzzCalendar());
    require(again.size() == notes.size());
    for (qsizetype i = 0; i < notes.size(); ++i)
        require(again[i].text == notes[i].text);
    return 0;
}
