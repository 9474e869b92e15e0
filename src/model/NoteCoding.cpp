#include "model/NoteCoding.h"

#include "foundation/InternetDateTime.h"
#include "model/JsonWriter.h"

#include <QUrl>

#include <array>

#include <simdjson.h>

namespace dom = simdjson::dom;

namespace {
constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";

constexpr std::array<signed char, 256> makeHexValues()
{
    std::array<signed char, 256> values{};
    values.fill(-1);
    for (int i = 0; i < 10; ++i)
        values[size_t('0' + i)] = char(i);
    for (int i = 0; i < 6; ++i)
        values[size_t('a' + i)] = values[size_t('A' + i)] = char(10 + i);
    return values;
}

/// Accepts exactly the 36 characters of the canonical form, in either case.
std::optional<QUuid> parseUuid(std::string_view text)
{
    static constexpr std::array<signed char, 256> hexValues = makeHexValues();
    static constexpr size_t bytesAt[16] = {0, 2, 4, 6, 9, 11, 14, 16, 19, 21, 24, 26, 28, 30, 32, 34};
    if (text.size() != 36 || text[8] != '-' || text[13] != '-' || text[18] != '-' || text[23] != '-')
        return std::nullopt;
    std::array<uchar, 16> bytes{};
    int all = 0; // negative if any digit is invalid
    for (size_t i = 0; i < bytes.size(); ++i) {
        const int value = hexValues[uchar(text[bytesAt[i]])] * 16 | hexValues[uchar(text[bytesAt[i] + 1])];
        all |= value;
        bytes[i] = uchar(value);
    }
    if (all < 0)
        return std::nullopt;
    return QUuid::fromRfc4122(QByteArrayView(bytes.data(), bytes.size()));
}

// Each reads one value into @p out and returns whether it is valid.

bool read(dom::element value, QString &out)
{
    std::string_view text;
    if (value.get(text) != simdjson::SUCCESS)
        return false;
    out = QString::fromUtf8(text.data(), qsizetype(text.size()));
    if (text.starts_with(byteOrderMark)) // Qt drops it, but in a note it is a character
        out.prepend(QChar(QChar::ByteOrderMark));
    return true;
}

bool read(dom::element value, QUuid &out)
{
    std::string_view text;
    if (value.get(text) != simdjson::SUCCESS)
        return false;
    const auto id = parseUuid(text);
    out = id.value_or(QUuid());
    return id.has_value();
}

bool read(dom::element value, Instant &out)
{
    std::string_view text;
    if (value.get(text) != simdjson::SUCCESS)
        return false;
    const auto instant = InternetDateTime::parse({text.data(), qsizetype(text.size())});
    out = instant.value_or(Instant());
    return instant.has_value();
}

template <typename T>
bool read(dom::element value, std::optional<T> &out)
{
    if (value.is_null()) {
        out.reset();
        return true;
    }
    return read(value, out.emplace());
}

/// Whether this is the common, simple case: a web address with a host name, in characters that are always
/// valid. Avoids parsing the URL.
bool isPlainAddress(QStringView address)
{
    const qsizetype scheme = address.indexOf(u"://");
    if (scheme < 0 || (address.first(scheme) != u"https" && address.first(scheme) != u"http"))
        return false;
    const QStringView rest = address.sliced(scheme + 3);
    const auto isPlain = [](QChar character) {
        const char16_t unit = character.unicode();
        return (unit >= u'a' && unit <= u'z') || (unit >= u'A' && unit <= u'Z')
               || (unit >= u'0' && unit <= u'9') || unit == u'.' || unit == u'-' || unit == u'_'
               || unit == u'/' || unit == u'?' || unit == u'=' || unit == u'&' || unit == u'#';
    };
    return !rest.isEmpty() && rest.front().isLetter() && std::all_of(rest.begin(), rest.end(), isPlain);
}

bool isAddress(const std::optional<QString> &link)
{
    return !link || isPlainAddress(*link) || QUrl(*link).isValid();
}

bool read(dom::object object, Note &note)
{
    bool hasID = false;
    bool hasText = false;
    bool hasCreatedAt = false;
    for (const auto &[key, value] : object) {
        bool isGood = true;
        if (key == "id")
            isGood = hasID = read(value, note.id);
        else if (key == "text")
            isGood = hasText = read(value, note.text);
        else if (key == "createdAt")
            isGood = hasCreatedAt = read(value, note.createdAt);
        else if (key == "quote")
            isGood = read(value, note.quote);
        else if (key == "quoteID")
            isGood = read(value, note.quoteID);
        else if (key == "link")
            isGood = read(value, note.link) && isAddress(note.link);
        if (!isGood)
            return false;
    }
    return hasID && hasText && hasCreatedAt;
}

bool read(dom::object object, Reminder &reminder)
{
    bool hasID = false;
    bool hasNoteID = false;
    bool hasText = false;
    bool hasFullText = false;
    bool hasFireAt = false;
    bool hasCreatedAt = false;
    for (const auto &[key, value] : object) {
        bool isGood = true;
        if (key == "id")
            isGood = hasID = read(value, reminder.id);
        else if (key == "noteID")
            isGood = hasNoteID = read(value, reminder.noteID);
        else if (key == "text")
            isGood = hasText = read(value, reminder.text);
        else if (key == "fullText")
            isGood = hasFullText = read(value, reminder.fullText);
        else if (key == "fireAt")
            isGood = hasFireAt = read(value, reminder.fireAt);
        else if (key == "createdAt")
            isGood = hasCreatedAt = read(value, reminder.createdAt);
        if (!isGood)
            return false;
    }
    return hasID && hasNoteID && hasText && hasFullText && hasFireAt && hasCreatedAt;
}

template <typename Record>
Result<QList<Record>> decode(QByteArrayView bytes)
{
    dom::parser parser;
    dom::array array;
    if (bytes.isEmpty())
        return Failure{QStringLiteral("the text is empty")}; // and may have no data pointer
    // simdjson would skip a byte order mark, which the file format does not allow.
    if (bytes.startsWith(byteOrderMark.data()))
        return Failure{QStringLiteral("the text begins with a byte order mark")};
    if (const auto error = parser.parse(bytes.data(), size_t(bytes.size())).get(array))
        return Failure{QString::fromLatin1(simdjson::error_message(error))};

    QList<Record> records;
    records.reserve(qsizetype(array.size()));
    for (const dom::element element : array) {
        dom::object object;
        if (element.get(object) != simdjson::SUCCESS || !read(object, records.emplaceBack()))
            return Failure{QStringLiteral("element %1 is invalid").arg(records.size() - 1)};
    }
    return records;
}
} // namespace

