// A reminder always has a text and fires on a full minute; detections do not overlap and report their text.
#include "FuzzInput.h"
#include "reminders/LanguageDetection.h"
#include "reminders/ReminderDetector.h"
#include "reminders/dates/DateDetector.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const QString text = FuzzInput(data, size).text();
    const FixedClock clock(fuzzNow, fuzzCalendar());
    const DateDetector detector(clock);
    qsizetype end = 0;
    for (const DateDetection &detection : detector.detectDates(text, LanguageDetection::detect(text))) {
        require(detection.range.start >= end && detection.range.end > detection.range.start);
        end = detection.range.end;
        require(text.sliced(detection.range.start, detection.range.length()) == detection.text);
    }
    if (const auto found = ReminderDetector::detect(text, fuzzNow, fuzzCalendar(), detector)) {
        require(!found->content.isEmpty());
        require(fuzzCalendar().startOfMinute(found->fireAt) == found->fireAt);
    }
    return 0;
}
