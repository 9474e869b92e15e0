#include "foundation/Regex.h"

#include <unicode/regex.h>

namespace {
/// In ICU's units, roughly milliseconds: far more than any honest text needs.
constexpr int32_t timeLimit = 200;
} // namespace

struct Regex::Compiled {
    std::unique_ptr<icu::RegexPattern> pattern; ///< null where nothing is to be matched
};

std::optional<TextRange> Regex::Match::group(int number) const
{
    const TextRange range = m_groups.value(number, TextRange{-1, -1});
    return range.start < 0 ? std::nullopt : std::optional(range);
}

Regex::Regex(QString pattern, Case caseRule)
    : m_pattern(std::move(pattern))
    , m_case(caseRule)
{
}

Regex::~Regex() = default;

const Regex::Compiled &Regex::compiled() const
{
    std::call_once(m_once, [this] {
        m_compiled = std::make_unique<Compiled>();
        if (m_pattern.isEmpty())
            return;
        UErrorCode status = U_ZERO_ERROR;
        const icu::UnicodeString source(
            false, reinterpret_cast<const char16_t *>(m_pattern.utf16()), int32_t(m_pattern.size()));
        const uint32_t flags = m_case == Case::Insensitive ? uint32_t(UREGEX_CASE_INSENSITIVE) : 0;
        std::unique_ptr<icu::RegexPattern> pattern(icu::RegexPattern::compile(source, flags, status));
        if (U_SUCCESS(status))
            m_compiled->pattern = std::move(pattern);
    });
    return *m_compiled;
}

void Regex::search(QStringView text, bool onlyFirst, std::vector<Match> &matches) const
{
    const icu::RegexPattern *pattern = compiled().pattern.get();
    if (!pattern)
        return;
    UErrorCode status = U_ZERO_ERROR;
    const icu::UnicodeString input(
        false, reinterpret_cast<const char16_t *>(text.utf16()), int32_t(text.size()));
    const std::unique_ptr<icu::RegexMatcher> matcher(pattern->matcher(input, status));
    if (U_FAILURE(status))
        return;
    matcher->setTimeLimit(timeLimit, status);
    while (matcher->find(status) && U_SUCCESS(status)) {
        Match match;
        for (int32_t number = 0; number <= matcher->groupCount(); ++number)
            match.m_groups.append({matcher->start(number, status), matcher->end(number, status)});
        matches.push_back(std::move(match));
        if (onlyFirst)
            return;
    }
}

std::optional<Regex::Match> Regex::firstMatch(QStringView text) const
{
    std::vector<Match> matches;
    search(text, true, matches);
    return matches.empty() ? std::nullopt : std::optional(std::move(matches.front()));
}

std::vector<Regex::Match> Regex::allMatches(QStringView text) const
{
    std::vector<Match> matches;
    search(text, false, matches);
    return matches;
}

QString Regex::replaced(QStringView text, QStringView replacement) const
{
    QString result;
    qsizetype cursor = 0;
    for (const Match &match : allMatches(text)) {
        result += text.sliced(cursor, match.range().start - cursor);
        result += replacement;
        cursor = match.range().end;
    }
    return result += text.sliced(cursor);
}
