#include "model/JsonWriter.h"

#include <array>

namespace {
constexpr std::array<char, 256> makeEscapes()
{
    // 0: as it stands; 'u': by its number; else the letter behind the backslash.
    std::array<char, 256> escapes{};
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

void appendEscaped(QByteArray &bytes, QByteArrayView utf8)
{
    static constexpr std::array<char, 256> escapes = makeEscapes();
    static constexpr char hex[] = "0123456789abcdef";
    qsizetype copied = 0;
    for (qsizetype i = 0; i < utf8.size(); ++i) {
        const auto byte = static_cast<unsigned char>(utf8[i]);
        const char escape = escapes[byte];
        if (!escape)
            continue;
        bytes.append(utf8.sliced(copied, i - copied));
        copied = i + 1;
        const char short_[] = {'\\', escape};
        const char long_[] = {'\\', 'u', '0', '0', hex[byte >> 4], hex[byte & 0xF]};
        bytes.append(escape == 'u' ? QByteArrayView(long_, 6) : QByteArrayView(short_, 2));
    }
    bytes.append(utf8.sliced(copied));
}
} // namespace

void JsonWriter::beginObject()
{
    m_bytes.append(m_hasObjects ? ",\n  {" : "  {");
    m_hasObjects = true;
    m_hasMembers = false;
}

void JsonWriter::beginMember(QByteArrayView key)
{
    m_bytes.append(m_hasMembers ? ",\n    \"" : "\n    \"");
    m_bytes.append(key);
    m_bytes.append("\" : \"");
    m_hasMembers = true;
}

void JsonWriter::add(QByteArrayView key, QStringView value)
{
    beginMember(key);
    appendEscaped(m_bytes, value.toUtf8());
    m_bytes.append('"');
}

void JsonWriter::addRaw(QByteArrayView key, QByteArrayView value)
{
    beginMember(key);
    m_bytes.append(value);
    m_bytes.append('"');
}

void JsonWriter::endObject()
{
    m_bytes.append("\n  }");
}

QByteArray JsonWriter::finish()
{
    m_bytes.append("\n]");
    return std::move(m_bytes);
}
