#pragma once

#include "foundation/Charset.h"

#include <QByteArrayView>
#include <QString>

#include <optional>

/// Web addresses in drafts, and titles in the pages behind them. Fetching a page is another's matter.
namespace WebLink {
/// The address when the draft, trimmed, is nothing but one: http or https, with a host. Absolute; encoded
/// where it has characters that an address must not have.
[[nodiscard]] std::optional<QString> detect(QStringView text);

/// The text of a page: in the charset that the Content-Type header names, else UTF-8, else GB 18030. Nothing
/// when it is in none of them; a single byte that does not decode rules an encoding out.
[[nodiscard]] std::optional<QString> decodeHTML(QByteArrayView bytes,
    const std::optional<QString> &contentType, Charset::Extent extent = Charset::Extent::Whole);

/// What stands in the first title element, on one line and decoded; nothing when that is blank.
[[nodiscard]] std::optional<QString> parseTitle(QStringView html);

/// With the few named and all numeric character references replaced; any other stays as written.
[[nodiscard]] QString decodeEntities(QStringView text);
} // namespace WebLink
