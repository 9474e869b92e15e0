#include "foundation/Characters.h"

#include <unicode/brkiter.h>

#include <algorithm>
#include <memory>

qsizetype Characters::startOfPrevious(QStringView text, qsizetype position)
{
    static const std::unique_ptr<icu::BreakIterator> iterator = [] {
        UErrorCode status = U_ZERO_ERROR;
        auto *made = icu::BreakIterator::createCharacterInstance(icu::Locale::getRoot(), status);
        Q_ASSERT(U_SUCCESS(status));
        return std::unique_ptr<icu::BreakIterator>(made);
    }();
    // No character people write is longer than this, and a long text must not be looked at from its start
    // each time.
    constexpr qsizetype longest = 256;
    const qsizetype from = std::max<qsizetype>(0, position - longest);
    const QStringView window = text.sliced(from, position - from);
    const icu::UnicodeString source(
        false, reinterpret_cast<const char16_t *>(window.utf16()), int32_t(window.size()));
    iterator->setText(source);
    const int32_t start = iterator->preceding(int32_t(window.size()));
    return start == icu::BreakIterator::DONE ? from : from + start;
}
