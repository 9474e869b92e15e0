#include "foundation/Scripts.h"

#include <unicode/translit.h>
#include <unicode/ucnv.h>
#include <unicode/uniset.h>
#include <unicode/utf16.h>

#include <algorithm>
#include <memory>
#include <span>

namespace {
struct Block {
    UChar32 first;
    UChar32 last; ///< included
};

constexpr Block hangulBlocks[] = {{0x1100, 0x11FF}, {0x3130, 0x318F}, {0xA960, 0xA97F}, {0xAC00, 0xD7A3},
    {0xD7B0, 0xD7FF}, {0xFFA0, 0xFFDC}};
constexpr Block kanaBlocks[] = {{0x3040, 0x30FF}, {0x31F0, 0x31FF}, {0xFF66, 0xFF9F}};
constexpr Block hanBlocks[] = {{0x4E00, 0x9FFF}, {0x3400, 0x4DBF}, {0x20000, 0x2A6DF}, {0xF900, 0xFAFF}};
constexpr UChar32 firstEastAsian = 0x1100; ///< all blocks are above

bool isWithin(std::span<const Block> blocks, UChar32 codePoint)
{
    return std::any_of(blocks.begin(), blocks.end(),
        [codePoint](Block block) { return codePoint >= block.first && codePoint <= block.last; });
}

icu::UnicodeSet charactersOf(const char *charset)
{
    icu::UnicodeSet characters;
    UErrorCode status = U_ZERO_ERROR;
    const icu::LocalUConverterPointer converter(ucnv_open(charset, &status));
    ucnv_getUnicodeSet(converter.getAlias(), characters.toUSet(), UCNV_ROUNDTRIP_SET, &status);
    characters.freeze();
    return characters;
}

icu::UnicodeSet charactersWithSimplifiedForm()
{
    icu::UnicodeSet characters;
    UErrorCode status = U_ZERO_ERROR;
    const std::unique_ptr<icu::Transliterator> rules(
        icu::Transliterator::createInstance("Traditional-Simplified", UTRANS_FORWARD, status));
    if (rules)
        rules->getSourceSet(characters);
    characters.freeze();
    return characters;
}
} // namespace

Scripts::EastAsian Scripts::of(QStringView text)
{
    EastAsian found;
    for (qsizetype i = 0; i < text.size();) {
        UChar32 codePoint = 0;
        U16_NEXT(text.utf16(), i, text.size(), codePoint);
        if (codePoint < firstEastAsian)
            continue;
        found.hangul = found.hangul || isWithin(hangulBlocks, codePoint);
        found.kana = found.kana || isWithin(kanaBlocks, codePoint);
        found.han = found.han || isWithin(hanBlocks, codePoint);
    }
    return found;
}

Scripts::HanForm Scripts::hanForm(QStringView text)
{
    static const icu::UnicodeSet ofMainland = charactersOf("GB2312");
    static const icu::UnicodeSet ofTaiwan = charactersOf("Big5");
    int balance = 0;
    for (const QChar character : text) {
        const UChar32 codePoint = character.unicode();
        if (codePoint < hanBlocks[0].first || codePoint > hanBlocks[0].last)
            continue;
        const bool isOfTaiwan = ofTaiwan.contains(codePoint);
        if (ofMainland.contains(codePoint)) {
            balance -= !isOfTaiwan;
        } else if (isOfTaiwan) {
            // Or it is only rare, as 喆. Reading these rules takes a frame, and most texts never get here.
            static const icu::UnicodeSet withSimplifiedForm = charactersWithSimplifiedForm();
            balance += withSimplifiedForm.contains(codePoint);
        }
    }
    return balance > 0 ? HanForm::Traditional : balance < 0 ? HanForm::Simplified : HanForm::Either;
}

bool Scripts::isHan(QChar character)
{
    return character.script() == QChar::Script_Han;
}

bool Scripts::isHangul(QChar character)
{
    return character.script() == QChar::Script_Hangul;
}

bool Scripts::isLatin(QChar character)
{
    return character.script() == QChar::Script_Latin;
}

bool Scripts::isUnspaced(QChar character)
{
    switch (character.script()) {
    case QChar::Script_Han:
    case QChar::Script_Hiragana:
    case QChar::Script_Katakana:
    case QChar::Script_Hangul:
        return true;
    default:
        return character == u'ー'; // shared by both kana
    }
}
