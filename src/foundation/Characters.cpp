#include "foundation/Characters.h"

#include <unicode/brkiter.h>

#include <algorithm>
#include <memory>

TextRange Characters::at(QStringView text, qsizetype position)
{
    static const std::unique_ptr<icu::BreakIterator> iterator = [] {
        UErrorCode status = U_ZERO_ERROR;
        auto *made = icu::BreakIterator::createCharacterInstance(icu::Locale::getRoot(), status);
        Q_ASSERT(U_SUCCESS(status));
        return std::unique_ptr<icu::BreakIterator>(made);
    }();
    constexpr qsizetype longest = 256; // no character that people write is longer
    const qsizetype from = std::max<qsizetype>(0, position - longest);
    const QStringView window = text.sliced(from, std::min(text.size(), position + longest) - from);
    const icu::UnicodeString source(
        false, reinterpret_cast<const char16_t *>(window.utf16()), int32_t(window.size()));
    iterator->setText(source);
    const int32_t end = iterator->following(int32_t(position - from));
    return {from + iterator->previous(), from + end};
}

QStringView Characters::trimmedOfBlanks(QStringView text)
{
    const auto isBlank = [](QChar character) { return character == u' ' || character == u'\t'; };
    while (!text.isEmpty() && isBlank(text.front()))
        text = text.sliced(1);
    while (!text.isEmpty() && isBlank(text.back()))
        text.chop(1);
    return text;
}
