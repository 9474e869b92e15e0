// The segments give the text back. The first line is the query.
#include "FuzzInput.h"
#include "text/NoteHighlighting.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const auto [query, text] = FuzzInput(data, size).lineAndRest();
    QString whole;
    for (const NoteHighlighting::Segment &segment : NoteHighlighting::segments(text, query)) {
        require(!segment.text.isEmpty());
        whole += segment.text;
    }
    require(whole == text);
    return 0;
}
