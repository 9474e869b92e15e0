#include "text/WebLink.h"

#include "foundation/Characters.h"
#include "foundation/Regex.h"

#include <QUrl>

#include <algorithm>

namespace {
/// Nothing if there is anything but digits of the base, or no Unicode scalar value.
std::optional<QString> numericEntity(QStringView digits, int base)
{
    const QStringView digitsOfBase = QStringView(u"0123456789abcdef").first(base);
    char32_t value = 0;
    for (const QChar character : digits) {
        const qsizetype digit = digitsOfBase.indexOf(character, 0, Qt::CaseInsensitive);
        if (digit < 0)
            return std::nullopt;
        value = value * char32_t(base) + char32_t(digit);
        if (value > QChar::LastValidCodePoint)
            return std::nullopt;
    }
    if (digits.isEmpty() || QChar::isSurrogate(value))
        return std::nullopt;
    return QString::fromUcs4(&value, 1);
}

std::optional<QString> decodeEntity(QStringView name)
{
    struct Named {
        QStringView name;
        char16_t replacement;
    };
    static constexpr Named named[] = {
        {u"amp", u'&'}, {u"lt", u'<'}, {u"gt", u'>'}, {u"quot", u'"'}, {u"apos", u'\''},
        {u"nbsp", u' '}, // an ordinary space: a title is one line of words
    };
    for (const Named &entity : named) {
        if (name == entity.name)
            return QString(QChar(entity.replacement));
    }
    if (!name.startsWith(u'#'))
        return std::nullopt;
    const QStringView number = name.sliced(1);
    if (number.startsWith(u'x', Qt::CaseInsensitive))
        return numericEntity(number.sliced(1), 16);
    return numericEntity(number, 10);
}

/// Without what is about the sentence at its end, not part of the address: "(see https://a.example/x)."
qsizetype lengthWithoutPunctuation(QStringView word)
{
    constexpr QStringView opening = u"([{";
    constexpr QStringView closing = u")]}";
    qsizetype unopened[3];
    for (qsizetype kind = 0; kind < 3; ++kind)
        unopened[kind] = word.count(closing[kind]) - word.count(opening[kind]);
    qsizetype length = word.size();
    for (; length > 0; --length) {
        const QChar last = word[length - 1];
        const qsizetype kind = closing.indexOf(last);
        if (kind < 0 ? !QStringView(u".,;:!?'*~").contains(last) : unopened[kind]-- <= 0)
            break;
    }
    return length;
}
} // namespace

std::optional<QString> WebLink::detect(QStringView text)
{
    const QStringView trimmed = text.trimmed();
    if (std::any_of(trimmed.begin(), trimmed.end(), [](QChar character) { return character.isSpace(); }))
        return std::nullopt;
    const QString address = trimmed.toString();
    const QUrl url(address);
    const QString scheme = url.scheme(); // in lower case
    if (!url.isValid() || (scheme != u"http" && scheme != u"https") || url.host().isEmpty())
        return std::nullopt;
    const bool isEncoded = QUrl(address, QUrl::StrictMode).isValid()
                           && std::all_of(trimmed.begin(), trimmed.end(),
                               [](QChar character) { return character.unicode() < 0x80; });
    return isEncoded ? address : QString::fromLatin1(url.toEncoded());
}

QList<WebLink::Address> WebLink::addresses(QStringView text)
{
    // Chinese is written without spaces: what is before the scheme is not part of the word, and punctuation
    // ends it.
    static const Regex word(
        QStringLiteral(
            R"((?<![A-Za-z0-9])https?://[^\s<>"“”‘’«»‹›「」『』【】〔〕《》〈〉（），。、；：！？…]+)"),
        Regex::Case::Insensitive);
    QList<Address> addresses;
    if (!text.contains(u"://"))
        return addresses;
    for (const Regex::Match &match : word.allMatches(text)) {
        TextRange range = match.range();
        range.end = range.start + lengthWithoutPunctuation(text.sliced(range.start, range.length()));
        if (const auto address = detect(text.sliced(range.start, range.length())))
            addresses.append({range, *address});
    }
    return addresses;
}

std::optional<QString> WebLink::decodeHTML(
    QByteArrayView bytes, const std::optional<QString> &contentType, Charset::Extent extent)
{
    constexpr QStringView charset = u"charset=";
    const QStringList parts = contentType.value_or(QString()).split(u';');
    for (const QString &part : parts) {
        const QStringView trimmed = Characters::trimmedOfBlanks(part);
        if (!trimmed.startsWith(charset, Qt::CaseInsensitive))
            continue;
        if (auto text = Charset::decode(bytes, trimmed.sliced(charset.size()).toLatin1(), extent))
            return text;
        break;
    }
    if (auto text = Charset::decode(bytes, "UTF-8", extent))
        return text;
    return Charset::decode(bytes, "GB18030", extent);
}

std::optional<QString> WebLink::parseTitle(QStringView html)
{
    static const Regex space(QStringLiteral(R"(\s+)"));
    constexpr QStringView start = u"<title";
    const qsizetype tag = html.indexOf(start, 0, Qt::CaseInsensitive);
    if (tag < 0)
        return std::nullopt;
    const qsizetype open = html.indexOf(u'>', tag + start.size());
    if (open < 0)
        return std::nullopt;
    const qsizetype close = html.indexOf(QStringView(u"</title>"), open + 1, Qt::CaseInsensitive);
    if (close < 0)
        return std::nullopt;
    const QString title =
        decodeEntities(space.replaced(html.sliced(open + 1, close - open - 1), u" ")).trimmed();
    return title.isEmpty() ? std::nullopt : std::optional(title);
}

QString WebLink::decodeEntities(QStringView text)
{
    constexpr qsizetype maxLength = 10; // from "&" to ";"
    QString result;
    qsizetype cursor = 0;
    for (qsizetype ampersand = text.indexOf(u'&'); ampersand >= 0; ampersand = text.indexOf(u'&', cursor)) {
        result += text.sliced(cursor, ampersand - cursor);
        const qsizetype semicolon =
            text.sliced(ampersand, std::min(maxLength + 1, text.size() - ampersand)).indexOf(u';');
        const auto decoded =
            semicolon < 0 ? std::nullopt : decodeEntity(text.sliced(ampersand + 1, semicolon - 1));
        result += decoded.value_or(QStringLiteral("&"));
        cursor = ampersand + (decoded ? semicolon + 1 : 1);
    }
    return result += text.sliced(cursor);
}
