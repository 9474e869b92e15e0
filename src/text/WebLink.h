#pragma once

#include "foundation/Charset.h"

#include <QByteArrayView>
#include <QString>

#include <optional>

/// Web addresses in drafts, and the titles of their pages. Pages are fetched by PageTitleFetching.
namespace WebLink {
/// The address if the draft, trimmed, is only an address: http or https, with a host. Percent-encoded if it
/// contains characters that are invalid in an address.
[[nodiscard]] std::optional<QString> detect(QStringView text);

/// The text of a page: in the charset of the Content-Type header, else UTF-8, else GB 18030. Nothing if none
/// of them decodes every byte.
[[nodiscard]] std::optional<QString> decodeHTML(QByteArrayView bytes,
    const std::optional<QString> &contentType, Charset::Extent extent = Charset::Extent::Whole);

/// The text of the first title element, decoded and on one line; nothing if it is blank.
[[nodiscard]] std::optional<QString> parseTitle(QStringView html);

/// Replaces numeric and the most common named character references; any other stays as written.
[[nodiscard]] QString decodeEntities(QStringView text);
} // namespace WebLink
