#include "reminders/LanguageDetection.h"

#include "foundation/Regex.h"
#include "foundation/Scripts.h"
#include "reminders/languages/Languages.h"

#include <algorithm>
#include <optional>
#include <vector>

namespace {
/// The characters of a text, folded into 64 bits. A text without a bit of a marker's does not contain the
/// marker, which spares most of some two hundred searches.
quint64 characterSet(QStringView text)
{
    quint64 set = 0;
    for (const QChar character : text)
        set |= quint64(1) << (character.unicode() % 64);
    return set;
}

/// A list of markers, split once.
class Markers
{
public:
    Markers(WordList list, const LanguageRules &rules)
    {
        const QString markers = WordLists::expanded(list, rules);
        for (const QStringView marker : WordLists::each(markers))
            m_markers.push_back({marker.toString(), characterSet(marker)});
    }
    explicit Markers(const LanguageRules &rules)
        : Markers(rules.markers, rules)
    {
    }

    [[nodiscard]] bool areIn(QStringView text) const
    {
        const quint64 available = characterSet(text);
        return std::any_of(m_markers.begin(), m_markers.end(), [=](const Marker &marker) {
            return (marker.characters & ~available) == 0 && text.contains(marker.text);
        });
    }

private:
    struct Marker {
        QString text;
        quint64 characters;
    };
    std::vector<Marker> m_markers;
};

bool hasMarker(QStringView text, ReminderLanguage language)
{
    static const Languages::Compilation<Markers> markers;
    return markers.of(language).areIn(text);
}

bool containsAnyLetter(QStringView text, QStringView letters)
{
    return std::any_of(
        text.begin(), text.end(), [letters](QChar letter) { return letters.contains(letter); });
}

std::optional<ReminderLanguage> detectScandinavian(QStringView lowered)
{
    static const Regex clock(QStringLiteral(R"(\bkl\.?\s*\d)"));
    static const LanguageRules &rules = Languages::scandinavian();
    static const Languages::ScandinavianMarkers &lists = Languages::scandinavianMarkers();
    static const Markers anyOfThem(lists.anyOfThem, rules);
    static const Markers swedish(lists.swedish, rules);
    static const Markers danish(lists.danish, rules);
    static const Markers norwegian(lists.norwegian, rules);
    if (!anyOfThem.areIn(lowered) && !(lowered.contains(u"kl") && clock.matchesIn(lowered)))
        return std::nullopt;

    if (containsAnyLetter(lowered, u"äö") || swedish.areIn(lowered))
        return ReminderLanguage::Swedish;
    if (danish.areIn(lowered))
        return ReminderLanguage::Danish;
    if (norwegian.areIn(lowered))
        return ReminderLanguage::Norwegian;
    return ReminderLanguage::Danish;
}

/// The order decides: "morgen om 9 uur" is Dutch because Dutch is tested before German.
ReminderLanguage detectLatin(QStringView text)
{
    using enum ReminderLanguage;
    static const Regex frenchHour(QStringLiteral(R"(\d{1,2}h)"));
    static const Regex spanishHour(QStringLiteral(R"(\d{1,2}\s+h)"));
    const QString lowered = text.toString().toLower();
    const bool hasH = lowered.contains(u'h');

    if (hasMarker(lowered, Portuguese))
        return Portuguese;
    if (containsAnyLetter(lowered, u"àçèêëîïôûù") || (hasH && frenchHour.matchesIn(lowered)))
        return French;
    if (lowered.contains(u'ß'))
        return German;
    if (const auto scandinavian = detectScandinavian(lowered))
        return *scandinavian;
    if (hasMarker(lowered, Dutch))
        return Dutch;
    if (hasMarker(lowered, Italian))
        return Italian;
    if (hasH && spanishHour.matchesIn(lowered))
        return Spanish;
    if (containsAnyLetter(lowered, u"äöü") || hasMarker(lowered, German))
        return German;
    if (containsAnyLetter(lowered, u"ñáíóú") || hasMarker(lowered, Spanish))
        return Spanish;
    if (hasMarker(lowered, French))
        return French;
    return English;
}
} // namespace

ReminderLanguage LanguageDetection::detect(QStringView text)
{
    using enum ReminderLanguage;
    const Scripts::EastAsian scripts = Scripts::of(text);
    if (scripts.hangul)
        return Korean;
    if (scripts.kana)
        return Japanese;
    for (const ReminderLanguage language : {Chinese, Japanese}) {
        if (hasMarker(text, language))
            return language;
    }
    return scripts.han ? Chinese : detectLatin(text);
}
