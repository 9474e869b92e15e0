#include "ui/looks/Typeface.h"

#include "foundation/Scripts.h"

#include <algorithm>
#include <span>

namespace {
bool isEastAsian(QChar unit)
{
    struct Range {
        char16_t first;
        char16_t last; ///< included
    };
    // Radicals, punctuation, kana, characters, Hangul; the surrogates of more characters; compatibility;
    // wide.
    constexpr Range ranges[] = {
        {0x2E80, 0xD7FF}, {0xD840, 0xD88F}, {0xF900, 0xFAFF}, {0xFE30, 0xFE4F}, {0xFF00, 0xFFEF}};
    return unit.unicode() >= ranges[0].first
           && std::any_of(std::begin(ranges), std::end(ranges),
               [unit](Range range) { return unit >= range.first && unit <= range.last; });
}

/// Families without serifs that are made for a region, the best first.
std::span<const QStringView> knownFamilies(Typeface::Region region)
{
    using Typeface::Region;
    static constexpr QStringView simplified[] = {u"Noto Sans CJK SC", u"Noto Sans SC", u"Source Han Sans SC",
        u"Source Han Sans CN", u"Microsoft YaHei", u"PingFang SC", u"WenQuanYi Micro Hei",
        u"WenQuanYi Zen Hei", u"Droid Sans Fallback"};
    static constexpr QStringView traditional[] = {u"Noto Sans CJK TC", u"Noto Sans TC", u"Source Han Sans TC",
        u"Source Han Sans TW", u"Noto Sans CJK HK", u"Noto Sans HK", u"Microsoft JhengHei", u"PingFang TC",
        u"WenQuanYi Micro Hei", u"WenQuanYi Zen Hei"};
    static constexpr QStringView japanese[] = {u"Noto Sans CJK JP", u"Noto Sans JP", u"Source Han Sans JP",
        u"IPAexGothic", u"IPAPGothic", u"VL PGothic", u"TakaoPGothic", u"Yu Gothic"};
    static constexpr QStringView korean[] = {u"Noto Sans CJK KR", u"Noto Sans KR", u"Source Han Sans KR",
        u"NanumGothic", u"NanumBarunGothic", u"UnDotum", u"Malgun Gothic"};
    switch (region) {
    case Region::None:
        return {};
    case Region::Simplified:
        return simplified;
    case Region::Traditional:
        return traditional;
    case Region::Japanese:
        return japanese;
    case Region::Korean:
        return korean;
    }
    Q_UNREACHABLE();
}
bool isOneOf(QStringView family, std::span<const QStringView> known)
{
    return std::any_of(known.begin(),
        known.end(), // "Source Han Sans SC" may be called "Source Han Sans SC VF"
        [family](QStringView name) { return family.startsWith(name); });
}

QString best(Typeface::Region region, const QStringList &available)
{
    for (const QStringView name : knownFamilies(region)) {
        const auto found = std::find_if(available.begin(), available.end(),
            [name](const QString &family) { return family.startsWith(name); });
        if (found != available.end())
            return *found;
    }
    constexpr QStringView notPlain[] = {u"Serif", u"Mono", u"Ming", u"Mincho", u"Song", u"Kai", u"Batang"};
    const auto plain = std::find_if(available.begin(), available.end(), [&notPlain](const QString &family) {
        return std::none_of(std::begin(notPlain), std::end(notPlain),
            [&family](QStringView part) { return family.contains(part); });
    });
    return plain == available.end() ? available.value(0) : *plain;
}
} // namespace

Typeface::Region Typeface::region(QStringView text, QStringView language)
{
    if (std::none_of(text.begin(), text.end(), isEastAsian))
        return Region::None;
    const Scripts::EastAsian scripts = Scripts::of(text);
    if (scripts.kana || scripts.hangul)
        return scripts.kana ? Region::Japanese : Region::Korean;
    if (language.startsWith(u"ja"))
        return Region::Japanese;
    if (language.startsWith(u"ko"))
        return Region::Korean;
    switch (Scripts::hanForm(text)) {
    case Scripts::HanForm::Simplified:
        return Region::Simplified;
    case Scripts::HanForm::Traditional:
        return Region::Traditional;
    case Scripts::HanForm::Either:
        return language.startsWith(u"zh-Hant") ? Region::Traditional : Region::Simplified;
    }
    Q_UNREACHABLE();
}

QStringList Typeface::families(Region region, const QString &system, const QStringList &available)
{
    const QString found = best(region, available);
    if (found.isEmpty())
        return {system};
    constexpr Region all[] = {Region::Simplified, Region::Traditional, Region::Japanese, Region::Korean};
    const bool isForAnother = !isOneOf(system, knownFamilies(region))
                              && std::any_of(std::begin(all), std::end(all),
                                  [&](Region other) { return isOneOf(system, knownFamilies(other)); });
    return isForAnother ? QStringList{found, system} : QStringList{system, found};
}
