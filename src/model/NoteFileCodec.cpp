#include "model/NoteFileCodec.h"

#include "foundation/Charset.h"
#include "model/NoteCoding.h"
#include "model/NoteMarkdown.h"

Result<QList<Note>> NoteFileCodec::decode(QByteArrayView bytes, Instant now, const Calendar &calendar)
{
    if (auto notes = noteDecoder::decodeNotes(bytes))
        return notes;
    const QList<Note> notes = NoteMarkdown::parse(Charset::decodeLeniently(bytes), now, calendar);
    if (notes.isEmpty())
        return Failure{QStringLiteral("unrecognizedFormat")};
    return notes;
}
