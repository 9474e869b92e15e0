// What is read is written, and read again, as the same.
#include "FuzzInput.h"
#include "model/NoteCoding.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const FuzzInput input(data, size);
    if (const auto notes = noteDecoder::decodeNotes(input.bytes()))
        require(noteDecoder::decodeNotes(noteEncoder::encode(notes.value())).value() == notes.value());
    if (const auto reminders = noteDecoder::decodeReminders(input.bytes())) {
        require(noteDecoder::decodeReminders(noteEncoder::encode(reminders.value())).value()
                == reminders.value());
    }
    return 0;
}
