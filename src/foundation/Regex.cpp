#include "foundation/Regex.h"

#include <unicode/regex.h>

namespace {
/// In ICU's units, roughly milliseconds: far more than an ordinary text needs.
constexpr int32_t timeLimit = 200;
} // namespace

struct Regex::Compiled {
    std::unique_ptr<icu::RegexPattern> pattern;
};

std::optional<TextRange> Regex::Match::group(int number) const
{
    const TextRange range = m_groups.value(number, TextRange{-1, -1});
    return range.start < 0 ? std::nullopt : std::optional(range);
}

Regex::Regex(const QString &pattern, Case caseRule)
{
    UErrorCode status = U_ZERO_ERROR;
    const icu::UnicodeString source(
        false, reinterpret_cast<const char16_t *>(pattern.utf16()), int32_t(pattern.size()));
    const uint32_t flags = caseRule == Case::Insensitive ? uint32_t(UREGEX_CASE_INSENSITIVE) : 0;
    std::unique_ptr<icu::RegexPattern> compiled(icu::RegexPattern::compile(source, flags, status));
    if (U_FAILURE(status))
        qFatal("%s in the pattern \"%s\"", u_errorName(status), qPrintable(pattern));
    m_compiled = std::make_unique<const Compiled>(Compiled{std::move(compiled)});
}

Regex::~Regex() = default;
Regex::Regex(Regex &&) noexcept = default;
Regex &Regex::operator=(Regex &&) noexcept = default;

class Regex::Search
{
public:
    Search(const icu::RegexPattern &pattern, QStringView text)
        : m_input(false, reinterpret_cast<const char16_t *>(text.utf16()), int32_t(text.size()))
    {
        UErrorCode status = U_ZERO_ERROR;
        m_matcher.reset(pattern.matcher(m_input, status));
        m_matcher->setTimeLimit(timeLimit, status);
        Q_ASSERT_X(U_SUCCESS(status), "Regex::Search", u_errorName(status));
    }

    bool next()
    {
        UErrorCode status = U_ZERO_ERROR;
        // A failure is the time limit or ICU's limit on its stack: the text does not match.
        if (!m_matcher->find(status) || U_FAILURE(status))
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
    Search search(*m_compiled->pattern, text);
    return search.next() ? std::optional(search.match()) : std::nullopt;
}

Regex::Matches Regex::allMatches(QStringView text) const
{
    return Matches(std::make_unique<Search>(*m_compiled->pattern, text));
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
