#pragma once

#include <QByteArray>
#include <QStringView>

/// Writes an array of flat objects in the exact form of the data files: two-space indentation, a blank on
/// both sides of the colon, every slash escaped, an empty array as "[", an empty line, "]". Keys must be
/// added in ascending order.
class JsonWriter
{
public:
    void beginObject();
    void add(QByteArrayView key, QStringView value);
    void addRaw(QByteArrayView key, QByteArrayView value); ///< for a value that needs no escaping
    void endObject();
    [[nodiscard]] QByteArray finish();
    void reserve(qsizetype bytes) { m_bytes.reserve(bytes); }

private:
    void beginMember(QByteArrayView key);

    QByteArray m_bytes = "[\n";
    bool m_hasObjects = false;
    bool m_hasMembers = false;
};
