#include "model/JsonWriter.h"

#include "foundation/InternetDateTime.h"

#include <algorithm>
#include <array>
#include <cstring>

namespace {
constexpr std::array<char, 128> makeEscapes()
{
    // 0: unescaped; 'u': by code point; else the letter after the backslash.
    std::array<char, 128> escapes{};
    for (size_t control = 0; control < 0x20; ++control)
        escapes[control] = 'u';
    escapes['\b'] = 'b';
    escapes['\t'] = 't';
    escapes['\n'] = 'n';
    escapes['\f'] = 'f';
    escapes['\r'] = 'r';
    escapes['"'] = '"';
    escapes['\\'] = '\\';
    escapes['/'] = '/';
    return escapes;
}

char *writeAscii(char *out, char16_t unit)
{
    static constexpr std::array<char, 128> escapes = makeEscapes();
    static constexpr char hex[] = "0123456789abcdef";
    const char escape = escapes[unit];
    if (!escape) {
        *out++ = char(unit);
        return out;
    }
    *out++ = '\\';
    *out++ = escape;
    if (escape == 'u') {
        *out++ = '0';
        *out++ = '0';
        *out++ = hex[unit >> 4];
        *out++ = hex[unit & 0xF];
    }
    return out;
}

char *writeUtf8(char *out, char32_t character)
{
    if (character < 0x800) {
        *out++ = char(0xC0 | (character >> 6));
    } else {
        if (character < 0x10000) {
            *out++ = char(0xE0 | (character >> 12));
        } else {
            *out++ = char(0xF0 | (character >> 18));
            *out++ = char(0x80 | ((character >> 12) & 0x3F));
        }
        *out++ = char(0x80 | ((character >> 6) & 0x3F));
    }
    *out++ = char(0x80 | (character & 0x3F));
    return out;
}

char *writeHex(char *out, quint32 number, int digits)
{
    static constexpr char hex[] = "0123456789ABCDEF";
    for (int shift = 4 * (digits - 1); shift >= 0; shift -= 4)
        *out++ = hex[(number >> shift) & 0xF];
    return out;
}

char *write(char *out, QByteArrayView bytes)
{
    std::memcpy(out, bytes.data(), size_t(bytes.size()));
    return out + bytes.size();
}

/// The length is known at compile time, so this is a few moves instead of a call.
template <size_t Size>
char *writeLiteral(char *out, const char (&literal)[Size])
{
    std::memcpy(out, literal, Size - 1);
    return out + Size - 1;
}

/// More than any separator or bracket needs.
constexpr qsizetype maxPunctuation = 16;

/// Small enough for the processor's cache.
constexpr qsizetype bufferSize = 64 * 1024;

/// An escape such as \u0001 is the longest form of one UTF-16 unit.
constexpr qsizetype maxBytesPerUnit = 6;
} // namespace

JsonWriter::JsonWriter(const ByteSink &sink)
    : m_sink(sink)
{
    m_buffer.resize(bufferSize);
    setEnd(writeLiteral(reserve(maxPunctuation), "[\n"));
}

char *JsonWriter::reserve(qsizetype maxBytes)
{
    if (m_size + maxBytes > m_buffer.size()) {
        m_sink(QByteArrayView(m_buffer.constData(), m_size));
        m_size = 0;
        m_buffer.resize(std::max(maxBytes, bufferSize));
    }
    return m_buffer.data() + m_size;
}

void JsonWriter::beginObject()
{
    char *out = reserve(maxPunctuation);
    setEnd(m_hasObjects ? writeLiteral(out, ",\n  {") : writeLiteral(out, "  {"));
    m_hasObjects = true;
    m_hasMembers = false;
}

char *JsonWriter::beginMember(QByteArrayView key, qsizetype maxValueBytes)
{
    char *out = reserve(2 * maxPunctuation + key.size() + maxValueBytes);
    out = m_hasMembers ? writeLiteral(out, ",\n    \"") : writeLiteral(out, "\n    \"");
    m_hasMembers = true;
    return writeLiteral(write(out, key), "\" : \"");
}

void JsonWriter::add(QByteArrayView key, QStringView value)
{
    char *out = beginMember(key, value.size() * maxBytesPerUnit);
    for (qsizetype i = 0; i < value.size(); ++i) {
        const char16_t unit = value[i].unicode();
        if (unit < 0x80) {
            out = writeAscii(out, unit);
        } else if (!QChar::isSurrogate(unit)) {
            out = writeUtf8(out, unit);
        } else if (QChar::isHighSurrogate(unit) && i + 1 < value.size() && value[i + 1].isLowSurrogate()) {
            out = writeUtf8(out, QChar::surrogateToUcs4(unit, value[i + 1].unicode()));
            ++i;
        } else {
            out = writeUtf8(out, QChar::ReplacementCharacter);
        }
    }
    *out++ = '"';
    setEnd(out);
}

void JsonWriter::add(QByteArrayView key, Instant value)
{
    char *out = beginMember(key, InternetDateTime::length);
    InternetDateTime::write(value, out);
    out += InternetDateTime::length;
    *out++ = '"';
    setEnd(out);
}

void JsonWriter::add(QByteArrayView key, QUuid value)
{
    constexpr qsizetype length = 36;
    char *out = beginMember(key, length);
    out = writeHex(out, value.data1, 8);
    *out++ = '-';
    out = writeHex(out, value.data2, 4);
    *out++ = '-';
    out = writeHex(out, value.data3, 4);
    *out++ = '-';
    for (int i = 0; i < 8; ++i) {
        if (i == 2)
            *out++ = '-';
        out = writeHex(out, value.data4[i], 2);
    }
    *out++ = '"';
    setEnd(out);
}

void JsonWriter::endObject()
{
    setEnd(writeLiteral(reserve(maxPunctuation), "\n  }"));
}

void JsonWriter::finish()
{
    setEnd(writeLiteral(reserve(maxPunctuation), "\n]"));
    m_sink(QByteArrayView(m_buffer.constData(), m_size));
}
