#pragma once

#include <QStringView>

/// Which scripts a text is written in.
///
/// of() goes by Unicode blocks, so that punctuation of a block counts too. The tests on single characters go
/// by the Script property, which knows signs outside the main blocks: 々, 〇.
namespace Scripts {
struct EastAsian {
    bool hangul = false;
    bool kana = false;
    bool han = false;
};
[[nodiscard]] EastAsian of(QStringView text);

enum class HanForm { Either, Simplified, Traditional };
/// By the characters that only one of both writes: 这 or 這. Those that both write, as 後 or 著, do not
/// count.
[[nodiscard]] HanForm hanForm(QStringView text);

[[nodiscard]] bool isHan(QChar character);
[[nodiscard]] bool isHangul(QChar character);
[[nodiscard]] bool isLatin(QChar character);
/// Han, kana and Hangul: a character may be a word of its own, or carry a particle without a space.
[[nodiscard]] bool isUnspaced(QChar character);
} // namespace Scripts
