// A reminder always says something, on a full minute.
#include "FuzzInput.h"
#include "reminders/ReminderDetector.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const QString text = FuzzInput(data, size).text();
    if (const auto found = ReminderDetector::detect(text, fuzzNow, fuzzCalendar(), NoDateDetector())) {
        require(!found->content.isEmpty());
        require(fuzzCalendar().startOfMinute(found->fireAt) == found->fireAt);
    }
    return 0;
}
