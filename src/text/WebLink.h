#pragma once

#include "foundation/Charset.h"
#include "foundation/TextRange.h"

#include <QByteArrayView>
#include <QList>
#include <QString>

#include <optional>

/// Web addresses in drafts, and the titles of their pages. Pages are fetched by PageTitleFetching.
namespace WebLink {
/// The address if the draft, trimmed, is only an address: http or https, with a host. Percent-encoded if it
/// contains characters that are invalid in an address.
[[nodiscard]] std::optional<QString> detect(QStringView text);

struct Address {
    TextRange range;
    QString address; ///< as detect() returns it
    bool operator==(const Address &) const = default;
};
/// The addresses within a text: each word that is one, from its scheme on, without the punctuation around it.
[[nodiscard]] QList<Address> addresses(QStringView text);

/// The text of a page: in the charset of the Content-Type header, else UTF-8, else GB 18030. Nothing if none
/// of them decodes every byte.
[[nodiscard]] std::optional<QString> decodeHTML(QByteArrayView bytes,
    const std::optional<QString> &contentType, Charset::Extent extent = Charset::Extent::Whole);

/// The text of the first title element, decoded and on one line; nothing if it is blank.
[[nodiscard]] std::optional<QString> parseTitle(QStringView html);

/// Replaces numeric and the most common named character references; any other stays as written.
[[nodiscard]] QString decodeEntities(QStringView text);
} // namespace WebLink
