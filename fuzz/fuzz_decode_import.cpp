// An import is notes with a text, or a refusal.
#include "FuzzInput.h"
#include "model/NoteFileCodec.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    (void)NoteFileCodec::decode(FuzzInput(data, size).bytes(), fuzzNow, fuzzCalendar());
    return 0;
}
