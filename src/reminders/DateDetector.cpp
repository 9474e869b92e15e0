#include "reminders/DateDetector.h"

#include "reminders/DateGrammar.h"
#include "reminders/DateResolver.h"
#include "reminders/LanguageDetection.h"
#include "reminders/languages/Languages.h"

#include <algorithm>
#include <array>

namespace {
using Role = DateGrammar::Role;
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

/// Finds the dates of one draft in one language: what the rules match, put together where it stands together.
class Finder
{
public:
    Finder(const DateGrammar &grammar, const QList<DateToken> &tokens)
        : m_reading(grammar, tokens)
        , m_tokens(tokens)
    {
    }

    struct Found {
        qsizetype start = 0; ///< token
        qsizetype end = 0;
        DateFacts facts;
    };

    /// From left to right; at each place the longest wins.
    QList<Found> find() const
    {
        QList<Found> all;
        qsizetype free = 0; // the first token that no date has yet
        for (qsizetype start = 0; start < m_tokens.size();) {
            Found best{start, start, {}};
            beginAt(start, start, mostLeadingWords, best);
            if (best.end == start) {
                ++start;
                continue;
            }
            best.start = withWordsBefore(best.start, free);
            best.end = withWordsAfter(best.end);
            all.append(best);
            start = free = best.end;
        }
        return all;
    }

private:
    using Strength = DateWords::Strength;
    static constexpr int mostLeadingWords = 3; ///< "not before the"

    [[nodiscard]] bool isType(qsizetype token, Type type) const
    {
        return token >= 0 && token < m_tokens.size() && m_tokens[token].type == type;
    }
    [[nodiscard]] bool isGlued(qsizetype token) const
    {
        return token < m_tokens.size() && m_tokens[token].isGlued;
    }
    [[nodiscard]] bool isHangul(qsizetype token) const
    {
        return isType(token, Type::Character) && DateTokens::isHangul(m_tokens[token].text.front());
    }
    [[nodiscard]] bool isHyphen(qsizetype token) const
    {
        return isType(token, Type::Mark) && m_tokens[token].text == u"-";
    }

    /// Not within a word, and not behind one that makes it no date.
    [[nodiscard]] bool mayBeginAt(qsizetype token) const
    {
        if (m_reading.startOf(Role::NotAfter, token) != token || m_reading.isWithin(Role::Idiom, token))
            return false;
        if (!isGlued(token))
            return true;
        const qsizetype before = token - 1;
        if (isHangul(token))
            return !isHangul(before);
        if (isHyphen(before))
            return !isGlued(before);
        const bool isElision = isType(before, Type::Word) && m_tokens[before].text.endsWith(u'\'');
        return isElision || !(isType(before, Type::Word) || isType(before, Type::Number))
               || isType(token, Type::Character);
    }

    [[nodiscard]] bool mayEndAt(qsizetype token) const
    {
        if (m_reading.endOf(Role::NotBefore, token) != token || m_reading.isWithin(Role::Idiom, token))
            return false;
        if (!isGlued(token))
            return true;
        if (isHangul(token)) // which may carry a particle
            return isHangul(token - 1) ? !isHangulBehind(m_reading.endOf(Role::After, token), token) : true;
        if (isHyphen(token))
            return !isGlued(token + 1);
        const bool isPossessive = isType(token, Type::Word) && m_tokens[token].text == u"'s";
        return isPossessive || isType(token, Type::Character)
               || !(isType(token, Type::Word) || isType(token, Type::Number) || isType(token, Type::Barrier));
    }
    [[nodiscard]] bool isHangulBehind(qsizetype particleEnd, qsizetype token) const
    {
        return particleEnd == token || (isHangul(particleEnd) && isGlued(particleEnd));
    }

    /// The end of the draft or of what is said there.
    [[nodiscard]] bool isEdge(qsizetype token) const
    {
        if (token >= m_tokens.size() || isType(token, Type::Barrier)
            || m_reading.endOf(Role::Announcement, token) != token)
            return true;
        return isType(token, Type::Mark)
               && QStringView(u",.;:!?)，。、；！？").contains(m_tokens[token].text.front());
    }

    /// Tries a date that begins with this token, or behind the words there that lead to one.
    void beginAt(qsizetype start, qsizetype first, int leadingWords, Found &best) const
    {
        if (first >= m_tokens.size())
            return;
        if (mayBeginAt(first))
            extend({start, first, {}}, 0, Strength::WithNeighbour, best);
        if (leadingWords == 0)
            return;
        for (const qsizetype next : m_reading.endsOf(Role::Before, first))
            beginAt(start, next, leadingWords - 1, best);
    }

