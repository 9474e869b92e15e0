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
    const icu::UnicodeString source(false, QStringView(pattern).utf16(), int32_t(pattern.size()));
    const uint32_t flags = caseRule == Case::Insensitive ? uint32_t(UREGEX_CASE_INSENSITIVE) : 0;
    std::unique_ptr<icu::RegexPattern> compiled(icu::RegexPattern::compile(source, flags, status));
    if (U_FAILURE(status))
        qFatal("%s in the pattern \"%s\"", u_errorName(status), qPrintable(pattern));
    m_compiled = std::make_shared<const Compiled>(Compiled{std::move(compiled)});
}

void Regex::visitMatches(QStringView text, const std::function<bool(const Match &)> &visit) const
{
    const icu::UnicodeString input(false, text.utf16(), int32_t(text.size()));
    UErrorCode status = U_ZERO_ERROR;
    const std::unique_ptr<icu::RegexMatcher> matcher(m_compiled->pattern->matcher(input, status));
    matcher->setTimeLimit(timeLimit, status);
    Q_ASSERT_X(U_SUCCESS(status), "Regex::visitMatches", u_errorName(status));
    // A failure is the time limit or ICU's limit on its stack: the text does not match.
    while (matcher->find(status) && U_SUCCESS(status)) {
        Match match;
        for (int32_t number = 0; number <= matcher->groupCount(); ++number)
            match.m_groups.append({matcher->start(number, status), matcher->end(number, status)});
        if (!visit(match))
            return;
    }
}

std::optional<Regex::Match> Regex::firstMatch(QStringView text) const
{
    std::optional<Match> first;
    visitMatches(text, [&first](const Match &match) {
        first = match;
        return false;
    });
    return first;
}

QList<Regex::Match> Regex::allMatches(QStringView text) const
{
    QList<Match> matches;
    visitMatches(text, [&matches](const Match &match) {
        matches.append(match);
        return true;
    });
    return matches;
}

QString Regex::replaced(QStringView text, QStringView replacement) const
{
    QString result;
    qsizetype cursor = 0;
    visitMatches(text, [&](const Match &match) {
        result += text.sliced(cursor, match.range().start - cursor);
        result += replacement;
        cursor = match.range().end;
        return true;
    });
    return result += text.sliced(cursor);
}
