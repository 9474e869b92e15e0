#include "foundation/WordTokenizer.h"

#include <unicode/brkiter.h>

#include <memory>

QList<TextRange> WordTokenizer::words(QStringView text)
{
    UErrorCode status = U_ZERO_ERROR;
    static const std::unique_ptr<icu::BreakIterator> iterator(
        icu::BreakIterator::createWordInstance(icu::Locale::getRoot(), status));
    Q_ASSERT(U_SUCCESS(status));
    const icu::UnicodeString source(false, text.utf16(), int32_t(text.size()));
    iterator->setText(source);
    QList<TextRange> ranges;
    int32_t start = iterator->first();
    for (int32_t end = iterator->next(); end != icu::BreakIterator::DONE; end = iterator->next()) {
        if (iterator->getRuleStatus() >= UBRK_WORD_NONE_LIMIT)
            ranges.append({start, end});
        start = end;
    }
    return ranges;
}
