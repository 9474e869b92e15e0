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

class Regex::Search
{
public:
    Search(const icu::RegexPattern *pattern, QStringView text)
        : m_input(false, reinterpret_cast<const char16_t *>(text.utf16()), int32_t(text.size()))
    {
        if (!pattern)
            return;
        UErrorCode status = U_ZERO_ERROR;
        m_matcher.reset(pattern->matcher(m_input, status));
        if (U_SUCCESS(status))
            m_matcher->setTimeLimit(timeLimit, status);
        if (U_FAILURE(status))
            m_matcher.reset();
    }

    bool next()
    {
        UErrorCode status = U_ZERO_ERROR;
        if (!m_matcher || !m_matcher->find(status) || U_FAILURE(status))
            return false;
        m_match.m_groups.clear();
        for (int32_t number = 0; number <= m_matcher->groupCount(); ++number)
            m_match.m_groups.append({m_matcher->start(number, status), m_matcher->end(number, status)});
        return true;
    }
    [[nodiscard]] const Match &match() const { return m_match; }

private:
    icu::UnicodeString m_input;
    std::unique_ptr<icu::RegexMatcher> m_matcher;
    Match m_match;
};

Regex::Matches::Matches(std::unique_ptr<Search> search)
    : m_search(std::move(search))
{
}

Regex::Matches::~Matches() = default;

const Regex::Match &Regex::Matches::Iterator::operator*() const
{
    return m_search->match();
}

Regex::Matches::Iterator &Regex::Matches::Iterator::operator++()
{
    if (!m_search->next())
        m_search = nullptr;
    return *this;
}

std::optional<Regex::Match> Regex::firstMatch(QStringView text) const
{
    Search search(compiled().pattern.get(), text);
    return search.next() ? std::optional(search.match()) : std::nullopt;
}

Regex::Matches Regex::allMatches(QStringView text) const
{
    return Matches(std::make_unique<Search>(compiled().pattern.get(), text));
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
