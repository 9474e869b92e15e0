#include "reminders/LanguageDetection.h"

#include "foundation/Regex.h"
#include "reminders/languages/Languages.h"

#include <QList>

#include <algorithm>
#include <optional>
#include <span>

namespace {
struct ScalarRange {
    char32_t first;
    char32_t last; ///< included
};

constexpr ScalarRange hangul[] = {{0x1100, 0x11FF}, {0x3130, 0x318F}, {0xA960, 0xA97F}, {0xAC00, 0xD7A3},
    {0xD7B0, 0xD7FF}, {0xFFA0, 0xFFDC}};
constexpr ScalarRange kana[] = {{0x3040, 0x30FF}, {0x31F0, 0x31FF}, {0xFF66, 0xFF9F}};
constexpr ScalarRange han[] = {{0x4E00, 0x9FFF}, {0x3400, 0x4DBF}, {0x20000, 0x2A6DF}, {0xF900, 0xFAFF}};

/// The scripts seen in a text, found in one walk over it.
struct Scripts {
    bool hangul = false;
    bool kana = false;
    bool han = false;

    explicit Scripts(QStringView text)
    {
        const auto within = [](std::span<const ScalarRange> ranges, char32_t scalar) {
            return std::any_of(ranges.begin(), ranges.end(),
                [scalar](ScalarRange range) { return scalar >= range.first && scalar <= range.last; });
        };
        const QList<uint> scalars = text.toUcs4();
        for (const char32_t scalar : scalars) {
            if (scalar < hangulStart)
                continue;
            hangul = hangul || within(::hangul, scalar);
            kana = kana || within(::kana, scalar);
            han = han || within(::han, scalar);
        }
    }

private:
    static constexpr char32_t hangulStart = 0x1100; ///< below it there is none of the three
};

bool containsAny(QStringView text, const std::vector<QStringView> &markers)
{
    return std::any_of(
        markers.begin(), markers.end(), [text](QStringView marker) { return text.contains(marker); });
}

bool containsAnyLetter(QStringView text, QStringView letters)
{
    return std::any_of(
        text.begin(), text.end(), [letters](QChar letter) { return letters.contains(letter); });
}

std::optional<ReminderLanguage> detectScandinavian(QStringView lowered)
{
    static const Regex clock(QStringLiteral(R"(\bkl\.?\s*\d)"));
    const ScandinavianMarkers &markers = Languages::scandinavianMarkers();
    if (!containsAny(lowered, markers.dateWords) && !containsAny(lowered, markers.timeWords)
        && !(lowered.contains(u"kl") && clock.matchesIn(lowered)))
        return std::nullopt;

    if (containsAnyLetter(lowered, u"äö") || containsAny(lowered, markers.swedishWords))
        return ReminderLanguage::Swedish;
    if (containsAny(lowered, markers.danishWords))
        return ReminderLanguage::Danish;
    if (containsAny(lowered, markers.norwegianWords))
        return ReminderLanguage::Norwegian;
    return ReminderLanguage::Danish;
}

/// The order decides: "morgen om 9 uur" is Dutch, because Dutch is asked before German.
ReminderLanguage detectLatin(QStringView text)
{
    static const Regex frenchHour(QStringLiteral(R"(\d{1,2}h)"));
    static const Regex spanishHour(QStringLiteral(R"(\d{1,2}\s+h)"));
    const QString lowered = text.toString().toLower();
    const bool hasH = lowered.contains(u'h');

    if (containsAny(lowered, Languages::portuguese().markers))
        return ReminderLanguage::Portuguese;
    if (containsAnyLetter(lowered, u"àçèêëîïôûù"))
        return ReminderLanguage::French;
    if (hasH && frenchHour.matchesIn(lowered))
        return ReminderLanguage::French;
    if (lowered.contains(u'ß'))
        return ReminderLanguage::German;
    if (const auto scandinavian = detectScandinavian(lowered))
        return *scandinavian;
    if (containsAny(lowered, Languages::dutch().markers))
        return ReminderLanguage::Dutch;
    if (containsAny(lowered, Languages::italian().markers))
        return ReminderLanguage::Italian;
    if (hasH && spanishHour.matchesIn(lowered))
        return ReminderLanguage::Spanish;
    if (containsAnyLetter(lowered, u"äöü"))
        return ReminderLanguage::German;
    if (containsAny(lowered, Languages::german().markers))
        return ReminderLanguage::German;
    if (containsAnyLetter(lowered, u"ñáíóú"))
        return ReminderLanguage::Spanish;
    if (containsAny(lowered, Languages::spanish().markers))
        return ReminderLanguage::Spanish;
    if (containsAny(lowered, Languages::french().markers))
        return ReminderLanguage::French;
    return ReminderLanguage::English;
}
} // namespace

ReminderLanguage LanguageDetection::detect(QStringView text)
{
    const Scripts scripts(text);
    if (scripts.hangul)
        return ReminderLanguage::Korean;
    if (scripts.kana)
        return ReminderLanguage::Japanese;
    if (containsAny(text, Languages::chinese().markers))
        return ReminderLanguage::Chinese;
    if (containsAny(text, Languages::japanese().markers))
        return ReminderLanguage::Japanese;
    if (scripts.han)
        return ReminderLanguage::Chinese;
    return detectLatin(text);
}