    /// Tries what can stand behind the parts found so far, and keeps the longest date that can end.
    void extend(const Found &sofar, int parts, Strength strength, Found &best) const
    {
        constexpr int mostParts = 4;
        const bool isReason =
            strength == Strength::Alone || (strength == Strength::AtEdge && (parts > 1 || isEdge(sofar.end)));
        if (parts > 0 && isReason && sofar.end > best.end && mayEndAt(sofar.end))
            best = sofar;
        if (parts == mostParts)
            return;
        for (const qsizetype at : continuations(sofar.end, parts)) {
            if (at >= m_tokens.size())
                continue;
            for (const DateGrammar::Match &match : m_reading.matches(at)) {
                if (const auto facts = DateFacts::together(sofar.facts, match.facts))
                    extend({sofar.start, match.end, *facts}, parts + 1, std::min(strength, match.strength),
                        best);
            }
        }
    }

    /// Where the next part may begin: at once, or behind a comma or a word that joins parts.
    [[nodiscard]] QList<qsizetype> continuations(qsizetype end, int parts) const
    {
        QList<qsizetype> starts{end};
        if (parts == 0)
            return starts;
        const bool isComma =
            isType(end, Type::Mark) && QStringView(u",，、").contains(m_tokens[end].text.front());
        const qsizetype behindComma = isComma ? end + 1 : end;
        if (isComma)
            starts.append(behindComma);
        for (const Role role : {Role::Between, Role::Before}) {
            for (const qsizetype behind : m_reading.endsOf(role, behindComma))
                starts.append(behind);
        }
        return starts;
    }

    /// "by the", "spätestens am".
    [[nodiscard]] qsizetype withWordsBefore(qsizetype start, qsizetype free) const
    {
        for (int i = 0; i < mostLeadingWords; ++i) {
            const qsizetype before = m_reading.startOf(Role::Before, start);
            const bool isPart = isHangul(before) && before > 0 && isHangul(before - 1) && isGlued(before);
            if (before == start || before < free || isPart)
                break;
            start = before;
        }
        return start;
    }
    [[nodiscard]] qsizetype withWordsAfter(qsizetype end) const
    {
        if (isType(end, Type::Word) && m_tokens[end].text == u"'s" && isGlued(end))
            ++end;
        return m_reading.endOf(Role::After, end);
    }

    DateGrammar::Reading m_reading;
    const QList<DateToken> &m_tokens;
};

QList<DateDetection> detected(QStringView text, const QList<DateToken> &tokens, ReminderLanguage language,
    Instant now, const Calendar &calendar)
{
    QList<DateDetection> detections;
    for (const Finder::Found &found : Finder(grammar(language), tokens).find()) {
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

/// The languages that may understand a draft: the one it seems to be in and those for which as many words
/// speak, the best founded first. Where no word speaks for any and there are numbers, all that could explain
/// them.
QList<ReminderLanguage> candidates(const QList<DateToken> &tokens, ReminderLanguage seeming)
{
    const int own = countTelling(tokens, seeming);
    const bool hasNumbers = std::any_of(
        tokens.begin(), tokens.end(), [](const DateToken &token) { return token.type == Type::Number; });
    struct Evidence {
        ReminderLanguage language;
        int words = 0;
    };
    QList<Evidence> evidence;
    for (const ReminderLanguage language : languages) {
        const bool isSame = &Languages::rules(language) == &Languages::rules(seeming);
        if (isSame || (isEastAsian(language) && !mayBeEither(seeming, language, tokens)))
            continue;
        const int words = countTelling(tokens, language);
        if (words >= own && (words > 0 || hasNumbers))
            evidence.append({language, words});
    }
    std::stable_sort(evidence.begin(), evidence.end(),
        [](const Evidence &a, const Evidence &b) { return a.words > b.words; });
    QList<ReminderLanguage> all{seeming};
    for (const Evidence &of : std::as_const(evidence))
        all.append(of.language);
    return all;
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
    for (const ReminderLanguage language : candidates(tokens, seeming)) {
        QList<DateDetection> detections = detected(text, tokens, language, now, calendar);
        // For a language that nothing speaks for, a date must do so itself: "um 3", not "3 h".
        if (language != seeming && countTelling(tokens, language) == 0)
            detections.removeIf([](const DateDetection &detection) { return !hasWord(detection.text); });
        if (covered(detections) > covered(best))
            best = detections;
    }
    return best;
}
