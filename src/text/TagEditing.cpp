#include "text/TagEditing.h"

#include "foundation/Characters.h"

#include <algorithm>

namespace {
bool isTag(const TagEditing::Token &token, QStringView name)
{
    return QStringView(token.text).sliced(1) == name;
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