void noteEncoder::encode(const QList<Note> &notes, const ByteSink &sink)
{
    JsonWriter writer(sink);
    for (const Note &note : notes) {
        writer.beginObject();
        writer.add("createdAt", note.createdAt);
        writer.add("id", note.id);
        if (note.link)
            writer.add("link", *note.link);
        if (note.quote)
            writer.add("quote", *note.quote);
        if (note.quoteID)
            writer.add("quoteID", *note.quoteID);
        writer.add("text", note.text);
        writer.endObject();
    }
    writer.finish();
}

void noteEncoder::encode(const QList<Reminder> &reminders, const ByteSink &sink)
{
    JsonWriter writer(sink);
    for (const Reminder &reminder : reminders) {
        writer.beginObject();
        writer.add("createdAt", reminder.createdAt);
        writer.add("fireAt", reminder.fireAt);
        writer.add("fullText", reminder.fullText);
        writer.add("id", reminder.id);
        writer.add("noteID", reminder.noteID);
        writer.add("text", reminder.text);
        writer.endObject();
    }
    writer.finish();
}

Result<QList<Note>> noteDecoder::decodeNotes(QByteArrayView bytes)
{
    return decode<Note>(bytes);
}

Result<QList<Reminder>> noteDecoder::decodeReminders(QByteArrayView bytes)
{
    return decode<Reminder>(bytes);
}
