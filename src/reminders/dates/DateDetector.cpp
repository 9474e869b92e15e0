#include "reminders/dates/DateDetector.h"

#include "foundation/Scripts.h"
#include "reminders/dates/DateFinder.h"
#include "reminders/dates/DateResolver.h"
#include "reminders/languages/Languages.h"

#include <algorithm>

namespace {
using Type = DateToken::Type;

QList<DateDetection> detected(QStringView text, const QList<DateToken> &tokens, ReminderLanguage language,
    Instant now, const Calendar &calendar)
{
    QList<DateDetection> detections;
    for (const DateFinder::Found &found : DateFinder(CompiledGrammar::of(language), tokens).find()) {
        auto detection = DateResolver::resolve(found.facts, now, calendar);
        if (!detection)
            continue;
        TextRange range{tokens[found.start].range.start, tokens[found.end - 1].range.end};
        // Without the date two blanks would meet; one is removed with it.
        if (range.start > 0 && text[range.start - 1].isSpace() && range.end < text.size()
            && text[range.end].isSpace())
            ++range.end;
        detection->language = language;
        detection->range = range;
        detection->text = text.sliced(range.start, range.length()).toString();
        detections.append(*std::move(detection));
    }
    return detections;
}

bool isEastAsian(ReminderLanguage language)
{
    return language == ReminderLanguage::Chinese || language == ReminderLanguage::Japanese
           || language == ReminderLanguage::Korean;
}

/// East Asian languages are known by their scripts, except that a Japanese draft may be without kana.
bool mayBeEither(ReminderLanguage a, ReminderLanguage b, const QList<DateToken> &tokens)
{
    const auto writesHan = [](ReminderLanguage language) {
        return language == ReminderLanguage::Chinese || language == ReminderLanguage::Japanese;
    };
    return writesHan(a) && writesHan(b)
           && std::none_of(tokens.begin(), tokens.end(), [](const DateToken &token) {
                  return token.type == Type::Character && !Scripts::isHan(token.text.front());
              });
}

/// How many words of the draft indicate a language.
int countTelling(const QList<DateToken> &tokens, ReminderLanguage language)
{
    const CompiledGrammar &words = CompiledGrammar::of(language);
    return int(std::count_if(tokens.begin(), tokens.end(), [&words](const DateToken &token) {
        return (token.type == Type::Word || token.type == Type::Character) && words.isTelling(token.text);
    }));
}

struct Candidate {
    ReminderLanguage language;
    int words = 0; ///< of the draft that indicate it
};

/// The languages to read a draft in: its own, then those that at least as many words indicate, most words
/// first. With numbers and no such words, all languages that could explain the numbers.
QList<Candidate> candidates(const QList<DateToken> &tokens, ReminderLanguage draftLanguage)
{
    const int own = countTelling(tokens, draftLanguage);
    const bool hasNumbers = std::any_of(
        tokens.begin(), tokens.end(), [](const DateToken &token) { return token.type == Type::Number; });
    QList<Candidate> others;
    for (const ReminderLanguage language : Languages::distinct) {
        const bool isSame = &Languages::rules(language) == &Languages::rules(draftLanguage);
        if (isSame || (isEastAsian(language) && !mayBeEither(draftLanguage, language, tokens)))
            continue;
        const int words = countTelling(tokens, language);
        if (words >= own && (words > 0 || hasNumbers))
            others.append({language, words});
    }
    std::stable_sort(others.begin(), others.end(),
        [](const Candidate &a, const Candidate &b) { return a.words > b.words; });
    others.prepend({draftLanguage, own});
    return others;
}

bool hasWord(QStringView text)
{
    constexpr int shortestWord = 2;
    int letters = 0;
    for (const QChar character : text) {
        letters = character.isLetter() ? letters + 1 : 0;
        if (letters == shortestWord)
            return true;
    }
    return false;
}

qsizetype covered(const QList<DateDetection> &detections)
{
    qsizetype units = 0;
    for (const DateDetection &detection : detections)
        units += detection.range.length();
    return units;
}
} // namespace

QList<DateDetection> DateDetector::detectDates(QStringView text, ReminderLanguage draftLanguage) const
{
    const QList<DateToken> tokens = DateTokens::of(text);
    const Instant now = m_clock.now();
    const Calendar &calendar = m_clock.calendar();
    QList<DateDetection> best;
    for (const auto &[language, words] : candidates(tokens, draftLanguage)) {
        QList<DateDetection> detections = detected(text, tokens, language, now, calendar);
        // In a language that no word indicates, the date itself must have a word: "um 3", not "3 h".
        if (language != draftLanguage && words == 0)
            detections.removeIf([](const DateDetection &detection) { return !hasWord(detection.text); });
        if (covered(detections) > covered(best))
            best = detections;
    }
    return best;
}
