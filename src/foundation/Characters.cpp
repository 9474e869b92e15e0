#include "foundation/Characters.h"

#include <unicode/brkiter.h>
#include <unicode/uchar.h>
#include <unicode/utf16.h>

#include <algorithm>
#include <memory>

namespace {
icu::BreakIterator &boundaries()
{
    UErrorCode status = U_ZERO_ERROR;
    static const std::unique_ptr<icu::BreakIterator> iterator(
        icu::BreakIterator::createCharacterInstance(icu::Locale::getRoot(), status));
    Q_ASSERT(U_SUCCESS(status));
    return *iterator;
}
} // namespace

TextRange Characters::at(QStringView text, qsizetype position)
{
    constexpr qsizetype maxLength = 256; // longer than any character in real text
    const qsizetype from = std::max<qsizetype>(0, position - maxLength);
    const QStringView window = text.sliced(from, std::min(text.size(), position + maxLength) - from);
    const icu::UnicodeString source(false, window.utf16(), int32_t(window.size()));
    boundaries().setText(source);
    const int32_t end = boundaries().following(int32_t(position - from));
    return {from + boundaries().previous(), from + end};
}

QList<TextRange> Characters::all(QStringView text)
{
    const icu::UnicodeString source(false, text.utf16(), int32_t(text.size()));
    boundaries().setText(source);
    QList<TextRange> ranges;
    int32_t start = boundaries().first();
    for (int32_t end = boundaries().next(); end != icu::BreakIterator::DONE; end = boundaries().next()) {
        ranges.append({start, end});
        start = end;
    }
    return ranges;
}

bool Characters::areSingleCodePoints(QStringView text)
{
    for (qsizetype i = 0; i < text.size();) {
        UChar32 codePoint = 0;
        U16_NEXT(text.utf16(), i, text.size(), codePoint);
        if (codePoint < 0x300 && codePoint != 0xAD && codePoint != u'\r')
            continue;
        switch (u_getIntPropertyValue(codePoint, UCHAR_GRAPHEME_CLUSTER_BREAK)) {
        case U_GCB_OTHER:
        case U_GCB_LV:
        case U_GCB_LVT:
            continue;
        default:
            return false;
        }
    }
    return true;
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
