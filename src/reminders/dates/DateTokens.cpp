#include "reminders/dates/DateTokens.h"

#include "foundation/Digits.h"
#include "foundation/Scripts.h"
#include "text/TagEditing.h"

#include <algorithm>

namespace {
using Type = DateToken::Type;

bool isWordLetter(QChar character)
{
    return (character.isLetter() || character.isMark()) && !Scripts::isUnspaced(character);
}

bool isApostrophe(QChar character)
{
    return character == u'\'' || character == u'’';
}

/// The ASCII form of a separator between the numbers of a date or a time; 0 for any other character.
char16_t separator(QChar character)
{
    switch (character.unicode()) {
    case u':':
    case u'：':
        return u':';
    case u'.':
    case u'．':
        return u'.';
    case u'/':
    case u'／':
        return u'/';
    case u'-':
    case u'–':
        return u'-';
    case u',':
        return u',';
    default:
        return 0;
    }
}

/// The ranges in which nothing is a date: tags, addresses, paths.
QList<TextRange> barriers(QStringView text)
{
    QList<TextRange> ranges;
    for (const TagEditing::Token &tag : TagEditing::tokens(text))
        ranges.append(tag.range);
    for (qsizetype start = 0; start < text.size();) {
        if (text[start].isSpace()) {
            ++start;
            continue;
        }
        qsizetype end = start;
        while (end < text.size() && !text[end].isSpace())
            ++end;
        const QStringView word = text.sliced(start, end - start);
        const qsizetype scheme = word.indexOf(u"://");
        const auto isAsciiLetter = [](QChar c) { return c.unicode() < 0x80 && c.isLetter(); };
        const bool isPath = word.contains(u'/') && std::any_of(word.begin(), word.end(), isAsciiLetter);
        const bool isMail = word.contains(u'@') && word.indexOf(u'@') > 0 && word.contains(u'.');
        if (scheme >= 0 || isPath || isMail || word.startsWith(u"www.", Qt::CaseInsensitive))
            ranges.append({start, end});
        start = end;
    }
    std::sort(ranges.begin(), ranges.end(), [](TextRange a, TextRange b) { return a.start < b.start; });
    return ranges;
}

/// Cuts a text into tokens from left to right.
class Cutter
{
public:
    explicit Cutter(QStringView text)
        : m_text(text)
    {
    }

    QList<DateToken> cut()
    {
        const QList<TextRange> masked = barriers(m_text);
        auto barrier = masked.begin();
        while (m_at < m_text.size()) {
            while (barrier != masked.end() && barrier->end <= m_at)
                ++barrier;
            if (barrier != masked.end() && barrier->start <= m_at)
                take(Type::Barrier, barrier->end);
            else if (m_text[m_at].isSpace())
                ++m_at;
            else
                cutNext();
        }
        return m_tokens;
    }

private:
    void take(Type type, qsizetype end)
    {
        const bool isGlued = !m_tokens.isEmpty() && m_tokens.last().range.end == m_at;
        m_tokens.append(
            {type, {m_at, end}, m_text.sliced(m_at, end - m_at).toString().toLower(), 0, 0, isGlued});
        m_at = end;
    }

    QChar next(qsizetype distance = 1) const
    {
        return m_at + distance < m_text.size() ? m_text[m_at + distance] : QChar();
    }

    void cutNext()
    {
        const QChar character = m_text[m_at];
        if (character.isDigit()) {
            cutNumbers();
        } else if (Scripts::isUnspaced(character)) {
            take(Type::Character, m_at + 1);
        } else if (isWordLetter(character)) {
            qsizetype end = m_at;
            while (end < m_text.size() && isWordLetter(m_text[end]))
                ++end;
            // "l'8", "mezz'ora": the apostrophe ends the word, except in "Monday's".
            const bool isElision =
                end < m_text.size() && isApostrophe(m_text[end]) && end + 1 < m_text.size()
                && m_text[end + 1].isLetterOrNumber()
                && !(m_text[end + 1] == u's' && (end + 2 == m_text.size() || !m_text[end + 2].isLetter()));
            take(Type::Word, end + isElision);
            if (isElision)
                m_tokens.last().text.back() = u'\'';
        } else if (isApostrophe(character) && next() == u's' && !next(2).isLetter()) {
            take(Type::Word, m_at + 2);
            m_tokens.last().text = QStringLiteral("'s");
        } else {
            take(Type::Mark, m_at + 1);
            if (const char16_t mark = separator(character))
                m_tokens.last().text = QChar(mark);
            else if (character == u'（')
                m_tokens.last().text = u'(';
            else if (character == u'）')
                m_tokens.last().text = u')';
        }
    }

    /// Takes a run of digits and separators. Only some shapes can be part of a date.
    void cutNumbers()
    {
        qsizetype end = m_at;
        QString separators;
        int longest = 0;
        for (;;) {
            const qsizetype start = end;
            while (end < m_text.size() && m_text[end].isDigit())
                ++end;
            longest = std::max(longest, int(end - start));
            const char16_t mark = end < m_text.size() ? separator(m_text[end]) : 0;
            if (!mark || end + 1 >= m_text.size() || !m_text[end + 1].isDigit())
                break;
            separators += QChar(mark);
            ++end;
        }
        // Digits directly after another character are no date: "v2", "A4", "€5", "+49", "-3". Exceptions are
        // "14h30" and any letter of a script without spaces.
        bool isAttached = false;
        if (m_at > 0) {
            const QChar before = m_text[m_at - 1];
            const bool isWithinTime = m_tokens.size() >= 2 && m_tokens.last().type == Type::Word
                                      && m_tokens[m_tokens.size() - 2].type == Type::Number
                                      && m_tokens.last().isGlued;
            const bool isElided = isApostrophe(before);
            const bool isAbbreviated = before == u'.' && m_tokens.size() >= 2 && m_tokens.last().isGlued
                                       && m_tokens[m_tokens.size() - 2].type == Type::Word;
            isAttached = !before.isSpace() && !Scripts::isUnspaced(before) && !isWithinTime && !isElided
                         && !isAbbreviated
                         && !QStringView(u"(（@,，、。：:\"“「『[！!？?；;>").contains(before);
        }
        static const QStringList shapes{QString(), QStringLiteral(":"), QStringLiteral("."),
            QStringLiteral(".."), QStringLiteral("/"), QStringLiteral("//"), QStringLiteral("--"),
            QStringLiteral("-"), QStringLiteral(":-:"), QStringLiteral(".-.")};
        const QChar after = end < m_text.size() ? m_text[end] : QChar();
        const bool isMeasure = QStringView(u"%€$£¥‰").contains(after);
        if (isAttached || isMeasure || longest > 4 || !shapes.contains(separators)) {
            take(Type::Barrier, end);
            return;
        }
        while (m_at < end) {
            qsizetype stop = m_at;
            while (stop < end && m_text[stop].isDigit())
                ++stop;
            const QStringView digits = m_text.sliced(m_at, stop - m_at);
            take(Type::Number, stop);
            m_tokens.last().value = Digits::value(digits);
            m_tokens.last().digits = int(digits.size());
            if (m_at < end) {
                take(Type::Mark, m_at + 1);
                m_tokens.last().text = QChar(separator(m_text[m_at - 1]));
            }
        }
    }

    QStringView m_text;
    qsizetype m_at = 0;
    QList<DateToken> m_tokens;
};
} // namespace

QList<DateToken> DateTokens::of(QStringView text)
{
    return Cutter(text).cut();
}
