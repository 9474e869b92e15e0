#pragma once

#include "foundation/ByteSink.h"
#include "foundation/Instant.h"

#include <QByteArray>
#include <QStringView>
#include <QUuid>

/// Writes an array of flat objects of strings in the exact form of the data files: UTF-8, two-space
/// indentation, a space on both sides of the colon, every slash escaped, an empty array as "[", an empty
/// line, "]". Keys must be added in ascending order. An unpaired surrogate is written as U+FFFD.
class JsonWriter
{
public:
    explicit JsonWriter(const ByteSink &sink);

    void beginObject();
    void add(QByteArrayView key, QStringView value);
    void add(QByteArrayView key, Instant value); ///< "2024-05-01T08:30:00Z"
    void add(QByteArrayView key, QUuid value);   ///< 36 characters in upper case
    void endObject();
    void finish();

private:
    /// Returns where to write up to @p maxBytes. Call setEnd() with the end of what was written.
    char *reserve(qsizetype maxBytes);
    void setEnd(const char *end) { m_size = end - m_buffer.constData(); }
    char *beginMember(QByteArrayView key, qsizetype maxValueBytes);

    const ByteSink &m_sink;
    QByteArray m_buffer; ///< its capacity; m_size bytes are used
    qsizetype m_size = 0;
    bool m_hasObjects = false;
    bool m_hasMembers = false;
};
