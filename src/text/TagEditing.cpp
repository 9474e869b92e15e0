#include "text/TagEditing.h"

#include "foundation/Characters.h"
#include "foundation/Regex.h"

namespace {
bool isTag(const TagEditing::Token &token, QStringView name)
{
    return QStringView(token.text).sliced(1) == name;
}
} // namespace

QList<TagEditing::Token> TagEditing::tokens(QStringView text)
{
    static const Regex pattern(QStringLiteral(R"(#[^\s#@]+)"));
    QList<Token> tokens;
    for (const Regex::Match &match : pattern.allMatches(text)) {
        const TextRange range = match.range();
        tokens.append({range, text.sliced(range.start, range.length()).toString()});
    }
    return tokens;
}

qsizetype TagEditing::occurrences(QStringView tag, QStringView text)
{
    qsizetype count = 0;
    for (const Token &token : tokens(text))
        count += isTag(token, tag);
    return count;
}

QString TagEditing::replacingTag(QStringView text, QStringView from, QStringView to)
{
    QString result;
    qsizetype cursor = 0;
    for (const Token &token : tokens(text)) {
        if (!isTag(token, from))
            continue;
        result += text.sliced(cursor, token.range.start - cursor);
        result += u'#';
        result += to;
        cursor = token.range.end;
    }
    return result += text.sliced(cursor);
}

QString TagEditing::removingTag(QStringView text, QStringView tag)
{
    QString result;
    qsizetype cursor = 0;
    for (const Token &token : tokens(text)) {
        if (!isTag(token, tag))
            continue;
        result += text.sliced(cursor, token.range.start - cursor);
        cursor = token.range.end;
        if (!result.isEmpty() && result.back().isSpace()) {
            while (cursor < text.size() && text[cursor].isSpace())
                ++cursor;
        }
    }
    result += text.sliced(cursor);
    return Characters::trimmedOfBlanks(result).toString();
}
