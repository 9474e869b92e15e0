#include "reminders/dates/DateDetector.h"

#include "reminders/LanguageDetection.h"
#include "reminders/dates/DateFinder.h"
#include "reminders/dates/DateResolver.h"
#include "reminders/languages/Languages.h"

#include <algorithm>
#include <array>

namespace {
using Type = DateToken::Type;

/// One of each set of words; Danish stands for all three Scandinavian languages.
constexpr std::array languages{ReminderLanguage::Chinese, ReminderLanguage::English,
    ReminderLanguage::Japanese, ReminderLanguage::Korean, ReminderLanguage::German, ReminderLanguage::French,
    ReminderLanguage::Spanish, ReminderLanguage::Danish, ReminderLanguage::Dutch, ReminderLanguage::Italian,
    ReminderLanguage::Portuguese};

const DateGrammar &grammar(ReminderLanguage language)
{
    static QHash<const LanguageRules *, std::shared_ptr<const DateGrammar>> grammars;
    const LanguageRules &rules = Languages::rules(language);
    auto found = grammars.constFind(&rules);
    if (found == grammars.cend())
        found =
            grammars.insert(&rules, std::make_shared<const DateGrammar>(rules.dates, rules.triggerPhrases));
    return **found;
}

QList<DateDetection> detected(QStringView text, const QList<DateToken> &tokens, ReminderLanguage language,
    Instant now, const Calendar &calendar)
{
    QList<DateDetection> detections;
    for (const DateFinder::Found &found : DateFinder(grammar(language), tokens).find()) {
        const auto resolved = DateResolver::resolve(found.facts, now, calendar);
        if (!resolved)
            continue;
        TextRange range{tokens[found.start].range.start, tokens[found.end - 1].range.end};
        // Of two blanks that would meet, one goes with the date.
        if (range.start > 0 && text[range.start - 1].isSpace() && range.end < text.size()
            && text[range.end].isSpace())
            ++range.end;
        detections.append({resolved->fireAt, range, text.sliced(range.start, range.length()).toString(),
            resolved->kind, language});
    }
    return detections;
}

bool isEastAsian(ReminderLanguage language)
{
    return language == ReminderLanguage::Chinese || language == ReminderLanguage::Japanese
           || language == ReminderLanguage::Korean;
}

/// The scripts of East Asia tell for sure, but for Chinese and a Japanese draft without kana.
bool mayBeEither(ReminderLanguage a, ReminderLanguage b, const QList<DateToken> &tokens)
{
    const auto writesHan = [](ReminderLanguage language) {
        return language == ReminderLanguage::Chinese || language == ReminderLanguage::Japanese;
    };
    return writesHan(a) && writesHan(b)
           && std::none_of(tokens.begin(), tokens.end(), [](const DateToken &token) {
                  return token.type == Type::Character && token.text.front().script() != QChar::Script_Han;
              });
}

/// How many words of the draft speak for a language.
int countTelling(const QList<DateToken> &tokens, ReminderLanguage language)
{
    const DateGrammar &words = grammar(language);
    return int(std::count_if(tokens.begin(), tokens.end(), [&words](const DateToken &token) {
        return (token.type == Type::Word || token.type == Type::Character) && words.isTelling(token.text);
    }));
}

struct Candidate {
    ReminderLanguage language;
    int words = 0; ///< of the draft, that speak for it
};

/// The languages that may understand a draft: the one it seems to be in and those for which as many words
/// speak, the best founded first. Where no word speaks for any and there are numbers, all that could explain
/// them.
QList<Candidate> candidates(const QList<DateToken> &tokens, ReminderLanguage seeming)
{
    const int own = countTelling(tokens, seeming);
    const bool hasNumbers = std::any_of(
        tokens.begin(), tokens.end(), [](const DateToken &token) { return token.type == Type::Number; });
    QList<Candidate> others;
    for (const ReminderLanguage language : languages) {
        const bool isSame = &Languages::rules(language) == &Languages::rules(seeming);
        if (isSame || (isEastAsian(language) && !mayBeEither(seeming, language, tokens)))
            continue;
        const int words = countTelling(tokens, language);
        if (words >= own && (words > 0 || hasNumbers))
            others.append({language, words});
    }
    std::stable_sort(others.begin(), others.end(),
        [](const Candidate &a, const Candidate &b) { return a.words > b.words; });
    others.prepend({seeming, own});
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

void DateDetector::prepare()
{
    for (const ReminderLanguage language : languages)
        (void)grammar(language);
}

QList<DateDetection> DateDetector::detectDates(QStringView text) const
{
    const QList<DateToken> tokens = DateTokens::of(text);
    const Instant now = m_clock.now();
    const Calendar &calendar = m_clock.calendar();
    QList<DateDetection> best;
    const ReminderLanguage seeming = LanguageDetection::detect(text);
    for (const auto &[language, words] : candidates(tokens, seeming)) {
        QList<DateDetection> detections = detected(text, tokens, language, now, calendar);
        // For a language that nothing speaks for, a date must do so itself: "um 3", not "3 h".
        if (language != seeming && words == 0)
            detections.removeIf([](const DateDetection &detection) { return !hasWord(detection.text); });
        if (covered(detections) > covered(best))
            best = detections;
    }
    return best;
}
