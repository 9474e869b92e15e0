#include "text/TagEditing.h"

#include "foundation/Characters.h"

#include <algorithm>

namespace {
QList<TagEditing::Token> tokensOf(QStringView tag, QStringView text)
{
    QList<TagEditing::Token> tokens = TagEditing::tokens(text);
    tokens.removeIf(
        [tag](const TagEditing::Token &token) { return QStringView(token.text).sliced(1) != tag; });
    return tokens;
}
} // namespace

bool TagEditing::endsTag(QChar character)
{
    return character == u'#' || character == u'@' || character.isSpace();
}

QList<TagEditing::Token> TagEditing::tokens(QStringView text)
{
    // A plain loop, not a regular expression: a change of tags counts those of all notes.
    QList<Token> tokens;
    for (qsizetype start = text.indexOf(u'#'); start >= 0;) {
        qsizetype end = start + 1;
        while (end < text.size() && !endsTag(text[end]))
            ++end;
        if (end > start + 1)
            tokens.append({{start, end}, text.sliced(start, end - start).toString()});
        start = text.indexOf(u'#', end);
    }
    return tokens;
}

bool TagEditing::isValidName(QStringView name)
{
    const auto isForbidden = [](QChar unit) { return QStringView(u" \t#@").contains(unit); };
    return !name.isEmpty() && std::none_of(name.begin(), name.end(), isForbidden);
}

qsizetype TagEditing::occurrences(QStringView tag, QStringView text)
{
    return tokensOf(tag, text).size();
}

QString TagEditing::replacingTag(QStringView text, QStringView from, QStringView to)
{
    QString result;
    qsizetype cursor = 0;
    for (const Token &token : tokensOf(from, text)) {
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
    for (const Token &token : tokensOf(tag, text)) {
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
